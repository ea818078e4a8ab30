// Keys, single events, and the paths that carry them.

#include "app/simulate/InstructionReader.h"
#include "app/simulate/PressTable.h"

#include <limits>

namespace tarvin::simulate {

namespace {

using namespace std::chrono_literals;

constexpr simulated::VirtualTime usualHold = 50ms;

constexpr auto pressFormNames = std::to_array<simulated::NamedValue<PressForm>>({
    {PressForm::plain, u"plain"},
    {PressForm::printed, u"printed"},
});

constexpr auto disableReasonNames = std::to_array<simulated::NamedValue<DisableReason>>({
    {DisableReason::timeout, u"timeout"},
    {DisableReason::userInput, u"userInput"},
    {DisableReason::silent, u"silent"},
});

FieldType<std::int64_t> unsigned32()
{
    return field::integer(0, std::numeric_limits<std::uint32_t>::max());
}

Instruction readPress(FieldReader& fields)
{
    fields.expectOneOf({u"key"_qs, u"keyCode"_qs});
    const std::optional<FKey> key = fields.optional(u"key", field::fKey());
    const std::optional<KeyCode> keyCode = fields.optional(u"keyCode", field::keyCode());
    PressKey press;
    if (key)
        press.key = *key;
    else
        press.key = keyCode.value_or(KeyCode{0});
    press.form = fields.optionalOr(u"as", field::oneOf(pressFormNames), PressForm::plain);
    press.flags = fields.optionalOr(u"flags", field::eventFlags(), EventFlags::none);
    press.hold = fields.optionalOr(u"hold", field::milliseconds(), usualHold);
    if (press.form == PressForm::printed && !(key && isFunctionRowKey(*key)))
        fields.fail(u"\"as\": only F1 to F12 have a printed function; expected \"plain\""_qs);
    return press;
}

/// The two forms of a system-defined event: the raw number, or its parts.
SystemDefinedFields readSystemDefined(FieldReader& fields)
{
    SystemDefinedFields read;
    read.subtype = static_cast<std::int16_t>(fields.optionalOr(u"subtype",
        field::integer(std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()),
        std::int64_t{SystemDefinedFields::mediaKeySubtype}));
    fields.expectOneOf({u"data1"_qs, u"keyType"_qs});
    if (fields.has(u"data1")) {
        read.data1 = static_cast<std::uint32_t>(fields.required(u"data1", unsigned32()));
        return read;
    }
    const std::int64_t keyType =
        fields.required(u"keyType", field::integer(0, std::numeric_limits<std::uint16_t>::max()));
    const KeyState state = fields.required(u"state", field::oneOf(simulated::keyStateNames));
    const bool repeat = fields.optionalOr(u"repeat", field::boolean(), false);
    read.data1 = mediaKeyData(static_cast<std::uint32_t>(keyType), state, repeat);
    return read;
}

Instruction readEvent(FieldReader& fields)
{
    DeliverEvent delivery;
    delivery.path = fields.required(u"path", field::oneOf(simulated::inputPathNames));
    InputEvent& event = delivery.event;
    event.type = fields.required(u"type", field::oneOf(simulated::inputEventTypeNames));
    switch (event.type) {
    case InputEventType::keyDown:
    case InputEventType::keyUp:
    case InputEventType::flagsChanged:
        event.keyCode = fields.required(u"keyCode", field::keyCode());
        event.autorepeat = fields.optionalOr(u"repeat", field::boolean(), false) ? 1 : 0;
        break;
    case InputEventType::systemDefined:
        if (!fields.optionalOr(u"untranslatable", field::boolean(), false))
            event.systemDefined = readSystemDefined(fields);
        break;
    case InputEventType::tapDisabledByTimeout:
    case InputEventType::tapDisabledByUserInput:
        return delivery;
    }
    event.flags = fields.optionalOr(u"flags", field::eventFlags(), EventFlags::none);
    const bool marked = fields.optionalOr(u"marked", field::boolean(), false);
    const std::optional<std::int64_t> userData = fields.optional(u"userData",
        field::integer(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()));
    if (marked && userData)
        fields.fail(u"expected either \"marked\" or \"userData\""_qs);
    event.userData = marked ? selfPostedMarker : userData.value_or(0);
    return delivery;
}

Instruction readHidValue(FieldReader& fields)
{
    return DeliverHidValue{{
        .page = static_cast<std::uint32_t>(fields.required(u"page", unsigned32())),
        .usage = static_cast<std::uint32_t>(fields.required(u"usage", unsigned32())),
        .value = fields.required(u"value",
            field::integer(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max())),
    }};
}

Instruction readTap(FieldReader& fields)
{
    return SetTapAvailable{
        .location = fields.required(u"location", field::oneOf(simulated::tapLocationNames)),
        .available = fields.required(u"available", field::boolean()),
    };
}

Instruction readDisableTap(FieldReader& fields)
{
    return DisableTap{
        .location = fields.required(u"location", field::oneOf(simulated::tapLocationNames)),
        .reason = fields.optionalOr(u"reason", field::oneOf(disableReasonNames), DisableReason::timeout),
    };
}

Instruction readGlobalMonitor(FieldReader& fields)
{
    return SetGlobalMonitorAvailable{fields.required(u"available", field::boolean())};
}

Instruction readHidManager(FieldReader& fields)
{
    return SetHidManagerOpens{fields.required(u"opens", field::boolean())};
}

Instruction readPosting(FieldReader& fields)
{
    fields.expectOneOf({u"keyCode"_qs, u"clicks"_qs});
    static_cast<void>(fields.optional(u"clicks", field::onlyTrue()));
    return SetPostingPossible{.keyCode = fields.optional(u"keyCode", field::keyCode()),
        .possible = fields.required(u"possible", field::boolean())};
}

constexpr auto inputRows = std::to_array<InstructionRow>({
    {u"tap", Phase::either, readTap},
    {u"globalMonitor", Phase::either, readGlobalMonitor},
    {u"hidManager", Phase::either, readHidManager},
    {u"posting", Phase::either, readPosting},
    {u"press", Phase::running, readPress},
    {u"event", Phase::running, readEvent},
    {u"hidValue", Phase::running, readHidValue},
    {u"disableTap", Phase::running, readDisableTap},
});

} // namespace

std::span<const InstructionRow> inputInstructions()
{
    return inputRows;
}

} // namespace tarvin::simulate
