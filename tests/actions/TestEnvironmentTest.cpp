#include "actions/TestEnvironment.h"

#include "platform/simulated/SimulatedProcessInfo.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

struct TestEnvironmentTest : testing::Test
{
    [[nodiscard]] bool holds() const { return environment.isRunningInTestEnvironment(); }

    simulated::SimulatedProcessInfo processInfo;
    TestEnvironment environment{processInfo};
};

TEST_F(TestEnvironmentTest, anInstalledProgramIsNotATest)
{
    EXPECT_FALSE(holds());
}

TEST_F(TestEnvironmentTest, theModeCanBeForcedAndTakenBack)
{
    EXPECT_FALSE(environment.suppressSystemPowerCommandsForTesting());
    environment.setSuppressSystemPowerCommandsForTesting(true);
    EXPECT_TRUE(environment.suppressSystemPowerCommandsForTesting());
    EXPECT_TRUE(holds());
    environment.setSuppressSystemPowerCommandsForTesting(false);
    EXPECT_FALSE(holds());
}

TEST_F(TestEnvironmentTest, aProcessNamedLikeTheTestRunnerIsATest)
{
    processInfo.setProcessName(u"my-xctest-host"_qs);
    EXPECT_TRUE(holds());
    processInfo.setProcessName(u"test"_qs);
    EXPECT_FALSE(holds());
}

TEST_F(TestEnvironmentTest, anyArgumentThatContainsTheWordMakesATest)
{
    processInfo.setArguments({u"/apps/Tarvin/tarvin"_qs, u"--quiet"_qs, u"--run-latest"_qs});
    EXPECT_TRUE(holds());
    processInfo.setArguments({u"/apps/Tarvin/tarvin"_qs, u"-xctest"_qs});
    EXPECT_TRUE(holds());
}

TEST_F(TestEnvironmentTest, aPathOfTheExecutableThatHoldsTheWordMakesATest)
{
    processInfo.setArguments({u"/home/ann/contest/tarvin"_qs});
    EXPECT_TRUE(holds());
}

TEST_F(TestEnvironmentTest, aBundleOfTestsIsATestByItsEndingOnly)
{
    processInfo.setBundlePath(u"/apps/Tarvin.xctest"_qs);
    EXPECT_TRUE(holds());
    processInfo.setBundlePath(u"/apps/Tarvin.xctest/Contents"_qs);
    EXPECT_FALSE(holds());
}

TEST_F(TestEnvironmentTest, whatCausedTheModeIsNamed)
{
    EXPECT_EQ(environment.cause(), std::nullopt);
    processInfo.setBundlePath(u"/apps/Tarvin.xctest"_qs);
    EXPECT_EQ(environment.cause(), u"the program lies in \"/apps/Tarvin.xctest\""_qs);
    processInfo.setArguments({u"/apps/tarvin"_qs, u"--latest"_qs});
    EXPECT_EQ(environment.cause(), u"the argument \"--latest\" contains \"test\""_qs);
    processInfo.setArguments({u"/home/ann/contest/tarvin"_qs, u"--latest"_qs});
    EXPECT_EQ(environment.cause(), u"the path \"/home/ann/contest/tarvin\" contains \"test\""_qs);
    processInfo.setProcessName(u"xctest"_qs);
    EXPECT_EQ(environment.cause(), u"the process is called \"xctest\""_qs);
    environment.setSuppressSystemPowerCommandsForTesting(true);
    EXPECT_EQ(environment.cause(), u"it is forced on"_qs);
}

TEST_F(TestEnvironmentTest, capitalsMakeADifference)
{
    processInfo.setProcessName(u"XCTest"_qs);
    processInfo.setArguments({u"/apps/TEST/Test"_qs});
    processInfo.setBundlePath(u"/apps/Tarvin.XCTest"_qs);
    EXPECT_FALSE(holds());
}

TEST_F(TestEnvironmentTest, theAnswerFollowsEachChange)
{
    processInfo.setArguments({u"/tmp/test/tarvin"_qs});
    EXPECT_TRUE(holds());
    processInfo.setArguments({u"/apps/tarvin"_qs});
    EXPECT_FALSE(holds());
}

} // namespace

} // namespace tarvin::test
