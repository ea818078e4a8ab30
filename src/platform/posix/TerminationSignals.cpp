#include "platform/posix/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace tarvin::posix {

namespace {

constexpr std::array terminationSignals{SIGTERM, SIGINT, SIGHUP};

/// The way from the handler, which may do next to nothing, to the event loop.
std::array<int, 2> signalPipe{-1, -1};

void writeToPipe(int)
{
    const int savedError = errno;
    const char byte = 0;
    (void)!write(signalPipe[1], &byte, 1);
    errno = savedError;
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void()> onSignal)
{
    signal(SIGPIPE, SIG_IGN);
    if (pipe(signalPipe.data()) != 0)
        return;
    for (const int end : signalPipe) {
        (void)fcntl(end, F_SETFD, FD_CLOEXEC);
        (void)fcntl(end, F_SETFL, O_NONBLOCK);
    }
    m_notifier = std::make_unique<QSocketNotifier>(signalPipe[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [onSignal = std::move(onSignal)] {
        char byte = 0;
        if (read(signalPipe[0], &byte, 1) == 1)
            onSignal();
    });
    for (const int number : terminationSignals) {
        struct sigaction previous
        { };
        sigaction(number, nullptr, &previous);
        if (previous.sa_handler == SIG_IGN)
            continue;
        struct sigaction action
        { };
        action.sa_handler = &writeToPipe;
        action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
        sigaction(number, &action, nullptr);
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int number : terminationSignals) {
        struct sigaction current
        { };
        sigaction(number, nullptr, &current);
        if (current.sa_handler == &writeToPipe)
            signal(number, SIG_DFL);
    }
    m_notifier.reset();
    for (int& descriptor : signalPipe) {
        if (descriptor >= 0)
            close(descriptor);
        descriptor = -1;
    }
}

} // namespace tarvin::posix
