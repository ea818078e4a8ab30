#include "platform/simulated/ActionEffectJson.h"

#include "platform/macrequests/LoginWindowEvent.h"
#include "platform/macrequests/SystemKeyEvent.h"
#include "platform/simulated/Names.h"

#include <QJsonObject>

#include <array>

namespace tarvin::simulated {

namespace {

/// The letters of a four-letter code.
QString lettersOf(std::uint32_t code)
{
    const std::array<char, 4> letters = {static_cast<char>(code >> 24), static_cast<char>(code >> 16),
        static_cast<char>(code >> 8), static_cast<char>(code)};
    return QString::fromLatin1(letters.data(), letters.size());
}

QJsonValue jsonOf(bool value)
{
    return value;
}

QJsonValue jsonOf(Point point)
{
    return QJsonObject{{u"x"_qs, point.x}, {u"y"_qs, point.y}};
}

QJsonValue jsonOf(Size size)
{
    return QJsonObject{{u"width"_qs, size.width}, {u"height"_qs, size.height}};
}

void addRefused(JsonLine& line, bool refused)
{
    if (refused)
        line.add(u"refused", true);
}

} // namespace

void addFields(JsonLine& line, const SystemKeyPosted& posted)
{
    const SystemKeyEvent event = systemKeyEvent(posted.key, posted.motion);
    line.add(u"key", nameIn(systemKeyNames, posted.key))
        .add(u"state", posted.motion == SystemKeyMotion::down ? QStringView(u"down") : QStringView(u"up"))
        .add(u"type", static_cast<int>(event.type))
        .add(u"x", 0.0)
        .add(u"y", 0.0)
        .add(u"modifierFlags", static_cast<int>(event.modifierFlags))
        .add(u"windowNumber", event.windowNumber)
        .add(u"subtype", event.subtype)
        .add(u"data1", event.data1)
        .add(u"data2", event.data2)
        .add(u"location", nameIn(tapLocationNames, TapLocation::session));
    if (posted.dropped)
        line.add(u"dropped", true);
}

void addFields(JsonLine& line, const LoginWindowAsked& asked)
{
    const LoginWindowEvent event = loginWindowEvent(asked.event);
    line.add(u"target", event.targetIdentifier)
        .add(u"eventClass", lettersOf(event.eventClass))
        .add(u"eventID", lettersOf(event.eventId))
        .add(u"returnID", event.returnId)
        .add(u"transactionID", event.transactionId)
        .add(u"options", static_cast<int>(event.sendOptions))
        .add(u"timeout", static_cast<double>(event.timeout.count()));
}

void addFields(JsonLine& line, const AppleMenuPressed& pressed)
{
    line.add(u"title", pressed.title);
}

void addFields(JsonLine& line, const WindowAttributeSet& set)
{
    line.add(u"process", set.process)
        .add(u"window", set.window)
        .add(u"attribute", set.attribute)
        .add(u"value", std::visit([](const auto& value) { return jsonOf(value); }, set.value));
    addRefused(line, set.refused);
}

void addFields(JsonLine& line, const WindowButtonPressed& pressed)
{
    line.add(u"process", pressed.process).add(u"window", pressed.window).add(u"button", pressed.button);
    addRefused(line, pressed.refused);
}

void addFields(JsonLine& line, const ApplicationOpened& opened)
{
    line.add(u"path", opened.path);
}

void addFields(JsonLine& line, const PathOpened& opened)
{
    line.add(u"path", opened.path);
}

void addFields(JsonLine& line, const ApplicationForceQuit& quit)
{
    line.add(u"process", quit.process).add(u"name", quit.name).add(u"accepted", quit.accepted);
}

void addFields(JsonLine& line, const ProcessKilled& killed)
{
    line.add(u"process", killed.process).add(u"name", killed.name);
}

} // namespace tarvin::simulated
