#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

namespace tarvin::posix {

/// Turns the signals that ask a process to end (SIGTERM, SIGINT, SIGHUP) into a call on the main thread. One object in
/// a process.
///
/// The first such signal counts; a second one ends the process at once, the way out of an orderly end that hangs. A
/// signal that the parent told the process to ignore, as `nohup` does, stays ignored. SIGPIPE is ignored from now on:
/// printing into a closed pipe must not end a resident program.
class TerminationSignals
{
public:
    explicit TerminationSignals(std::function<void()> onSignal);
    /// Gives the signals back to the system.
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace tarvin::posix
