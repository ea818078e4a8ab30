#pragma once

#include "tapd/engine/TapOutcome.h"
#include "tapd/engine/WayOutDetector.h"

#include <linux/input.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvin::tapd::test {

/// The code of a key by its name in the key code table.
[[nodiscard]] std::uint16_t codeOf(std::string_view name);
[[nodiscard]] std::string nameOf(std::uint16_t code);

/// Writes the events of a USB keyboard as the kernel records them. In words: "+a" is a press, "-a" a release, "~a" a
/// repeat, each a report of its own; "+a,+b" is one report of two keys; "10ms" lets time pass; "DROPPED" tells that
/// events were lost.
class RecordedKeyboard
{
public:
    [[nodiscard]] std::vector<input_event> record(std::string_view words);
    [[nodiscard]] EventTime now() const { return m_now; }

private:
    void append(std::uint16_t type, std::uint16_t code, std::int32_t value);
    void appendKey(std::string_view word);

    std::vector<input_event> m_events;
    EventTime m_now = std::chrono::seconds(100);
};

/// Re-emitted events in the same words, MSC_SCAN left out.
[[nodiscard]] std::string inWords(std::span<const input_event> events);
/// "+f5" for each key that was taken; "+summon" for the summon shortcut.
[[nodiscard]] std::string inWords(std::span<const TakenKey> keys);

} // namespace tarvin::tapd::test
