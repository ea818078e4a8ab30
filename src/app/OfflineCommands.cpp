#include "app/OfflineCommands.h"

#include "actions/usage/ActionUsageTracker.h"
#include "app/OfflineStores.h"
#include "app/cli/CommandService.h"
#include "platform/ports/Console.h"
#include "platform/ports/Workspace.h"
#include "platform/posix/RandomUuids.h"
#include "profiles/KeyProfile.h"
#include "profiles/MappingArchive.h"

#include <cstdio>

namespace tarvin {

namespace {

/// What the stores have to say is no part of a command's output.
class StderrConsole final : public Console
{
public:
    void printLine(const QString& line) override { std::fprintf(stderr, "%s\n", line.toUtf8().constData()); }
};

/// Which application is in front is no matter while nobody presses keys.
class NoWorkspace final : public Workspace
{
public:
    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override { return std::nullopt; }
    [[nodiscard]] std::vector<RunningApplication> runningApplications() const override { return {}; }
    [[nodiscard]] std::optional<RunningApplication> applicationWithProcess(ProcessIdentifier /*process*/) const override
    {
        return std::nullopt;
    }
    [[nodiscard]] std::vector<OnScreenWindow> onScreenWindows() const override { return {}; }
    void activate(ProcessIdentifier /*process*/) override { }
    void openUrl(const QString& /*url*/) override { }
    [[nodiscard]] std::unique_ptr<WorkspaceObserver> observeActivation(ActivationHandler /*handler*/) override
    {
        return nullptr;
    }
};

} // namespace

CommandReply performOnFiles(const CommandRequest& request)
{
    StderrConsole console;
    NoWorkspace workspace;
    posix::RandomUuids uuids;
    OfflineStores stores([&console](const QString& line) { console.printLine(line); });
    ActionUsageTracker usage(stores.files(), stores.preferences(), console, stores.scheduler());
    KeyProfile keyProfile(stores.files(), stores.preferences(), workspace, console, uuids,
        [&usage](KeyAction action) { usage.recordUsage(action); });
    MappingArchive archive(keyProfile, stores.files(), uuids, stores.scheduler());
    CommandService service(
        keyProfile, archive, [&uuids] { return uuids.next(); }, std::nullopt);
    return service.perform(request);
}

} // namespace tarvin
