#include "tapd/engine/TapEngine.h"

#include "tapd/engine/TappableKeys.h"

#include <algorithm>

namespace tarvin::tapd {

namespace {

constexpr std::int32_t up = 0;
constexpr std::int32_t down = 1;
constexpr std::int32_t repeated = 2;

/// A key that types nothing and that no desktop knows.
constexpr std::uint16_t blankCode = KEY_UNKNOWN;

} // namespace

KeyboardId TapEngine::attach(Output output)
{
    m_keyboards[++m_lastId].output = output;
    return m_lastId;
}

void TapEngine::detach(KeyboardId id, TapOutcome& outcome)
{
    Keyboard& keyboard = m_keyboards.at(id);
    keyboard.scan.reset();
    for (std::size_t code = 0; code < keyboard.passed.size(); ++code) {
        if (keyboard.passed[code] || keyboard.taken[code])
            release(keyboard, static_cast<std::uint16_t>(code), outcome);
    }
    endReport(keyboard, outcome);
    m_keyboards.erase(id);
}

void TapEngine::feed(KeyboardId id, std::span<const input_event> events, TapOutcome& outcome)
{
    Keyboard& keyboard = m_keyboards.at(id);
    for (const input_event& event : events) {
        if (keyboard.isOutOfStep)
            return;
        switch (event.type) {
        case EV_KEY:
            handleKey(keyboard, event.code, event.value, outcome);
            keyboard.wayOut.noteKeys(keyboard.passed | keyboard.taken, timeOf(event));
            break;
        case EV_MSC:
            if (event.code == MSC_SCAN)
                keyboard.scan = event.value;
            break;
        case EV_SYN:
            if (event.code == SYN_DROPPED)
                keyboard.isOutOfStep = true;
            else if (event.code == SYN_REPORT)
                endReport(keyboard, outcome);
            break;
        case EV_REL: // the wheel of a keyboard
            outcome.emitted.append(event.type, event.code, event.value);
            keyboard.hasOpenReport = true;
            break;
        default:
            // Above all the echo of the lights that we switch ourselves.
            break;
        }
    }
}

void TapEngine::resynchronise(KeyboardId id, const KeyBits& downNow, EventTime time, TapOutcome& outcome)
{
    Keyboard& keyboard = m_keyboards.at(id);
    keyboard.isOutOfStep = false;
    keyboard.scan.reset();
    // What went up first, so that a modifier that was released does not colour what was pressed after it.
    for (std::size_t code = 0; code < downNow.size(); ++code) {
        if (!downNow[code] && (keyboard.passed[code] || keyboard.taken[code]))
            release(keyboard, static_cast<std::uint16_t>(code), outcome);
    }
    for (std::size_t code = 0; code < downNow.size(); ++code) {
        if (downNow[code])
            press(keyboard, static_cast<std::uint16_t>(code), outcome);
    }
    endReport(keyboard, outcome);
    keyboard.wayOut.noteKeys(downNow, time);
}

void TapEngine::handleKey(Keyboard& keyboard, std::uint16_t code, std::int32_t value, TapOutcome& outcome)
{
    if (code >= keyboard.passed.size())
        return;
    switch (value) {
    case down:
        press(keyboard, code, outcome);
        break;
    case up:
        release(keyboard, code, outcome);
        break;
    case repeated:
        if (keyboard.taken[code])
            take(keyboard, code, repeated, outcome);
        else if (keyboard.passed[code])
            pass(keyboard, code, repeated, outcome);
        break;
    default:
        break;
    }
    keyboard.scan.reset();
}

void TapEngine::press(Keyboard& keyboard, std::uint16_t code, TapOutcome& outcome)
{
    if (keyboard.passed[code] || keyboard.taken[code])
        return;
    if (isToBeTaken(code)) {
        keyboard.taken.set(code);
        coverModifiers(keyboard, outcome);
        take(keyboard, code, down, outcome);
    } else {
        keyboard.passed.set(code);
        if (keysOf(keyboard).press(code))
            pass(keyboard, code, down, outcome);
    }
}

void TapEngine::release(Keyboard& keyboard, std::uint16_t code, TapOutcome& outcome)
{
    if (keyboard.taken[code]) {
        keyboard.taken.reset(code);
        take(keyboard, code, up, outcome);
    } else if (keyboard.passed[code]) {
        keyboard.passed.reset(code);
        if (keysOf(keyboard).release(code))
            pass(keyboard, code, up, outcome);
    }
}

void TapEngine::pass(Keyboard& keyboard, std::uint16_t code, std::int32_t value, TapOutcome& outcome)
{
    outcome.emitted.append(EV_KEY, code, value);
    keyboard.hasOpenReport = true;
}

void TapEngine::take(const Keyboard& keyboard, std::uint16_t code, std::int32_t value, TapOutcome& outcome)
{
    const auto scan = static_cast<std::uint32_t>(keyboard.scan.value_or(0));
    if (const auto key = tappableKey(code))
        outcome.take({.key = *key, .code = code, .value = value, .scan = scan});
    else if (value != up)
        outcome.take({.subject = TakenKey::Subject::summonShortcut, .code = code, .value = value, .scan = scan});
}

void TapEngine::endReport(Keyboard& keyboard, TapOutcome& outcome)
{
    if (keyboard.hasOpenReport)
        outcome.emitted.endReport();
    keyboard.hasOpenReport = false;
    keyboard.scan.reset();
}

/// Applications and desktops would read the release of Alt or Super with nothing in between as a tap of its own: a menu
/// bar takes the keyboard, an overview opens.
void TapEngine::coverModifiers(Keyboard& keyboard, TapOutcome& outcome) const
{
    if (!isOptionDown() && !isCommandDown())
        return;
    for (const std::int32_t value : {down, up}) {
        outcome.emitted.append(EV_KEY, blankCode, value);
        outcome.emitted.endReport();
    }
    keyboard.hasOpenReport = false;
}

bool TapEngine::isToBeTaken(std::uint16_t code) const
{
    if (code == summonCode)
        return m_taken.takesSummon && isOptionDown() && isCommandDown();
    const auto key = tappableKey(code);
    return key && (m_taken.keys >> *key & 1U) != 0;
}

bool TapEngine::isOptionDown() const
{
    return std::ranges::any_of(m_outputs, [](const OutputKeys& keys) {
        return keys.isAnyDown({KEY_LEFTALT, KEY_RIGHTALT});
    });
}

bool TapEngine::isCommandDown() const
{
    return std::ranges::any_of(m_outputs, [](const OutputKeys& keys) {
        return keys.isAnyDown({KEY_LEFTMETA, KEY_RIGHTMETA});
    });
}

bool TapEngine::isAtRest(KeyboardId id) const
{
    const Keyboard& keyboard = m_keyboards.at(id);
    return keyboard.passed.none() && keyboard.taken.none();
}

std::optional<EventTime> TapEngine::wayOutDeadline() const
{
    std::optional<EventTime> earliest;
    for (const auto& [id, keyboard] : m_keyboards) {
        const auto deadline = keyboard.wayOut.deadline();
        if (deadline && (!earliest || *deadline < *earliest))
            earliest = deadline;
    }
    return earliest;
}

bool TapEngine::isWayOutDue(EventTime now) const
{
    return std::ranges::any_of(m_keyboards, [now](const auto& each) { return each.second.wayOut.isDue(now); });
}

} // namespace tarvin::tapd
