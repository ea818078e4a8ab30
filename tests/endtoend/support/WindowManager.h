#pragma once

#include "endtoend/support/ChildProcess.h"

#include <memory>
#include <optional>
#include <string>

namespace tarvin::endtoend {

/// A real window manager on a server under test.
class WindowManager
{
public:
    /// Why the machine has none, in words for a skipped test; empty if it has.
    [[nodiscard]] static std::optional<std::string> lack();

    /// Returns when the manager manages.
    explicit WindowManager(const std::string& display);
    ~WindowManager();
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;
    WindowManager(WindowManager&&) = delete;
    WindowManager& operator=(WindowManager&&) = delete;

    /// Ends the manager without a word.
    void crash();

private:
    std::string m_directory; ///< its home, so that no setting of the user reaches it
    std::unique_ptr<ChildProcess> m_process;
};

} // namespace tarvin::endtoend
