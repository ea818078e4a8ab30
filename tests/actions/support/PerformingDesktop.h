#pragma once

#include "actions/TestEnvironment.h"
#include "actions/flip/AppQuickFlipManager.h"
#include "actions/seams/ToolPanel.h"
#include "actions/support/Lines.h"
#include "actions/support/Transcript.h"
#include "app/core/ActionObjects.h"
#include "interception/TriggerNotice.h"
#include "model/ConfiguredAction.h"
#include "platform/applescript/AppleScriptText.h"
#include "support/QtPrinters.h"

namespace tarvin::test {

/// A panel that only says what becomes of it.
class ReportingPanel final : public ToolPanel
{
public:
    ReportingPanel(simulated::EffectLog& log, const QString& name)
        : m_log(log)
        , m_name(name)
    { }
    [[nodiscard]] bool isVisible() const override { return m_visible; }
    void show() override;
    void hide() override;

private:
    simulated::EffectLog& m_log;
    QString m_name;
    bool m_visible = false;
};

/// A simulated desktop with the executor and everyone who performs for it. Safari is in front with one large window,
/// Mail runs behind it, and the program itself behind that.
struct PerformingDesktop
{
    static constexpr ProcessIdentifier ownProcess = simulated::SimulatedWorkspace::ownProcess;
    static constexpr ProcessIdentifier safariProcess = 200;
    static constexpr ProcessIdentifier mailProcess = 300;

    PerformingDesktop();

    [[nodiscard]] simulated::SimulatedWorkspace& workspace() { return platform.workspace(); }
    void bringSelfToFront() { workspace().setFrontmostProcess(ownProcess); }
    void runInTestSafeMode() { testEnvironment.setSuppressSystemPowerCommandsForTesting(true); }
    void runApplication(ProcessIdentifier process, const QString& name, const QStringList& identifiers);
    [[nodiscard]] QString frontName();

    /// As `transcriptOf` of the desktop; a use that was counted is "0 use copy".
    [[nodiscard]] QStringList transcriptOf(const std::function<void()>& deed)
    {
        return test::transcriptOf(platform, deed);
    }
    [[nodiscard]] QStringList run(KeyAction action)
    {
        return transcriptOf([&] { actions.executor.execute(action); });
    }
    [[nodiscard]] QStringList run(const ConfiguredAction& config)
    {
        return transcriptOf([&] { actions.executor.execute(config); });
    }

    simulated::SimulatedPlatform platform;
    Platform ports;
    TriggerNotice notice;
    TestEnvironment testEnvironment;
    AppWindow* mainWindow = nullptr;
    AppQuickFlipManager quickFlip;
    ReportingPanel ring;
    ReportingPanel clipboardHistory;
    ReportingPanel scratchpad;
    ActionObjects actions;
};

/// The line of a script that ran at this time.
[[nodiscard]] QString scriptLine(int milliseconds, const Script& script);

} // namespace tarvin::test
