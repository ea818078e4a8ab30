#include "actions/support/RecordingPerformers.h"

#include <utility>

namespace tarvin::test {

namespace {

QString call(const QString& operation, const QStringList& arguments)
{
    return operation + u'(' + arguments.join(u", ") + u')';
}

QString optionalText(const std::optional<QString>& text)
{
    return text ? u'"' + *text + u'"' : u"nothing"_qs;
}

QString positionName(WindowSnapPosition position)
{
    switch (position) {
    case WindowSnapPosition::left:
        return u"left"_qs;
    case WindowSnapPosition::right:
        return u"right"_qs;
    case WindowSnapPosition::maximize:
        return u"maximize"_qs;
    }
    return {};
}

} // namespace

RecordingPerformers::Panel::Panel(const Report& report, const QString& name)
    : m_report(report)
    , m_name(name)
{ }

void RecordingPerformers::Panel::show()
{
    m_visible = true;
    m_report(u"show "_qs + m_name);
}

void RecordingPerformers::Panel::hide()
{
    m_visible = false;
    m_report(u"hide "_qs + m_name);
}

RecordingPerformers::RecordingPerformers(Report report)
    : m_report(std::move(report))
    , m_actionsRing(m_report, u"ring"_qs)
    , m_clipboardHistory(m_report, u"clipboard"_qs)
    , m_floatingScratchpad(m_report, u"scratchpad"_qs)
{ }

Performers RecordingPerformers::performers()
{
    return {
        .chains = *this,
        .content = *this,
        .system = *this,
        .windows = *this,
        .quickFlip = *this,
        .actionsRing = m_actionsRing,
        .clipboardHistory = m_clipboardHistory,
        .floatingScratchpad = m_floatingScratchpad,
    };
}

void RecordingPerformers::executeActionChain(const QList<ActionChainStep>& steps)
{
    m_report(call(u"executeActionChain"_qs, {QString::number(steps.size()) + u" steps"_qs}));
}

void RecordingPerformers::executeScreenCapture(ScreenCaptureMode mode, ScreenCaptureDestination destination)
{
    m_report(call(u"executeScreenCapture"_qs, {rawValue(mode).toString(), rawValue(destination).toString()}));
}

void RecordingPerformers::pasteText(const QString& text)
{
    m_report(call(u"pasteText"_qs, {optionalText(text)}));
}

void RecordingPerformers::openURL(const std::optional<QString>& address)
{
    m_report(call(u"openURL"_qs, {optionalText(address)}));
}

void RecordingPerformers::launchApp(const QString& bundleId, const QString& path)
{
    m_report(call(u"launchApp"_qs, {optionalText(bundleId), optionalText(path)}));
}

void RecordingPerformers::executeOpenApplication(const ConfiguredAction& config)
{
    const bool isBlank = config == ConfiguredAction(KeyAction::openApplication);
    m_report(call(u"executeOpenApplication"_qs, {isBlank ? u"blank record"_qs : config.displayTitle()}));
}

void RecordingPerformers::openApplicationAt(const QString& path)
{
    m_report(call(u"openApplicationAt"_qs, {optionalText(path)}));
}

void RecordingPerformers::quickFlip(const std::optional<QString>& companionBundleId)
{
    m_report(call(u"quickFlip"_qs, {optionalText(companionBundleId)}));
}

void RecordingPerformers::adjustVolume(int delta)
{
    m_report(call(u"adjustVolume"_qs, {QString::number(delta)}));
}

void RecordingPerformers::adjustBrightness(double delta)
{
    m_report(call(u"adjustBrightness"_qs, {QString::number(delta)}));
}

void RecordingPerformers::snapFrontWindow(WindowSnapPosition position)
{
    m_report(call(u"snapFrontWindow"_qs, {positionName(position)}));
}

void RecordingPerformers::triggerAIAssistant()
{
    m_report(u"triggerAIAssistant"_qs);
}

void RecordingPerformers::smartWorkFocus()
{
    m_report(u"smartWorkFocus"_qs);
}

void RecordingPerformers::smartMeetingMute()
{
    m_report(u"smartMeetingMute"_qs);
}

void RecordingPerformers::smartCleanDesk()
{
    m_report(u"smartCleanDesk"_qs);
}

void RecordingPerformers::toggleMute()
{
    m_report(u"toggleMute"_qs);
}

void RecordingPerformers::executeMediaPlayPause()
{
    m_report(u"executeMediaPlayPause"_qs);
}

void RecordingPerformers::executeMediaNext()
{
    m_report(u"executeMediaNext"_qs);
}

void RecordingPerformers::executeMediaPrevious()
{
    m_report(u"executeMediaPrevious"_qs);
}

void RecordingPerformers::toggleMicrophoneMute()
{
    m_report(u"toggleMicrophoneMute"_qs);
}

void RecordingPerformers::sleepSystem()
{
    m_report(u"sleepSystem"_qs);
}

void RecordingPerformers::sleepDisplay()
{
    m_report(u"sleepDisplay"_qs);
}

void RecordingPerformers::shutDownSystem()
{
    m_report(u"shutDownSystem"_qs);
}

void RecordingPerformers::restartSystem()
{
    m_report(u"restartSystem"_qs);
}

void RecordingPerformers::forceQuitFrontmostApplication()
{
    m_report(u"forceQuitFrontmostApplication"_qs);
}

void RecordingPerformers::openSystemForceQuitDialog()
{
    m_report(u"openSystemForceQuitDialog"_qs);
}

void RecordingPerformers::minimizeFrontWindow()
{
    m_report(u"minimizeFrontWindow"_qs);
}

void RecordingPerformers::toggleFrontWindowFullscreen()
{
    m_report(u"toggleFrontWindowFullscreen"_qs);
}

} // namespace tarvin::test
