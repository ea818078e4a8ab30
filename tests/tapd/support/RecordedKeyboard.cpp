#include "tapd/support/RecordedKeyboard.h"

#include "platform/keycodes/KeyCodeTable.h"

#include <charconv>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace tarvin::tapd::test {

namespace {

constexpr std::string_view signs = "-+~";

std::string withSign(std::int32_t value, const std::string& name)
{
    return signs.at(static_cast<std::size_t>(value)) + name;
}

void addWord(std::string& words, const std::string& word, char separator)
{
    if (!words.empty())
        words += separator;
    words += word;
}

} // namespace

std::uint16_t codeOf(std::string_view name)
{
    if (name == "blank")
        return KEY_UNKNOWN;
    for (const KeyCodeRow& row : keyCodeTable) {
        if (row.name == name)
            return row.evdevCode;
    }
    throw std::out_of_range("no key is called " + std::string(name));
}

std::string nameOf(std::uint16_t code)
{
    if (code == KEY_UNKNOWN)
        return "blank";
    const KeyCodeRow* const row = keyRowOfEvdevCode(code);
    return row == nullptr ? std::to_string(code) : std::string(row->name);
}

std::vector<input_event> RecordedKeyboard::record(std::string_view words)
{
    m_events.clear();
    std::istringstream stream{std::string(words)};
    for (std::string word; stream >> word;) {
        if (word == "DROPPED") {
            append(EV_SYN, SYN_DROPPED, 0);
            continue;
        }
        if (word.ends_with("ms")) {
            int amount = 0;
            std::from_chars(word.data(), word.data() + word.size(), amount);
            m_now += std::chrono::milliseconds(amount);
            continue;
        }
        std::istringstream keys{word};
        for (std::string key; std::getline(keys, key, ',');)
            appendKey(key);
        append(EV_SYN, SYN_REPORT, word.front() == '~' ? 1 : 0);
    }
    return m_events;
}

void RecordedKeyboard::append(std::uint16_t type, std::uint16_t code, std::int32_t value)
{
    input_event event{};
    event.input_event_sec = m_now.count() / 1'000'000;
    event.input_event_usec = m_now.count() % 1'000'000;
    event.type = type;
    event.code = code;
    event.value = value;
    m_events.push_back(event);
}

void RecordedKeyboard::appendKey(std::string_view word)
{
    const auto value = static_cast<std::int32_t>(signs.find(word.front()));
    const std::uint16_t code = codeOf(word.substr(1));
    const KeyCodeRow* const row = keyRowOfEvdevCode(code);
    // The kernel's own repeats come without a scan code.
    if (value != 2 && row != nullptr)
        append(EV_MSC, MSC_SCAN, row->hidPage << 16 | row->hidUsage);
    append(EV_KEY, code, value);
}

std::string inWords(std::span<const input_event> events)
{
    std::string words;
    std::string report;
    for (const input_event& event : events) {
        if (event.type == EV_KEY)
            addWord(report, withSign(event.value, nameOf(event.code)), ',');
        else if (event.type == EV_SYN)
            addWord(words, std::exchange(report, {}), ' ');
    }
    if (!report.empty())
        addWord(words, report + "...", ' ');
    return words;
}

std::string inWords(std::span<const TakenKey> keys)
{
    std::string words;
    for (const TakenKey& key : keys) {
        const bool isSummon = key.subject == TakenKey::Subject::summonShortcut;
        addWord(words, withSign(key.value, isSummon ? "summon" : nameOf(key.code)), ' ');
    }
    return words;
}

} // namespace tarvin::tapd::test
