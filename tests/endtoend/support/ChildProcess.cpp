#include "endtoend/support/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

namespace tarvin::endtoend {

namespace {

struct Descriptors
{
    int input = -1; ///< -1 for nothing to read
    int output = -1;
    int inherited = -1;
};

[[noreturn]] void becomeProgram(
    const std::vector<std::string>& command, const ChildProcess::Environment& additions, const Descriptors& descriptors)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // Away from the terminal of the test, whose signals would stop the child and everything beside it.
    setsid();
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    const int nothing = open("/dev/null", O_RDWR | O_CLOEXEC);
    dup2(descriptors.input >= 0 ? descriptors.input : nothing, STDIN_FILENO);
    dup2(descriptors.output, STDOUT_FILENO);
    if (getenv("TARVIN_TEST_VERBOSE") == nullptr)
        dup2(nothing, STDERR_FILENO);
    if (descriptors.inherited >= 0)
        fcntl(descriptors.inherited, F_SETFD, 0);
    for (const auto& [name, value] : additions)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);
    execvp(arguments.front(), arguments.data());
    _exit(127);
}

} // namespace

bool ChildProcess::isInstalled(const std::string& program)
{
    if (program.find('/') != std::string::npos)
        return access(program.c_str(), X_OK) == 0;
    std::istringstream directories(getenv("PATH") == nullptr ? "" : getenv("PATH"));
    for (std::string directory; std::getline(directories, directory, ':');) {
        if (access((directory + "/" + program).c_str(), X_OK) == 0)
            return true;
    }
    return false;
}

ChildProcess::ChildProcess(
    const std::vector<std::string>& command, const Environment& additions, int inheritedDescriptor, Input input)
{
    std::array<int, 2> inputPipe{-1, -1};
    std::array<int, 2> outputPipe{};
    if (pipe2(outputPipe.data(), O_CLOEXEC) != 0 || (input == Input::lines && pipe2(inputPipe.data(), O_CLOEXEC) != 0))
        throw std::runtime_error("no pipe for " + command.front());
    m_processId = fork();
    if (m_processId == 0)
        becomeProgram(
            command, additions, {.input = inputPipe[0], .output = outputPipe[1], .inherited = inheritedDescriptor});
    close(outputPipe[1]);
    if (inputPipe[0] >= 0)
        close(inputPipe[0]);
    m_input = inputPipe[1];
    m_output = outputPipe[0];
}

ChildProcess::~ChildProcess()
{
    constexpr std::chrono::milliseconds grace{3000};
    if (m_input >= 0)
        close(m_input);
    if (!m_status) {
        sendSignal(SIGTERM);
        sendSignal(SIGCONT);
        if (!waitForEnd(grace)) {
            sendSignal(SIGKILL);
            waitpid(m_processId, nullptr, 0);
        }
    }
    close(m_output);
}

void ChildProcess::sendSignal(int signalNumber) const
{
    if (m_processId > 0 && !m_status)
        kill(m_processId, signalNumber);
}

void ChildProcess::writeLine(const std::string& line) const
{
    const std::string text = line + '\n';
    if (m_input >= 0 && write(m_input, text.data(), text.size()) < 0)
        throw std::runtime_error("the program reads no more");
}

std::optional<std::string> ChildProcess::readLine(std::chrono::milliseconds limit)
{
    return readLineFrom(m_output, m_unread, limit);
}

std::optional<int> ChildProcess::waitForEnd(std::chrono::milliseconds limit)
{
    const bool hasEnded = eventually(
        [this] {
            int status = 0;
            if (!m_status && waitpid(m_processId, &status, WNOHANG) == m_processId)
                m_status = status;
            return m_status.has_value();
        },
        limit);
    return hasEnded ? m_status : std::nullopt;
}

std::optional<std::string> readLineFrom(int descriptor, std::string& unread, std::chrono::milliseconds limit)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    for (;;) {
        if (const auto end = unread.find('\n'); end != std::string::npos) {
            std::string line = unread.substr(0, end);
            unread.erase(0, end + 1);
            return line;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now()).count();
        pollfd waiting{descriptor, POLLIN, 0};
        if (left <= 0 || poll(&waiting, 1, static_cast<int>(left)) <= 0)
            return std::nullopt;
        std::array<char, 512> buffer{};
        const ssize_t count = read(descriptor, buffer.data(), buffer.size());
        if (count <= 0)
            return std::nullopt;
        unread.append(buffer.data(), static_cast<std::size_t>(count));
    }
}

} // namespace tarvin::endtoend
