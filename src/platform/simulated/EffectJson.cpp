#include "platform/simulated/EffectJson.h"

#include "model/FKey.h"
#include "model/FKeyLookup.h"
#include "platform/simulated/ActionEffectJson.h"
#include "platform/simulated/JsonLine.h"
#include "platform/simulated/Names.h"

#include <QJsonArray>

#include <ostream>

namespace tarvin::simulated {

namespace {

void addText(JsonLine& line, QStringView name, const std::optional<QString>& text)
{
    line.add(name, text ? QJsonValue(*text) : QJsonValue());
}

/// Only where there is one: most runs have no errors, and their lines stay short.
void addError(JsonLine& line, const std::optional<QString>& error)
{
    if (error)
        line.add(u"error", *error);
}

QJsonArray flagNames(EventFlags flags)
{
    QJsonArray names;
    for (const NamedValue<EventFlags>& row : eventFlagNames) {
        if (containsAll(flags, row.value))
            names.append(row.name.toString());
    }
    return names;
}

void addMarker(JsonLine& line, std::int64_t userData)
{
    line.add(u"marked", userData == selfPostedMarker);
    if (userData != selfPostedMarker && userData != 0)
        line.add(u"userData", QJsonValue(static_cast<qint64>(userData)));
}

void addKey(JsonLine& line, KeyCode keyCode)
{
    line.add(u"keyCode", keyCode);
    if (const std::optional<FKey> key = fromKeyCode(keyCode))
        line.add(u"key", rawValue(*key));
}

void addSystemDefined(JsonLine& line, const SystemDefinedFields& fields)
{
    line.add(u"subtype", fields.subtype);
    if (fields.subtype != SystemDefinedFields::mediaKeySubtype) {
        line.add(u"data1", QJsonValue(static_cast<qint64>(fields.data1)));
        return;
    }
    line.add(u"keyType", fields.keyType());
    if (const std::optional<FKey> key = fromSystemKeyType(fields.keyType()))
        line.add(u"key", rawValue(*key));
    line.add(u"state", nameIn(keyStateNames, fields.isDown() ? KeyState::down : KeyState::up));
    line.add(u"repeat", fields.isRepeat());
}

void addEvent(JsonLine& line, const InputEvent& event)
{
    line.add(u"type", nameIn(inputEventTypeNames, event.type));
    switch (event.type) {
    case InputEventType::keyDown:
    case InputEventType::keyUp:
    case InputEventType::flagsChanged:
        addKey(line, event.keyCode);
        line.add(u"repeat", event.autorepeat != 0);
        break;
    case InputEventType::systemDefined:
        if (event.systemDefined)
            addSystemDefined(line, *event.systemDefined);
        break;
    case InputEventType::tapDisabledByTimeout:
    case InputEventType::tapDisabledByUserInput:
        return;
    }
    line.add(u"flags", flagNames(event.flags));
    addMarker(line, event.userData);
}

/// What each effect is called, one function per kind.
struct NameOf
{
    QStringView operator()(const EventDelivered&) const { return u"event"; }
    QStringView operator()(const HidValueDelivered&) const { return u"hidValue"; }
    QStringView operator()(const EventReceived&) const { return u"received"; }
    QStringView operator()(const TapChanged&) const { return u"tap"; }
    QStringView operator()(const MonitorChanged&) const { return u"monitor"; }
    QStringView operator()(const HidManagerChanged&) const { return u"hidManager"; }
    QStringView operator()(const ConsumedKeysPublished&) const { return u"consumedKeys"; }
    QStringView operator()(const KeyPosted&) const { return u"keyPosted"; }
    QStringView operator()(const ClickPosted&) const { return u"clickPosted"; }
    QStringView operator()(const PermissionPrompted&) const { return u"permissionPrompt"; }
    QStringView operator()(const ScriptRun&) const { return u"script"; }
    QStringView operator()(const ToolLaunched&) const { return u"tool"; }
    QStringView operator()(const SystemPreferenceSet&) const { return u"systemPreference"; }
    QStringView operator()(const SystemPreferenceSynchronized&) const { return u"systemPreferencesSynchronized"; }
    QStringView operator()(const ChangeAnnounced&) const { return u"announcement"; }
    QStringView operator()(const UrlOpened&) const { return u"url"; }
    QStringView operator()(const ApplicationActivated&) const { return u"activate"; }
    QStringView operator()(const FrontApplicationChanged&) const { return u"frontApplication"; }
    QStringView operator()(const FileChanged& file) const { return nameIn(fileStepNames, file.step); }
    QStringView operator()(const SettingStored& setting) const
    {
        return setting.value.isUndefined() ? u"settingRemoved" : u"setting";
    }
    QStringView operator()(const PasteboardSet&) const { return u"clipboard"; }
    QStringView operator()(const ConsoleLine&) const { return u"console"; }
    QStringView operator()(const LoginItemChanged&) const { return u"loginItem"; }
    QStringView operator()(const ActivationPolicySet&) const { return u"activationPolicy"; }
    QStringView operator()(const SelfActivated&) const { return u"activateSelf"; }
    QStringView operator()(const WindowChanged&) const { return u"window"; }
    QStringView operator()(const PanelPlaced&) const { return u"panelPlaced"; }
    QStringView operator()(const PanelFaded&) const { return u"panelFade"; }
    QStringView operator()(const ShellPatched&) const { return u"shell"; }
    QStringView operator()(const Terminated&) const { return u"terminated"; }
    QStringView operator()(const SoundPlayed&) const { return u"sound"; }
    QStringView operator()(const HapticTapped&) const { return u"haptic"; }
    QStringView operator()(const NoticeChanged& notice) const { return notice.text ? u"notice" : u"noticeCleared"; }
    QStringView operator()(const KeycapAnimated&) const { return u"keycap"; }
    QStringView operator()(const StateChanged&) const { return u"state"; }
    QStringView operator()(const PortMisused&) const { return u"misuse"; }
    QStringView operator()(const auto& effect) const { return nameOf(effect); }
};

/// The fields of each effect, one function per kind.
struct AddFields
{
    JsonLine& line;

    void operator()(const EventDelivered& delivered) const
    {
        line.add(u"path", nameIn(inputPathNames, delivered.path));
        addEvent(line, delivered.event);
        line.add(u"outcome", nameIn(eventOutcomeNames, delivered.outcome));
    }
    void operator()(const HidValueDelivered& delivered) const
    {
        line.add(u"page", QJsonValue(static_cast<qint64>(delivered.value.page)))
            .add(u"usage", QJsonValue(static_cast<qint64>(delivered.value.usage)))
            .add(u"value", QJsonValue(static_cast<qint64>(delivered.value.value)))
            .add(u"outcome", nameIn(eventOutcomeNames, delivered.outcome));
    }
    void operator()(const EventReceived& received) const
    {
        addText(line, u"application", received.application);
        addEvent(line, received.event);
    }
    void operator()(const TapChanged& tap) const
    {
        line.add(u"location", nameIn(tapLocationNames, tap.location)).add(u"step", nameIn(tapStepNames, tap.step));
    }
    void operator()(const MonitorChanged& monitor) const
    {
        line.add(u"path", nameIn(inputPathNames, monitor.path)).add(u"step", nameIn(monitorStepNames, monitor.step));
    }
    void operator()(const HidManagerChanged& manager) const
    {
        line.add(u"step", nameIn(hidManagerStepNames, manager.step));
    }
    void operator()(const ConsumedKeysPublished& published) const
    {
        QJsonArray keys;
        for (const FKey key : published.keys)
            keys.append(rawValue(key).toString());
        line.add(u"keys", keys).add(u"summonShortcut", nameIn(summonShortcutNames, published.summon));
    }
    void operator()(const KeyPosted& key) const
    {
        line.add(u"keyCode", key.keyCode)
            .add(u"state", nameIn(keyStateNames, key.state))
            .add(u"flags", flagNames(key.flags));
        addMarker(line, key.userData);
        line.add(u"location", nameIn(tapLocationNames, key.location))
            .add(u"origin", nameIn(keystrokeOriginNames, key.origin));
        addDropped(key.dropped);
    }
    void operator()(const ClickPosted& click) const
    {
        line.add(u"x", click.position.x)
            .add(u"y", click.position.y)
            .add(u"state", nameIn(keyStateNames, click.state))
            .add(u"location", nameIn(tapLocationNames, click.location));
        addDropped(click.dropped);
    }
    void operator()(const PermissionPrompted&) const { }
    void operator()(const ScriptRun& script) const
    {
        line.add(u"source", script.source);
        addError(line, script.error);
    }
    void operator()(const ToolLaunched& launched) const
    {
        line.add(u"tool", launched.tool).add(u"arguments", QJsonArray::fromStringList(launched.arguments));
        addError(line, launched.error);
    }
    void operator()(const SystemPreferenceSet& preference) const
    {
        line.add(u"key", preference.key).add(u"value", preference.value);
    }
    void operator()(const SystemPreferenceSynchronized&) const { }
    void operator()(const ChangeAnnounced& announced) const { line.add(u"name", announced.name); }
    void operator()(const UrlOpened& opened) const { line.add(u"url", opened.url); }
    void operator()(const ApplicationActivated& activated) const
    {
        line.add(u"process", activated.process).add(u"name", activated.name);
    }
    void operator()(const FrontApplicationChanged& front) const
    {
        addText(line, u"name", front.name);
        addText(line, u"bundleIdentifier", front.bundleIdentifier);
    }
    void operator()(const FileChanged& file) const
    {
        line.add(u"path", file.path);
        if (file.step != FileStep::directoryCreated)
            line.add(u"content", QString::fromUtf8(file.content));
        addError(line, file.error);
    }
    void operator()(const SettingStored& setting) const
    {
        line.add(u"key", setting.key);
        if (!setting.value.isUndefined())
            line.add(u"value", setting.value);
    }
    void operator()(const PasteboardSet& set) const
    {
        line.add(u"text", set.content.text);
        if (set.content.isSecret)
            line.add(u"secret", true);
    }
    void operator()(const ConsoleLine& console) const { line.add(u"line", console.line); }
    void operator()(const LoginItemChanged& item) const
    {
        line.add(u"enabled", item.enabled);
        addError(line, item.refusal);
    }
    void operator()(const ActivationPolicySet& set) const
    {
        line.add(u"policy", nameIn(activationPolicyNames, set.policy));
    }
    void operator()(const SelfActivated& activated) const
    {
        line.add(u"way", nameIn(ownActivationNames, activated.way));
    }
    void operator()(const WindowChanged& window) const
    {
        line.add(u"title", window.title).add(u"step", nameIn(windowStepNames, window.step));
    }
    void operator()(const PanelPlaced& panel) const
    {
        line.add(u"title", panel.title)
            .add(u"x", panel.frame.origin.x)
            .add(u"y", panel.frame.origin.y)
            .add(u"width", panel.frame.size.width)
            .add(u"height", panel.frame.size.height);
    }
    void operator()(const PanelFaded& panel) const
    {
        line.add(u"title", panel.title)
            .add(u"alpha", panel.alpha)
            .add(u"duration", QJsonValue(static_cast<qint64>(panel.duration.count())));
    }
    void operator()(const ShellPatched& patched) const { line.add(u"step", nameIn(shellPatchNames, patched.patch)); }
    void operator()(const Terminated&) const { }
    void operator()(const SoundPlayed& played) const
    {
        line.add(u"sound", QJsonValue(static_cast<qint64>(played.sound)));
        if (played.file)
            line.add(u"file", *played.file);
    }
    void operator()(const HapticTapped&) const { }
    void operator()(const NoticeChanged& notice) const
    {
        if (notice.text)
            line.add(u"text", *notice.text);
    }
    void operator()(const KeycapAnimated& keycap) const
    {
        line.add(u"key", keycap.keyId).add(u"step", nameIn(keycapStepNames, keycap.step));
    }
    void operator()(const StateChanged& state) const { line.add(u"name", state.name).add(u"value", state.value); }
    void operator()(const PortMisused& misuse) const { line.add(u"call", misuse.call).add(u"rule", misuse.rule); }
    void operator()(const auto& effect) const { addFields(line, effect); }

private:
    void addDropped(bool dropped) const
    {
        if (dropped)
            line.add(u"dropped", true);
    }
};

template <typename... Kinds> QStringList namesOfDefaults(std::variant<Kinds...>*)
{
    return {effectName(Kinds{}).toString()...};
}

} // namespace

QStringView effectName(const EffectKind& what)
{
    return std::visit(NameOf{}, what);
}

QStringList allEffectNames()
{
    QStringList names = namesOfDefaults(static_cast<EffectKind*>(nullptr));
    names << effectName(NoticeChanged{QString()}).toString()
          << effectName(SettingStored{QString(), QJsonValue()}).toString() << namesIn(fileStepNames);
    names.removeDuplicates();
    names.sort();
    return names;
}

JsonLine startLine(VirtualTime at, QStringView effect)
{
    JsonLine line;
    line.add(u"at", static_cast<double>(at.count()) / 1000.0).add(u"effect", effect);
    return line;
}

QByteArray toJsonLine(const Effect& effect)
{
    JsonLine line = startLine(effect.at, effectName(effect.what));
    std::visit(AddFields{line}, effect.what);
    return line.text();
}

void PrintTo(const Effect& effect, std::ostream* stream)
{
    *stream << toJsonLine(effect).toStdString();
}

} // namespace tarvin::simulated
