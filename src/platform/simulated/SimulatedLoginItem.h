#pragma once

#include "platform/ports/LoginItem.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

/// A login item, absent at first.
class SimulatedLoginItem final : public LoginItem
{
public:
    explicit SimulatedLoginItem(EffectLog& log)
        : m_log(log)
    { }

    [[nodiscard]] bool isEnabled() const override { return m_enabled; }
    [[nodiscard]] std::optional<QString> enable() override { return change(true); }
    [[nodiscard]] std::optional<QString> disable() override { return change(false); }

    void setEnabled(bool enabled) { m_enabled = enabled; }
    /// The system's words against every change from now on; nothing lets changes through.
    void setRefusal(std::optional<QString> words) { m_refusal = std::move(words); }

private:
    std::optional<QString> change(bool enabled);

    EffectLog& m_log;
    bool m_enabled = false;
    std::optional<QString> m_refusal;
};

} // namespace tarvin::simulated
