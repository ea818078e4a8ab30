#pragma once

namespace tarvin {

class LoginItem;
class ProcessInfo;
class RuntimeLog;
class Scheduler;
class Scripts;

/// Brings the login registration in line with the user's wish, by two roads each time: the system's service first and
/// a script after it. A refusal is logged and changes nothing. Main thread only; the ports and the log outlive the
/// script's run.
class LoginRegistration
{
public:
    LoginRegistration(
        LoginItem& loginItem, Scripts& scripts, Scheduler& scheduler, const ProcessInfo& processInfo, RuntimeLog& log);

    /// Returns before the script has run.
    void sync(bool enabled);

private:
    void syncService(bool enabled);
    void syncByScript(bool enabled);

    LoginItem& m_loginItem;
    Scripts& m_scripts;
    Scheduler& m_scheduler;
    const ProcessInfo& m_processInfo;
    RuntimeLog& m_log;
};

} // namespace tarvin
