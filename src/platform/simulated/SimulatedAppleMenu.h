#pragma once

#include "platform/ports/AppleMenu.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

class SimulatedWorkspace;

/// The system menu, which can be reached while the file manager with the identifier "com.apple.finder" runs.
class SimulatedAppleMenu final : public AppleMenu
{
public:
    SimulatedAppleMenu(EffectLog& log, const SimulatedWorkspace& workspace);

    [[nodiscard]] std::optional<QStringList> itemTitles() const override;
    void press(qsizetype index) override;

    /// Nothing for a menu that can't be read.
    void setItemTitles(std::optional<QStringList> titles) { m_titles = std::move(titles); }

private:
    EffectLog& m_log;
    const SimulatedWorkspace& m_workspace;
    std::optional<QStringList> m_titles;
};

} // namespace tarvin::simulated
