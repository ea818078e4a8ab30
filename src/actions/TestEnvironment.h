#pragma once

#include <QString>

#include <optional>

namespace tarvin {

class ProcessInfo;

/// Whether the program runs in test-safe mode, in which it sends no keystroke and does nothing to the machine that the
/// user would notice. Main thread only.
class TestEnvironment
{
public:
    explicit TestEnvironment(const ProcessInfo& processInfo);

    /// True when the mode is forced, or when the process looks like a test: by its name, by an argument that contains
    /// "test" anywhere (the path of the executable is one), or by where it is installed. Found afresh at each call.
    [[nodiscard]] bool isRunningInTestEnvironment() const { return cause().has_value(); }
    /// Why the mode holds, in words for the user; absent when it does not.
    [[nodiscard]] std::optional<QString> cause() const;

    /// Forced on, the mode holds whatever else is true.
    [[nodiscard]] bool suppressSystemPowerCommandsForTesting() const { return m_suppressSystemPowerCommandsForTesting; }
    void setSuppressSystemPowerCommandsForTesting(bool suppress) { m_suppressSystemPowerCommandsForTesting = suppress; }

private:
    const ProcessInfo& m_processInfo;
    bool m_suppressSystemPowerCommandsForTesting = false;
};

} // namespace tarvin
