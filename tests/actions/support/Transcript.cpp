#include "actions/support/Transcript.h"

#include "interception/TriggerNotice.h"
#include "platform/simulated/Names.h"

#include <variant>

namespace tarvin::test {

namespace {

using namespace simulated;
using namespace std::chrono_literals;

QString flagsText(EventFlags flags)
{
    struct Name
    {
        EventFlags flag;
        QStringView text;
    };
    static constexpr Name names[] = {{EventFlags::control, u"control"}, {EventFlags::option, u"option"},
        {EventFlags::shift, u"shift"}, {EventFlags::command, u"command"}};
    QStringList parts;
    auto rest = static_cast<std::uint64_t>(flags);
    for (const Name& name : names) {
        if (containsAll(flags, name.flag)) {
            parts << name.text.toString();
            rest &= ~static_cast<std::uint64_t>(name.flag);
        }
    }
    if (rest != 0)
        parts << u"0x"_qs + QString::number(rest, 16);
    return parts.isEmpty() ? QString() : u' ' + parts.join(u'+');
}

QString locationText(TapLocation location)
{
    return location == TapLocation::session ? QString() : u" at the hid tap"_qs;
}

QString stateText(KeyState state)
{
    return state == KeyState::down ? u"down"_qs : u"up"_qs;
}

QString valueText(bool value)
{
    return value ? u"true"_qs : u"false"_qs;
}

QString valueText(Point point)
{
    return u"%1,%2"_qs.arg(point.x).arg(point.y);
}

QString valueText(Size size)
{
    return u"%1x%2"_qs.arg(size.width).arg(size.height);
}

QString refusalText(bool refused)
{
    return refused ? u" refused"_qs : QString();
}

struct LineOf
{
    QString operator()(const KeyPosted& key) const
    {
        QString line = stateText(key.state) + u' ' + QString::number(key.keyCode) + flagsText(key.flags);
        if (key.origin == KeystrokeOrigin::recorded)
            line += u" recorded";
        if (key.userData != selfPostedMarker)
            line += u" unmarked";
        return line + locationText(key.location);
    }
    QString operator()(const ClickPosted& click) const
    {
        return u"click %1 at %2,%3%4"_qs.arg(stateText(click.state))
            .arg(click.position.x)
            .arg(click.position.y)
            .arg(locationText(click.location));
    }
    QString operator()(const SystemKeyPosted& posted) const
    {
        return u"system %1 %2"_qs.arg(nameIn(systemKeyNames, posted.key),
            posted.motion == SystemKeyMotion::down ? QStringView(u"down") : QStringView(u"up"));
    }
    QString operator()(const ToolLaunched& launched) const
    {
        return (QStringList{u"tool"_qs, launched.tool} + launched.arguments).join(u' ');
    }
    QString operator()(const LoginWindowAsked& asked) const
    {
        return asked.event == PowerEvent::restart ? u"login window restart"_qs : u"login window shut down"_qs;
    }
    QString operator()(const AppleMenuPressed& pressed) const { return u"menu "_qs + pressed.title; }
    QString operator()(const WindowAttributeSet& set) const
    {
        const QString value = std::visit([](const auto& given) { return valueText(given); }, set.value);
        return u"set %1 %2 of %3%4"_qs.arg(set.attribute, value, set.window, refusalText(set.refused));
    }
    QString operator()(const WindowButtonPressed& pressed) const
    {
        return u"press %1 of %2%3"_qs.arg(pressed.button, pressed.window, refusalText(pressed.refused));
    }
    QString operator()(const WindowChanged& changed) const
    {
        return u"window %1 %2"_qs.arg(changed.title, nameIn(windowStepNames, changed.step));
    }
    QString operator()(const ApplicationOpened& opened) const { return u"open application "_qs + opened.path; }
    QString operator()(const PathOpened& opened) const { return u"open "_qs + opened.path; }
    QString operator()(const UrlOpened& opened) const { return u"url "_qs + opened.url; }
    QString operator()(const PasteboardSet& set) const
    {
        return u"clipboard "_qs + set.content.text + (set.content.isSecret ? u" secret"_qs : QString());
    }
    QString operator()(const ApplicationForceQuit& quit) const
    {
        return u"force terminate "_qs + quit.name + refusalText(!quit.accepted);
    }
    QString operator()(const ProcessKilled& killed) const { return u"kill "_qs + killed.name; }
    QString operator()(const ScriptRun& script) const { return u"script "_qs + script.source; }
    QString operator()(const NoticeChanged& change) const
    {
        return change.text ? u"notice "_qs + *change.text : QString();
    }
    QString operator()(const ApplicationActivated& activation) const { return u"activate "_qs + activation.name; }
    QString operator()(const ConsoleLine& console) const { return console.line; }
    QString operator()(const FrontApplicationChanged& /*change*/) const { return {}; }
    QString operator()(const PortMisused& misuse) const { return u"MISUSED "_qs + misuse.call; }
    QString operator()(const auto& /*other*/) const { return u"UNEXPECTED"_qs; }
};

} // namespace

void watchNotice(TriggerNotice& notice, SimulatedPlatform& platform)
{
    QObject::connect(&notice, &TriggerNotice::lastTriggeredInfoChanged, &notice,
        [&notice, &platform] { platform.effects().record(NoticeChanged{notice.lastTriggeredInfo()}); });
}

QStringList transcriptOf(SimulatedPlatform& platform, const std::function<void()>& deed)
{
    EffectLog& effects = platform.effects();
    effects.clear();
    const VirtualTime start = platform.scheduler().virtualTime();
    deed();
    platform.scheduler().advance(10s);
    QStringList lines;
    for (const Effect& effect : effects.effects()) {
        const QString line = std::visit(LineOf{}, effect.what);
        if (!line.isEmpty())
            lines << QString::number((effect.at - start) / 1ms) + u' ' + line;
    }
    return lines;
}

} // namespace tarvin::test
