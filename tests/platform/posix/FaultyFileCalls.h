#pragma once

#include "platform/posix/FileCalls.h"

#include <QByteArrayList>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <limits>
#include <optional>

namespace tarvin::posix {

/// The calls of the system, counted from 0, of which one can be made to fail, or to be the last.
class FaultyFileCalls final : public FileCalls
{
public:
    /// All calls work again, and are counted from 0.
    void repair() { m_state = State(); }
    /// The call with this number does nothing but report the error.
    void failAt(int call, int error) { m_state.fault = Fault{call, error, Aftermath::goesOn}; }
    /// The process ends in the call with this number: a write gets half through, no other call has an effect any more.
    void crashAt(int call) { m_state.fault = Fault{call, EIO, Aftermath::isOver}; }
    /// Whatever a signal can interrupt is interrupted once before it works. A close works and says it was interrupted.
    void interruptEachCallOnce() { m_state.interrupts = true; }
    /// No write takes more bytes than this.
    void limitWrites(std::size_t bytes) { m_state.writeLimit = bytes; }

    /// The names of the calls, in order.
    [[nodiscard]] const QByteArrayList& calls() const { return m_state.calls; }
    /// The flags with which the last file of a folder was opened.
    [[nodiscard]] int lastFlags() const { return m_state.lastFlags; }
    /// Whether there were calls enough to get to the fault.
    [[nodiscard]] bool reachedFault() const { return m_state.fault && m_state.calls.size() > m_state.fault->call; }

    int open(const char* path, int flags) override
    {
        return interruptible("open", [&] { return system().open(path, flags); });
    }
    int openat(int directory, const char* name, int flags, mode_t mode) override
    {
        m_state.lastFlags = flags;
        return interruptible("openat", [&] { return system().openat(directory, name, flags, mode); });
    }
    ssize_t write(int file, const void* bytes, std::size_t count) override
    {
        if (isLastCall())
            static_cast<void>(system().write(file, bytes, count / 2));
        return interruptible("write", [&] { return system().write(file, bytes, std::min(count, m_state.writeLimit)); });
    }
    int fsync(int file) override
    {
        return interruptible("fsync", [&] { return system().fsync(file); });
    }
    int close(int file) override
    {
        // Neither a failure nor the end of a process leaves a descriptor open.
        const int result = system().close(file);
        return perform("close", [&] {
            errno = EINTR;
            return m_state.interrupts ? -1 : result;
        });
    }
    int renameat(int fromDirectory, const char* from, int toDirectory, const char* to) override
    {
        return perform("renameat", [&] { return system().renameat(fromDirectory, from, toDirectory, to); });
    }
    int unlinkat(int directory, const char* name) override
    {
        return perform("unlinkat", [&] { return system().unlinkat(directory, name); });
    }
    int mkdir(const char* path, mode_t mode) override
    {
        return perform("mkdir", [&] { return system().mkdir(path, mode); });
    }

private:
    enum class Aftermath { goesOn, isOver };
    struct Fault
    {
        int call;
        int error;
        Aftermath aftermath;

        [[nodiscard]] bool strikes(qsizetype number) const
        {
            return number == call || (number > call && aftermath == Aftermath::isOver);
        }
    };
    struct State
    {
        QByteArrayList calls;
        int lastFlags = 0;
        std::optional<Fault> fault;
        bool interrupts = false;
        bool wasInterrupted = false;
        std::size_t writeLimit = std::numeric_limits<std::size_t>::max();
    };

    static FileCalls& system() { return systemFileCalls(); }

    [[nodiscard]] bool isLastCall() const
    {
        const std::optional<Fault>& fault = m_state.fault;
        return fault && fault->aftermath == Aftermath::isOver && fault->call == m_state.calls.size();
    }

    template <typename Call> auto perform(const char* name, const Call& call) -> decltype(call())
    {
        const qsizetype number = m_state.calls.size();
        m_state.calls.append(name);
        if (m_state.fault && m_state.fault->strikes(number)) {
            errno = m_state.fault->error;
            return -1;
        }
        return call();
    }

    template <typename Call> auto interruptible(const char* name, const Call& call) -> decltype(call())
    {
        m_state.wasInterrupted = m_state.interrupts && !m_state.wasInterrupted;
        if (m_state.wasInterrupted) {
            errno = EINTR;
            return -1;
        }
        return perform(name, call);
    }

    State m_state;
};

} // namespace tarvin::posix
