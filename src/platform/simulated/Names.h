#pragma once

#include "platform/simulated/Effect.h"

#include <QStringList>
#include <QStringView>

#include <array>
#include <optional>

namespace tarvin::simulated {

// The words by which scenarios and effects name the values of the ports.

template <typename Value> struct NamedValue
{
    Value value;
    QStringView name;
};

inline constexpr auto tapLocationNames = std::to_array<NamedValue<TapLocation>>({
    {TapLocation::hid, u"hid"},
    {TapLocation::session, u"session"},
});

inline constexpr auto inputPathNames = std::to_array<NamedValue<InputPath>>({
    {InputPath::hidTap, u"hidTap"},
    {InputPath::sessionTap, u"sessionTap"},
    {InputPath::globalMonitor, u"globalMonitor"},
    {InputPath::localMonitor, u"localMonitor"},
});

inline constexpr auto inputEventTypeNames = std::to_array<NamedValue<InputEventType>>({
    {InputEventType::keyDown, u"keyDown"},
    {InputEventType::keyUp, u"keyUp"},
    {InputEventType::flagsChanged, u"flagsChanged"},
    {InputEventType::systemDefined, u"systemDefined"},
    {InputEventType::tapDisabledByTimeout, u"tapDisabledByTimeout"},
    {InputEventType::tapDisabledByUserInput, u"tapDisabledByUserInput"},
});

inline constexpr auto eventFlagNames = std::to_array<NamedValue<EventFlags>>({
    {EventFlags::shift, u"shift"},
    {EventFlags::control, u"control"},
    {EventFlags::option, u"option"},
    {EventFlags::command, u"command"},
    {EventFlags::function, u"function"},
});

inline constexpr auto keyStateNames = std::to_array<NamedValue<KeyState>>({
    {KeyState::down, u"down"},
    {KeyState::up, u"up"},
});

inline constexpr auto keystrokeOriginNames = std::to_array<NamedValue<KeystrokeOrigin>>({
    {KeystrokeOrigin::builtIn, u"builtIn"},
    {KeystrokeOrigin::recorded, u"recorded"},
});

inline constexpr auto activationPolicyNames = std::to_array<NamedValue<ActivationPolicy>>({
    {ActivationPolicy::regular, u"regular"},
    {ActivationPolicy::accessory, u"accessory"},
    {ActivationPolicy::prohibited, u"prohibited"},
});

inline constexpr auto eventOutcomeNames = std::to_array<NamedValue<EventOutcome>>({
    {EventOutcome::passed, u"passed"},
    {EventOutcome::consumed, u"consumed"},
    {EventOutcome::observed, u"observed"},
    {EventOutcome::unseen, u"unseen"},
});

inline constexpr auto tapStepNames = std::to_array<NamedValue<TapStep>>({
    {TapStep::created, u"created"},
    {TapStep::refused, u"refused"},
    {TapStep::attached, u"attached"},
    {TapStep::detached, u"detached"},
    {TapStep::enabled, u"enabled"},
    {TapStep::disabled, u"disabled"},
    {TapStep::disabledBySystem, u"disabledBySystem"},
    {TapStep::removed, u"removed"},
});

inline constexpr auto monitorStepNames = std::to_array<NamedValue<MonitorStep>>({
    {MonitorStep::added, u"added"},
    {MonitorStep::refused, u"refused"},
    {MonitorStep::removed, u"removed"},
});

inline constexpr auto hidManagerStepNames = std::to_array<NamedValue<HidManagerStep>>({
    {HidManagerStep::opened, u"opened"},
    {HidManagerStep::openFailed, u"openFailed"},
    {HidManagerStep::closed, u"closed"},
});

inline constexpr auto summonShortcutNames = std::to_array<NamedValue<SummonShortcut>>({
    {SummonShortcut::released, u"released"},
    {SummonShortcut::taken, u"taken"},
});

inline constexpr auto fileStepNames = std::to_array<NamedValue<FileStep>>({
    {FileStep::directoryCreated, u"directoryCreated"},
    {FileStep::written, u"fileWritten"},
    {FileStep::appended, u"fileAppended"},
    {FileStep::writeFailed, u"fileWriteFailed"},
    {FileStep::appendFailed, u"fileAppendFailed"},
});

inline constexpr auto ownActivationNames = std::to_array<NamedValue<OwnActivation>>({
    {OwnActivation::allWindows, u"allWindows"},
    {OwnActivation::ignoringOtherApps, u"ignoringOtherApps"},
});

inline constexpr auto windowStepNames = std::to_array<NamedValue<WindowStep>>({
    {WindowStep::created, u"created"},
    {WindowStep::setVisible, u"setVisible"},
    {WindowStep::miniaturized, u"miniaturized"},
    {WindowStep::deminiaturized, u"deminiaturized"},
    {WindowStep::madeKeyAndFront, u"madeKeyAndFront"},
    {WindowStep::orderedFrontRegardless, u"orderedFrontRegardless"},
    {WindowStep::orderedOut, u"orderedOut"},
});

inline constexpr auto systemKeyNames = std::to_array<NamedValue<SystemKey>>({
    {SystemKey::soundUp, u"soundUp"},
    {SystemKey::soundDown, u"soundDown"},
    {SystemKey::brightnessUp, u"brightnessUp"},
    {SystemKey::brightnessDown, u"brightnessDown"},
    {SystemKey::mute, u"mute"},
    {SystemKey::play, u"play"},
    {SystemKey::next, u"next"},
    {SystemKey::previous, u"previous"},
});

inline constexpr auto shellPatchNames = std::to_array<NamedValue<ShellPatch>>({
    {ShellPatch::unhandledKeysSilenced, u"unhandledKeysSilenced"},
    {ShellPatch::minimizeRequestsLetThrough, u"minimizeRequestsLetThrough"},
});

inline constexpr auto keycapStepNames = std::to_array<NamedValue<KeycapStep>>({
    {KeycapStep::pressed, u"pressed"},
    {KeycapStep::released, u"released"},
});

/// Empty for a value that the table does not hold.
template <typename Value, std::size_t count>
[[nodiscard]] constexpr QStringView nameIn(const std::array<NamedValue<Value>, count>& table, Value value) noexcept
{
    for (const NamedValue<Value>& row : table) {
        if (row.value == value)
            return row.name;
    }
    return {};
}

template <typename Value, std::size_t count>
[[nodiscard]] constexpr std::optional<Value> valueIn(
    const std::array<NamedValue<Value>, count>& table, QStringView name) noexcept
{
    for (const NamedValue<Value>& row : table) {
        if (row.name == name)
            return row.value;
    }
    return std::nullopt;
}

/// Every name of the table, in its order.
template <typename Value, std::size_t count>
[[nodiscard]] QStringList namesIn(const std::array<NamedValue<Value>, count>& table)
{
    QStringList names;
    for (const NamedValue<Value>& row : table)
        names.append(row.name.toString());
    return names;
}

} // namespace tarvin::simulated
