#include "platform/macos/translation/EventRecord.h"

#include <algorithm>
#include <array>

namespace tarvin::macos {

namespace {

constexpr auto knownTypes = std::to_array({InputEventType::keyDown, InputEventType::keyUp, InputEventType::flagsChanged,
    InputEventType::systemDefined, InputEventType::tapDisabledByTimeout, InputEventType::tapDisabledByUserInput});

constexpr EventFlags knownFlags =
    EventFlags::shift | EventFlags::control | EventFlags::option | EventFlags::command | EventFlags::function;

} // namespace

EventFlags eventFlagsOf(std::uint64_t flags) noexcept
{
    return static_cast<EventFlags>(flags) & knownFlags;
}

std::optional<InputEventType> eventTypeOf(std::uint32_t type) noexcept
{
    const auto* const found = std::ranges::find(knownTypes, static_cast<InputEventType>(type));
    return found == knownTypes.end() ? std::nullopt : std::optional(*found);
}

std::optional<InputEvent> inputEventOf(const EventRecord& record) noexcept
{
    const std::optional<InputEventType> type = eventTypeOf(record.type);
    if (!type)
        return std::nullopt;
    InputEvent event{
        .type = *type,
        .keyCode = static_cast<KeyCode>(record.keyCode),
        .flags = eventFlagsOf(record.flags),
        .autorepeat = record.autorepeat,
        .userData = record.userData,
    };
    if (*type == InputEventType::systemDefined && record.systemDefined) {
        event.systemDefined = SystemDefinedFields{.subtype = static_cast<std::int16_t>(record.systemDefined->subtype),
            // The upper half only repeats the sign.
            .data1 = static_cast<std::uint32_t>(record.systemDefined->data1)};
    }
    return event;
}

} // namespace tarvin::macos
