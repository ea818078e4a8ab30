#include "tapd/main/Guard.h"
#include "tapd/main/Listener.h"
#include "tapd/main/Options.h"
#include "tapd/main/TapDaemon.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <span>
#include <utility>

namespace {

int fail(const char* message)
{
    std::perror(message);
    return 1;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    using namespace tarvin::tapd;
    const auto options = parseOptions(std::span(arguments, static_cast<std::size_t>(argumentCount)).subspan(1));
    if (!options) {
        std::fputs(usage, stderr);
        return 2;
    }
    if (options->isHelpWanted || options->isVersionWanted) {
        std::fputs(options->isHelpWanted ? usage : "tarvin-tapd " TARVIN_VERSION "\n", stdout);
        return 0;
    }
    auto listener = Listener::inherited();
    if (!listener)
        listener = Listener::at(options->socketPath);
    if (!listener)
        return fail("tarvin-tapd: the socket can't be opened");
    auto ends = GuardLink::make();
    if (!ends)
        return fail("tarvin-tapd: the guard can't be reached");

    const pid_t guard = ::getpid();
    const pid_t daemon = ::fork();
    if (daemon < 0)
        return fail("tarvin-tapd: there can be no second process");
    if (daemon == 0) {
        // Without its guard the daemon must not hold a keyboard.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != guard)
            return 1;
        return TapDaemon(std::move(ends->ofDaemon), std::move(*listener), options->user).run();
    }
    // Whoever stops or ends "tarvin-tapd" by its name means the one that holds the keyboards.
    ::prctl(PR_SET_NAME, "tapd-guard");
    listener.reset();
    return Guard(std::move(ends->ofGuard), daemon).run();
}
