#include "platform/linux/x11/X11EventPoster.h"

#include "platform/keycodes/KeyCodeTable.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <variant>

namespace tarvin::x11 {

X11EventPoster::X11EventPoster(InputThread& thread, Desktop desktop, std::function<double()> pixelsPerPoint)
    : m_thread(thread)
    , m_desktop(std::move(desktop))
    , m_pixelsPerPoint(std::move(pixelsPerPoint))
{ }

bool X11EventPoster::canMakeKey(KeyCode keyCode) const
{
    const KeyCodeRow* const row = keyRowOfKeyCode(keyCode);
    return row != nullptr && xKeycodeOf(*row).has_value();
}

void X11EventPoster::postKey(const SyntheticKey& key, TapLocation)
{
    BuiltInMeaning meaning = DesktopKeystroke{.keyCode = key.keyCode, .flags = key.flags};
    if (key.origin == KeystrokeOrigin::builtIn)
        meaning = meaningOf(key);
    if (const auto* const keystroke = std::get_if<DesktopKeystroke>(&meaning))
        m_thread.play({.keystroke = *keystroke, .state = key.state, .userData = key.userData});
    else if (const auto* const function = std::get_if<DesktopFunction>(&meaning);
             function && key.state == KeyState::down)
        perform(*function);
}

BuiltInMeaning X11EventPoster::meaningOf(const SyntheticKey& key)
{
    if (key.state == KeyState::down) {
        const bool isTerminal = m_desktop.isTerminalInFront && m_desktop.isTerminalInFront();
        const auto meaning =
            meaningOfBuiltIn(key.keyCode, key.flags, isTerminal ? FrontWindow::terminal : FrontWindow::ordinary);
        m_openBuiltIns.push_back({key.keyCode, key.flags, meaning});
        return meaning;
    }
    const auto found = std::ranges::find_if(m_openBuiltIns,
        [&](const OpenBuiltIn& open) { return open.keyCode == key.keyCode && open.flags == key.flags; });
    if (found == m_openBuiltIns.end())
        return NothingMore{};
    const BuiltInMeaning meaning = found->meaning;
    m_openBuiltIns.erase(found);
    return meaning;
}

void X11EventPoster::perform(DesktopFunction function) const
{
    if (m_desktop.perform && m_desktop.perform(function))
        return;
    const std::string_view name = nameOf(function);
    if (m_desktop.log)
        m_desktop.log(QStringLiteral("[Tarvin] Not available on this desktop: %1.")
                          .arg(QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()))));
}

bool X11EventPoster::canMakeClick() const
{
    return true;
}

void X11EventPoster::postSecondaryClick(const SyntheticClick& click, TapLocation)
{
    const double scale = m_pixelsPerPoint ? m_pixelsPerPoint() : 1.0;
    m_thread.clickSecondary({.x = static_cast<std::int16_t>(std::lround(click.position.x * scale)),
                                .y = static_cast<std::int16_t>(std::lround(click.position.y * scale))},
        click.state);
}

} // namespace tarvin::x11
