#pragma once

#include "endtoend/support/XClient.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace tarvin::endtoend {

/// One key event as an application got it.
struct RecordedKey
{
    bool isPress = false;
    std::uint8_t keycode = 0;
    std::uint16_t state = 0; ///< the modifiers before the event
    std::uint32_t time = 0; ///< of the server's clock, in milliseconds
    bool isSentByProgram = false; ///< not a key event of the server's making
};

/// An application with one window that takes the keyboard and writes down what it gets.
class RecordingClient
{
public:
    explicit RecordingClient(const std::string& display, const std::string& windowClass = "Recorder");

    [[nodiscard]] xcb_window_t window() const { return m_window; }
    /// Takes the keyboard and returns when it has it.
    void takeFocus();

    /// Reads what has come so far.
    void read();
    /// Reads, and writes the keys down: "+leftShift -leftShift"; a key without a name of ours is "#" and its keycode.
    [[nodiscard]] std::string keys();
    /// The same with the modifiers that each event carries: "+Control.c".
    [[nodiscard]] std::string keysWithModifiers();
    /// The same by what the keys mean in the keymap of this moment, as keysyms: "+ff51" for the left arrow.
    [[nodiscard]] std::string keysyms();
    [[nodiscard]] const std::vector<RecordedKey>& events() const { return m_keys; }
    /// How often the keyboard was lost or regained since the window took it.
    [[nodiscard]] int focusChanges() const { return m_focusChanges; }
    [[nodiscard]] int mappingChanges() const { return m_mappingChanges; }
    [[nodiscard]] bool hasFocus() const { return m_hasFocus; }
    void forget();
    /// Forgets the last events only.
    void dropLast(std::size_t count);

private:
    [[nodiscard]] static std::string nameOf(const RecordedKey& key);

    XClient m_client;
    xcb_window_t m_window = 0;
    std::vector<RecordedKey> m_keys;
    int m_focusChanges = 0;
    int m_mappingChanges = 0;
    bool m_hasFocus = false;
    bool m_isMapped = false;
};

} // namespace tarvin::endtoend
