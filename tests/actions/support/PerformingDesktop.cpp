#include "actions/support/PerformingDesktop.h"

namespace tarvin::test {

void ReportingPanel::show()
{
    m_visible = true;
    m_log.record(simulated::ConsoleLine{u"show "_qs + m_name});
}

void ReportingPanel::hide()
{
    m_visible = false;
    m_log.record(simulated::ConsoleLine{u"hide "_qs + m_name});
}

PerformingDesktop::PerformingDesktop()
    : ports(platform.ports())
    , notice(ports.scheduler)
    , testEnvironment(ports.processInfo)
    , quickFlip({
          .workspace = ports.workspace,
          .applications = ports.applicationControl,
          .processInfo = ports.processInfo,
          .notice = notice,
          .scheduler = ports.scheduler,
      })
    , ring(platform.effects(), u"ring"_qs)
    , clipboardHistory(platform.effects(), u"clipboard"_qs)
    , scratchpad(platform.effects(), u"scratchpad"_qs)
    , actions(ports,
          {
              .notice = notice,
              .testEnvironment = testEnvironment,
              .recordUsage =
                  [this](KeyAction action) {
                      platform.effects().record(simulated::ConsoleLine{u"use "_qs + rawValue(action).toString()});
                  },
              .mainWindow = [this] { return mainWindow; },
              .quickFlip = quickFlip,
              .actionsRing = ring,
              .clipboardHistory = clipboardHistory,
              .floatingScratchpad = scratchpad,
          })
{
    watchNotice(notice, platform);
    runApplication(mailProcess, u"Mail"_qs, {u"com.example.mail"_qs});
    runApplication(safariProcess, u"Safari"_qs, {u"com.apple.Safari"_qs});
    workspace().setFrontmostProcess(safariProcess);
    workspace().setOnScreenWindows({{.owner = safariProcess, .layer = 0, .size = {800, 600}}});
    platform.scheduler().runPosted();
}

void PerformingDesktop::runApplication(ProcessIdentifier process, const QString& name, const QStringList& identifiers)
{
    workspace().setApplication({.processIdentifier = process, .bundleIdentifiers = identifiers, .localizedName = name});
}

QString PerformingDesktop::frontName()
{
    return workspace().frontmostApplication().value_or(RunningApplication{}).localizedName;
}

QString scriptLine(int milliseconds, const Script& script)
{
    return u"%1 script "_qs.arg(milliseconds) + appleScriptSource(script);
}

} // namespace tarvin::test
