#include "platform/linux/applications/ProcessEnd.h"

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace tarvin::applications {

namespace {

/// A child that sleeps, and that nobody waits for unless the test does.
pid_t sleepingChild()
{
    const pid_t child = fork();
    if (child == 0) {
        pause();
        _exit(0);
    }
    return child;
}

} // namespace

TEST(ProcessEnd, aProcessThatHasEndedButIsStillListedCountsAsGone)
{
    const pid_t child = sleepingChild();
    EXPECT_FALSE(hasEnded(child));
    EXPECT_TRUE(endByForce(child));
    siginfo_t ended{};
    ASSERT_EQ(waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOWAIT), 0);
    EXPECT_TRUE(hasEnded(child)) << "its parent has not asked yet";
    ASSERT_EQ(waitpid(child, nullptr, 0), child);
    EXPECT_TRUE(hasEnded(child));
    EXPECT_FALSE(endByForce(child));
}

TEST(ProcessEnd, numbersThatMeanMoreThanOneProcessAndThisOneAreLeftAlone)
{
    EXPECT_FALSE(endByForce(0));
    EXPECT_FALSE(endByForce(-1));
    EXPECT_FALSE(endByForce(1));
    EXPECT_FALSE(endByForce(getpid()));
    EXPECT_TRUE(hasEnded(0));
}

} // namespace tarvin::applications
