#pragma once

#include "endtoend/support/Patience.h"

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tarvin::endtoend {

/// A program that a test starts and that ends with it, however the test ends.
class ChildProcess
{
public:
    using Environment = std::vector<std::pair<std::string, std::string>>;

    /// Whether a program of that name can be started.
    [[nodiscard]] static bool isInstalled(const std::string& program);

    /// What the program finds on its standard input.
    enum class Input { nothing, lines };

    /// Starts the program with the environment of the test and the given additions.
    /// @param inheritedDescriptor stays open in the child under the same number; -1 for none
    explicit ChildProcess(const std::vector<std::string>& command, const Environment& additions = {},
        int inheritedDescriptor = -1, Input input = Input::nothing);
    /// Ends the program, gently at first.
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ChildProcess(ChildProcess&&) = delete;
    ChildProcess& operator=(ChildProcess&&) = delete;

    [[nodiscard]] pid_t processId() const { return m_processId; }
    void sendSignal(int signalNumber) const;
    /// Gives the program a line to read, if it takes lines.
    void writeLine(const std::string& line) const;
    /// The next line of the program's standard output, without its end; empty if none comes in time.
    [[nodiscard]] std::optional<std::string> readLine(std::chrono::milliseconds limit = patience);
    /// How the program ended, as waitpid tells it; empty if it runs longer than the limit.
    [[nodiscard]] std::optional<int> waitForEnd(std::chrono::milliseconds limit = patience);

private:
    pid_t m_processId = -1;
    int m_input = -1;
    int m_output = -1;
    std::string m_unread;
    std::optional<int> m_status;
};

/// The first line that comes through a pipe's end; empty if none comes in time.
[[nodiscard]] std::optional<std::string> readLineFrom(
    int descriptor, std::string& unread, std::chrono::milliseconds limit);

} // namespace tarvin::endtoend
