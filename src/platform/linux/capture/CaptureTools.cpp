#include "platform/linux/capture/CaptureTools.h"

#include <array>

namespace tarvin::capture {

namespace {

struct ToolRow
{
    QStringView desktop; ///< the program that must run; empty for any desktop
    QStringView program;
    /// Arguments between blanks; "%" is the file.
    QStringView screen;
    QStringView window;
    QStringView region;
};

/// Tools that let the user point at a window, where there are such, do so for the window too.
constexpr auto tools = std::to_array<ToolRow>({
    {u"gnome-shell", u"gnome-screenshot", u"-f %", u"-w -f %", u"-a -f %"},
    {u"cinnamon", u"gnome-screenshot", u"-f %", u"-w -f %", u"-a -f %"},
    {u"plasmashell", u"spectacle", u"-b -n -f -o %", u"-b -n -u -o %", u"-b -n -r -o %"},
    {u"xfce4-session", u"xfce4-screenshooter", u"-f -s %", u"-w -s %", u"-r -s %"},
    {{}, u"maim", u"%", u"-s -t 9999 %", u"-s %"},
    {{}, u"scrot", u"-o %", u"-s -o %", u"-s -o %"},
    {{}, u"import", u"-silent -window root %", u"-silent -frame %", u"-silent %"},
    {{}, u"gnome-screenshot", u"-f %", u"-w -f %", u"-a -f %"},
    {{}, u"xfce4-screenshooter", u"-f -s %", u"-w -s %", u"-r -s %"},
    {{}, u"spectacle", u"-b -n -f -o %", u"-b -n -u -o %", u"-b -n -r -o %"},
});

QStringView argumentsOf(const ToolRow& row, ScreenCaptureMode mode)
{
    switch (mode) {
    case ScreenCaptureMode::screen:
        return row.screen;
    case ScreenCaptureMode::window:
        return row.window;
    case ScreenCaptureMode::region:
        return row.region;
    }
    return {};
}

} // namespace

std::optional<CaptureCommand> captureCommand(ScreenCaptureMode mode, const QString& file,
    const std::function<bool(QStringView)>& isRunning, const std::function<bool(QStringView)>& isInstalled)
{
    for (const ToolRow& row : tools) {
        if ((!row.desktop.isEmpty() && !isRunning(row.desktop)) || !isInstalled(row.program))
            continue;
        QStringList arguments = argumentsOf(row, mode).toString().split(u' ');
        arguments.replaceInStrings(QStringLiteral("%"), file);
        return CaptureCommand{.program = row.program.toString(), .arguments = arguments};
    }
    return std::nullopt;
}

} // namespace tarvin::capture
