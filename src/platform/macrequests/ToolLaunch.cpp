#include "platform/macrequests/ToolLaunch.h"

namespace tarvin {

namespace {

QStringView verbOf(PowerEvent event)
{
    switch (event) {
    case PowerEvent::shutDown:
        return u"shut down";
    case PowerEvent::restart:
        return u"restart";
    }
    return {};
}

ToolLaunch launchFor(const SleepNow&)
{
    return {u"/usr/bin/pmset"_qs, {u"sleepnow"_qs}};
}

ToolLaunch launchFor(const DisplaySleepNow&)
{
    return {u"/usr/bin/pmset"_qs, {u"displaysleepnow"_qs}};
}

ToolLaunch launchFor(const RequestPowerEvent& request)
{
    return {u"/usr/bin/osascript"_qs,
        {u"-e"_qs, u"tell application \"System Events\" to %1"_qs.arg(verbOf(request.event))}};
}

ToolLaunch launchFor(const CaptureScreen& capture)
{
    ToolLaunch launch{u"/usr/sbin/screencapture"_qs};
    if (!capture.file)
        launch.arguments << u"-c"_qs;
    switch (capture.mode) {
    case ScreenCaptureMode::screen:
        break;
    case ScreenCaptureMode::window:
        launch.arguments << u"-w"_qs;
        break;
    case ScreenCaptureMode::region:
        launch.arguments << u"-i"_qs;
        break;
    }
    if (capture.file)
        launch.arguments << *capture.file;
    return launch;
}

} // namespace

ToolLaunch toolLaunch(const SystemCommand& command)
{
    return std::visit([](const auto& kind) { return launchFor(kind); }, command);
}

} // namespace tarvin
