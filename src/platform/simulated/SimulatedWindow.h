#pragma once

#include "platform/ports/AppShell.h"

#include <functional>

namespace tarvin::simulated {

class EffectLog;

enum class WindowKind { ordinary, panel };

/// A window of the program that shows nothing but its state.
class SimulatedWindow final : public AppWindow
{
public:
    SimulatedWindow(
        EffectLog& log, const QString& title, WindowKind kind, std::function<void(SimulatedWindow&)> becameKey);

    [[nodiscard]] QString title() const override { return m_title; }
    [[nodiscard]] bool isPanel() const override { return m_kind == WindowKind::panel; }
    [[nodiscard]] bool isVisible() const override { return m_visible; }
    [[nodiscard]] bool isMiniaturized() const override { return m_miniaturized; }
    void setVisible() override;
    void miniaturize() override;
    void deminiaturize() override;
    void makeKeyAndOrderFront() override;
    void orderFrontRegardless() override;
    void orderOut() override;

    /// The user minimises the window.
    void miniaturizeByUser() { m_miniaturized = true; }

private:
    EffectLog& m_log;
    QString m_title;
    WindowKind m_kind;
    std::function<void(SimulatedWindow&)> m_becameKey;
    bool m_visible = false;
    bool m_miniaturized = false;
};

} // namespace tarvin::simulated
