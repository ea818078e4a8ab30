#include "actions/support/ActionsDesktop.h"

namespace tarvin::test {

ActionsDesktop::ActionsDesktop()
    : ports(platform.ports())
    , notice(ports.scheduler)
    , testEnvironment(ports.processInfo)
    , targets(ports.workspace, ports.processInfo, ports.scheduler)
    , synthesis(ports.eventPoster, ports.pointer, ports.scheduler, testEnvironment, targets)
    , scripts(ports.scripts, ports.scheduler, testEnvironment)
    , performers([this](const QString& line) { report(line); })
    , guarded(performers.performers(), testEnvironment, notice)
    , executor({
          .recordUsage = [this](KeyAction action) { report(u"use "_qs + rawValue(action).toString()); },
          .notice = notice,
          .testEnvironment = testEnvironment,
          .targets = targets,
          .synthesis = synthesis,
          .scripts = scripts,
          .guarded = guarded,
          .performers = performers.performers(),
          .scheduler = ports.scheduler,
      })
{
    watchNotice(notice, platform);
    workspace().setFrontmost({
        .processIdentifier = safariProcess,
        .bundleIdentifiers = {u"com.apple.Safari"_qs},
        .localizedName = u"Safari"_qs,
    });
}

void ActionsDesktop::report(const QString& line)
{
    platform.effects().record(simulated::ConsoleLine{line});
}

QStringList ActionsDesktop::run(const ConfiguredAction& config)
{
    return transcriptOf([&] { executor.execute(config); });
}

QStringList ActionsDesktop::run(KeyAction action)
{
    return transcriptOf([&] { executor.execute(action); });
}

} // namespace tarvin::test
