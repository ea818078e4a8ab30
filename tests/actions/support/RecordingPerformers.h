#pragma once

#include "actions/seams/ActionChains.h"
#include "actions/seams/ContentActions.h"
#include "actions/seams/Performers.h"
#include "actions/seams/QuickFlip.h"
#include "actions/seams/SystemActions.h"
#include "actions/seams/ToolPanel.h"
#include "actions/seams/WindowActions.h"

#include <QString>

#include <functional>

namespace tarvin::test {

/// Performers that only say, with their arguments, that they were called.
class RecordingPerformers final : public ActionChains,
                                  public ContentActions,
                                  public QuickFlip,
                                  public SystemActions,
                                  public WindowActions
{
public:
    using Report = std::function<void(const QString&)>;

    explicit RecordingPerformers(Report report);

    [[nodiscard]] Performers performers();

    void executeActionChain(const QList<ActionChainStep>& steps) override;
    void executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination) override;
    void pasteText(const QString& text) override;
    void whenPasteIsPosted(std::function<void()> task) override { task(); }
    void openURL(const std::optional<QString>& address) override;
    void launchApp(const QString& bundleId, const QString& path) override;
    void executeOpenApplication(const ConfiguredAction& config) override;
    void openApplicationAt(const QString& path) override;
    void triggerAIAssistant() override;
    void smartWorkFocus() override;
    void smartMeetingMute() override;
    void smartCleanDesk() override;
    void quickFlip(const std::optional<QString>& companionBundleId) override;
    void adjustVolume(int delta) override;
    void toggleMute() override;
    void adjustBrightness(double delta) override;
    void executeMediaPlayPause() override;
    void executeMediaNext() override;
    void executeMediaPrevious() override;
    void toggleMicrophoneMute() override;
    void sleepSystem() override;
    void sleepDisplay() override;
    void shutDownSystem() override;
    void restartSystem() override;
    void forceQuitFrontmostApplication() override;
    void openSystemForceQuitDialog() override;
    void snapFrontWindow(WindowSnapPosition position) override;
    void minimizeFrontWindow() override;
    void toggleFrontWindowFullscreen() override;

private:
    class Panel final : public ToolPanel
    {
    public:
        Panel(const Report& report, const QString& name);
        [[nodiscard]] bool isVisible() const override { return m_visible; }
        void show() override;
        void hide() override;

    private:
        const Report& m_report;
        QString m_name;
        bool m_visible = false;
    };

    Report m_report;
    Panel m_actionsRing;
    Panel m_clipboardHistory;
    Panel m_floatingScratchpad;
};

} // namespace tarvin::test
