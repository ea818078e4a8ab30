#pragma once

#include "endtoend/support/ChildProcess.h"

#include <memory>
#include <optional>
#include <string>

namespace tarvin::endtoend {

/// A private X server without a screen, on a display of its own that only this machine can reach. Starts with the US
/// layout.
class XServer
{
public:
    enum class Kind {
        virtualFramebuffer, ///< Xvfb, with one keyboard
        dummyXorg, ///< the real Xorg on a dummy screen, with two keyboards and the one that the tap daemon posts on
        bareXorg, ///< the same where no session has set a keymap: posted keys are counted in another way than pressed
                  ///< ones
    };

    /// Why the machine has no such server, in words for a skipped test; empty if it has.
    [[nodiscard]] static std::optional<std::string> lack(Kind kind);

    /// Returns when the server is ready.
    /// @param displayNumber which display to serve; empty for any free one
    explicit XServer(Kind kind = Kind::virtualFramebuffer, std::optional<int> displayNumber = {});
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;
    XServer(XServer&&) = delete;
    XServer& operator=(XServer&&) = delete;

    /// As DISPLAY wants it.
    [[nodiscard]] std::string display() const { return ":" + std::to_string(m_displayNumber); }
    [[nodiscard]] int displayNumber() const { return m_displayNumber; }
    /// The names of the devices that `PhysicalKeyboard` presses keys on.
    [[nodiscard]] const char* keyboardName() const;
    static constexpr const char* secondKeyboardName = "Second keyboard";
    static constexpr const char* postingKeyboardName = "Tarvin posted keys";

    /// Gives every keyboard another layout.
    void setLayout(const std::string& layout, const std::string& variant = {}, const std::string& option = {}) const;

private:
    Kind m_kind;
    int m_displayNumber = -1;
    std::string m_directory; ///< of the server's own files; empty if it has none
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace tarvin::endtoend
