#include "tapd/main/Guard.h"

#include "tapd/devices/UinputDevice.h"
#include "tapd/engine/EventBuffer.h"
#include "tapd/engine/TapEngine.h"
#include "tapd/main/MonotonicTime.h"

#include <linux/input.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <utility>

namespace tarvin::tapd {

using namespace std::chrono_literals;

namespace {

/// A stop this short only delays what is typed.
constexpr EventTime stopGrace = 250ms;
/// Far more than the slowest thing the daemon does without a sign of progress, which is to open or close one device.
constexpr EventTime longestTurn = 2s;
constexpr EventTime hangCheckInterval = 1s;

int milliseconds(EventTime time)
{
    return static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(std::max(time, EventTime(0))).count());
}

FileDescriptor watchSignals()
{
    sigset_t signals;
    ::sigemptyset(&signals);
    for (const int signal : {SIGCHLD, SIGTERM, SIGINT, SIGHUP})
        ::sigaddset(&signals, signal);
    ::sigprocmask(SIG_BLOCK, &signals, nullptr);
    return FileDescriptor(::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK));
}

} // namespace

Guard::Guard(GuardLink link, pid_t daemon)
    : m_link(std::move(link))
    , m_daemon(daemon)
{ }

int Guard::run()
{
    const FileDescriptor signals = watchSignals();
    std::array<pollfd, 2> watched{{{signals.get(), POLLIN, 0}, {m_link.descriptor(), POLLIN, 0}}};
    for (;;) {
        ::poll(watched.data(), watched.size(), timeout(monotonicNow()));
        signalfd_siginfo signal{};
        while (::read(signals.get(), &signal, sizeof signal) == static_cast<ssize_t>(sizeof signal)) {
            if (signal.ssi_signo != SIGCHLD) {
                m_isEnding = true;
                ::kill(m_daemon, SIGKILL);
            }
        }
        readNotices();
        const EventTime now = monotonicNow();
        if (const auto code = lookAtDaemon(now))
            return *code;
        if (m_stoppedSince && now >= *m_stoppedSince + stopGrace && !m_link.page().isTakenOver)
            takeOver();
        if (!m_stoppedSince)
            endIfHanging(now);
        // The daemon's end of the link closes a moment before the daemon is seen to end.
        if ((watched[1].revents & POLLHUP) != 0)
            watched[1].fd = -1;
    }
}

void Guard::readNotices()
{
    while (auto received = m_link.receive()) {
        const GuardNotice& notice = received->notice;
        switch (notice.kind) {
        case GuardNotice::Kind::keyboardOpened:
            m_keyboards[notice.name] = {.descriptor = std::move(received->descriptor), .output = notice.output};
            break;
        case GuardNotice::Kind::keyboardClosed:
            m_keyboards.erase(notice.name);
            break;
        case GuardNotice::Kind::outputOpened:
            m_outputs[notice.name] = std::move(received->descriptor);
            break;
        case GuardNotice::Kind::outputClosed:
            m_outputs.erase(notice.name);
            break;
        }
    }
}

std::optional<int> Guard::lookAtDaemon(EventTime now)
{
    siginfo_t news{};
    while (::waitid(P_PID, static_cast<id_t>(m_daemon), &news, WEXITED | WSTOPPED | WCONTINUED | WNOHANG) == 0
        && news.si_pid == m_daemon) {
        switch (news.si_code) {
        case CLD_STOPPED:
        case CLD_TRAPPED:
            m_stoppedSince = now;
            break;
        case CLD_CONTINUED:
            m_stoppedSince.reset();
            m_continuedAt = now;
            break;
        case CLD_EXITED:
            return news.si_status;
        default:
            if (m_isEnding)
                return 0;
            std::fprintf(stderr, "tarvin-tapd: ended by signal %d; the keyboards are given back\n", news.si_status);
            return 1;
        }
        news = {};
    }
    return std::nullopt;
}

void Guard::endIfHanging(EventTime now) const
{
    const EventTime lastProgress(m_link.page().lastProgress.load());
    if (m_keyboards.empty() || lastProgress == EventTime(0)
        || now < std::max(lastProgress, m_continuedAt) + longestTurn)
        return;
    std::fprintf(stderr, "tarvin-tapd: hangs and is ended\n");
    ::kill(m_daemon, SIGKILL);
}

void Guard::takeOver()
{
    // First of all: from here on the daemon throws away whatever it reads.
    m_link.page().isTakenOver = true;
    for (auto& [name, keyboard] : m_keyboards) {
        typeWhatIsUnread(keyboard, EventTime::max());
        const EventTime givenBackAt = monotonicNow();
        ::ioctl(keyboard.descriptor.get(), EVIOCGRAB, 0);
        // What came in between, nobody else has had.
        typeWhatIsUnread(keyboard, givenBackAt);
    }
    m_keyboards.clear();
    for (auto& [name, output] : m_outputs)
        releaseEveryKey(output.get());
    std::fprintf(stderr, "tarvin-tapd: is stopped; the keyboards are given back\n");
}

void Guard::typeWhatIsUnread(const Keyboard& keyboard, EventTime end) const
{
    const auto output = m_outputs.find(keyboard.output);
    if (output == m_outputs.end())
        return;
    constexpr std::size_t eventsPerRead = 64;
    std::array<input_event, eventsPerRead> read{};
    for (;;) {
        const ssize_t size = ::read(keyboard.descriptor.get(), read.data(), sizeof read);
        if (size <= 0)
            return;
        EventBuffer unread;
        for (const input_event& event : std::span(read).first(static_cast<std::size_t>(size) / sizeof(input_event))) {
            if (timeOf(event) >= end)
                continue;
            if (event.type == EV_KEY)
                unread.append(event.type, event.code, event.value);
            else if (event.type == EV_SYN && event.code == SYN_REPORT)
                unread.endReport();
        }
        const auto events = unread.events();
        static_cast<void>(!::write(output->second.get(), events.data(), events.size_bytes()));
    }
}

int Guard::timeout(EventTime now) const
{
    constexpr int forever = -1;
    if (m_stoppedSince)
        return m_link.page().isTakenOver ? forever : milliseconds(*m_stoppedSince + stopGrace - now);
    return m_keyboards.empty() ? forever : milliseconds(hangCheckInterval);
}

} // namespace tarvin::tapd
