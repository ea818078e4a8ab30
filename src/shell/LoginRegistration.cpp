#include "shell/LoginRegistration.h"

#include "interception/RuntimeLog.h"
#include "platform/ports/LoginItem.h"
#include "platform/ports/ProcessInfo.h"
#include "platform/ports/Scheduler.h"
#include "platform/ports/Script.h"

#include <QString>

#include <optional>

namespace tarvin {

LoginRegistration::LoginRegistration(
    LoginItem& loginItem, Scripts& scripts, Scheduler& scheduler, const ProcessInfo& processInfo, RuntimeLog& log)
    : m_loginItem(loginItem)
    , m_scripts(scripts)
    , m_scheduler(scheduler)
    , m_processInfo(processInfo)
    , m_log(log)
{ }

void LoginRegistration::sync(bool enabled)
{
    syncService(enabled);
    // A host that runs tests of the program must not be opened at login in its place.
    if (m_processInfo.bundleIdentifier() != u"com.apple.dt.xctest.tool"_qs)
        syncByScript(enabled);
}

void LoginRegistration::syncService(bool enabled)
{
    if (m_loginItem.isEnabled() == enabled)
        return;
    const std::optional<QString> refusal = enabled ? m_loginItem.enable() : m_loginItem.disable();
    if (refusal)
        m_log.log(u"[Tarvin] SMAppService registration notice: "_qs + *refusal);
    else if (enabled)
        m_log.log(u"[Tarvin] SMAppService registered main app for Open at Startup."_qs);
    else
        m_log.log(u"[Tarvin] SMAppService unregistered main app from Open at Startup."_qs);
}

void LoginRegistration::syncByScript(bool enabled)
{
    const SetLoginItem script{
        .name = m_processInfo.bundleName().value_or(u"Tarvin"_qs),
        .path = m_processInfo.bundlePath(),
        .enabled = enabled,
    };
    m_scheduler.runInBackground(
        BackgroundQueue::utility, [&scripts = m_scripts, &scheduler = m_scheduler, &log = m_log, script] {
            const std::optional<ScriptResult> result = scripts.run(script);
            if (!result || !result->error)
                return;
            scheduler.post([&log, error = *result->error] {
                log.log(u"[Tarvin] System Events login item sync notice: "_qs + error);
            });
        });
}

} // namespace tarvin
