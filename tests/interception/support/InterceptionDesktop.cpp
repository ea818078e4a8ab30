#include "interception/support/InterceptionDesktop.h"

#include "interception/support/InputEvents.h"

#include <QRegularExpression>

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace tarvin::test {

namespace {

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::uint32_t number(std::string_view text)
{
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size())
        throw std::invalid_argument("not a number: " + std::string(text));
    return value;
}

FKey keyNamed(std::string_view name)
{
    const auto key = fKeyFromRawValue(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
    if (!key)
        throw std::invalid_argument("no such key: " + std::string(name));
    return *key;
}

InputEvent eventOf(char motion, std::string_view name)
{
    constexpr std::string_view media = "media";
    if (name.starts_with(media)) {
        const std::uint32_t type = number(name.substr(media.size()));
        return motion == '+' ? mediaDown(type) : motion == '~' ? mediaRepeat(type) : mediaUp(type);
    }
    const FKey key = keyNamed(name);
    if (flagOf(key) != EventFlags::none || key == FKey::capsLock)
        return flagsChanged(key, motion == '+' ? flagOf(key) : EventFlags::none);
    return motion == '+' ? keyDown(key) : motion == '~' ? keyRepeat(key) : keyUp(key);
}

std::string joined(const QStringList& texts)
{
    return texts.join(u' ').toStdString();
}

} // namespace

InterceptionDesktop::InterceptionDesktop()
    : profile(platform.files(), platform.preferences(), platform.workspace(), platform.console(), platform.uuids(),
        [](KeyAction) {})
    , notice(platform.scheduler())
{ }

EventTapManager& InterceptionDesktop::manager()
{
    if (!m_manager) {
        if (!m_log)
            m_log = std::make_unique<RuntimeLog>(platform.files(), platform.scheduler());
        m_manager = std::make_unique<EventTapManager>(EventTapManager::Collaborators{profile, actions, studio, feedback,
            notice, *m_log, platform.inputTaps(), platform.permission(), platform.appShell(), platform.scheduler()});
    }
    return *m_manager;
}

void InterceptionDesktop::map(FKey key, KeyAction action)
{
    profile.setConfig(ConfiguredAction(action), key);
}

void InterceptionDesktop::showStudio()
{
    studio.visible = true;
    platform.appShell().becomeActive();
}

EventVerdict InterceptionDesktop::tap(const InputEvent& event)
{
    return tap(TapLocation::session, event);
}

EventVerdict InterceptionDesktop::tap(TapLocation location, const InputEvent& event)
{
    manager();
    return platform.inputTaps().deliverToTap(location, event);
}

void InterceptionDesktop::global(const InputEvent& event)
{
    manager();
    platform.inputTaps().deliverToGlobalMonitor(event);
}

EventVerdict InterceptionDesktop::local(const InputEvent& event)
{
    manager();
    return platform.inputTaps().deliverToLocalMonitor(event);
}

void InterceptionDesktop::hid(std::uint32_t page, std::uint32_t usage, std::int64_t value)
{
    manager();
    platform.inputTaps().deliverHid({page, usage, value});
}

std::string InterceptionDesktop::play(std::string_view steps)
{
    const std::size_t firedBefore = actions.fired.size();
    m_verdicts.clear();
    for (std::size_t start = 0; start <= steps.size();) {
        const std::size_t end = std::min(steps.find('|', start), steps.size());
        playStep(trimmed(steps.substr(start, end - start)));
        start = end + 1;
    }
    QStringList names;
    for (std::size_t index = firedBefore; index < actions.fired.size(); ++index)
        names += rawValue(actions.fired[index].action).toString();
    return joined(names);
}

void InterceptionDesktop::playStep(std::string_view step)
{
    if (step.ends_with("ms")) {
        advance(std::chrono::milliseconds(number(step.substr(0, step.size() - 2))));
        return;
    }
    const std::size_t blank = step.find(' ');
    const std::string_view path = step.substr(0, blank);
    const std::string_view what = blank == step.npos ? std::string_view() : trimmed(step.substr(blank));
    if (what.size() < 2 || std::string_view("+~-").find(what.front()) == std::string_view::npos)
        throw std::invalid_argument("no such step: " + std::string(step));
    if (path == "hid")
        hid(7, hidUsageOf(keyNamed(what.substr(1))), what.front() == '+' ? 1 : 0);
    else
        deliver(path, eventOf(what.front(), what.substr(1)));
}

void InterceptionDesktop::deliver(std::string_view path, const InputEvent& event)
{
    if (path == "tap")
        m_verdicts.push_back(tap(TapLocation::session, event));
    else if (path == "hidtap")
        m_verdicts.push_back(tap(TapLocation::hid, event));
    else if (path == "local")
        m_verdicts.push_back(local(event));
    else if (path == "global")
        global(event);
    else
        throw std::invalid_argument("no such path: " + std::string(path));
}

std::string InterceptionDesktop::verdicts() const
{
    QStringList words;
    for (const EventVerdict verdict : m_verdicts)
        words += verdict == EventVerdict::consume ? QStringLiteral("consume") : QStringLiteral("pass");
    return joined(words);
}

std::string InterceptionDesktop::fired() const
{
    QStringList names;
    for (const ConfiguredAction& config : actions.fired)
        names += rawValue(config.action).toString();
    return joined(names);
}

std::string InterceptionDesktop::held()
{
    QStringList names;
    for (const FKey key : manager().pressLedger().pressedPhysicalKeys())
        names += rawValue(key).toString();
    return joined(names);
}

std::string InterceptionDesktop::strokes() const
{
    return joined(feedback.strokes);
}

QStringList InterceptionDesktop::logLines()
{
    platform.scheduler().runPosted();
    const QByteArray content = platform.files().content(m_log->filePath()).value_or(QByteArray());
    QStringList lines = QString::fromUtf8(content).split(u'\n', Qt::SkipEmptyParts);
    lines.replaceInStrings(QRegularExpression(QStringLiteral("^\\[\\] ")), QString());
    return lines;
}

} // namespace tarvin::test
