#include "actions/support/ActionsDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

constexpr ProcessIdentifier finderProcess = 300;
constexpr ProcessIdentifier helperProcess = 400;

struct TargetApplicationTest : testing::Test
{
    /// The lines of a preparation around a body that only says that it ran.
    QStringList prepare()
    {
        return desktop.transcriptOf([&] {
            desktop.targets.prepareTargetAppIfTarvinActive(
                [&] { desktop.platform.effects().record(simulated::ConsoleLine{u"body"_qs}); });
        });
    }
    std::optional<ProcessIdentifier> resolve(const std::optional<QString>& myBundleId = u"com.velmor.Tarvin"_qs)
    {
        const auto target = desktop.targets.resolveTargetApplication(myBundleId);
        return target ? std::optional(target->processIdentifier) : std::nullopt;
    }
    void addApplication(RunningApplication application) { desktop.workspace().setApplication(application); }
    void addFinder() { addApplication({finderProcess, {u"com.apple.finder"_qs}, u"Finder"_qs}); }

    ActionsDesktop desktop;
};

OnScreenWindow largeWindow(ProcessIdentifier owner)
{
    return {.owner = owner, .layer = 0, .size = {800, 600}};
}

TEST_F(TargetApplicationTest, withAnotherApplicationInFrontTheBodyRunsAtOnce)
{
    bool ran = false;
    desktop.targets.prepareTargetAppIfTarvinActive([&] { ran = true; });
    EXPECT_TRUE(ran);
    EXPECT_EQ(prepare(), lines({"0 body"}));
}

TEST_F(TargetApplicationTest, withTheProgramInFrontTheBodyRunsOnceTheTargetHadTimeToComeForward)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(prepare(), lines({"0 activate Safari", "80 body"}));
    EXPECT_EQ(desktop.workspace().frontmostApplication()->processIdentifier, ActionsDesktop::safariProcess);
}

TEST_F(TargetApplicationTest, withNoOtherApplicationTheBodyIsDropped)
{
    desktop.bringSelfToFront();
    desktop.workspace().removeApplication(ActionsDesktop::safariProcess);
    EXPECT_EQ(prepare(), lines({}));
}

TEST_F(TargetApplicationTest, withNothingInFrontTheBodyRunsAtOnce)
{
    desktop.workspace().setFrontmostProcess(std::nullopt);
    EXPECT_EQ(prepare(), lines({"0 body"}));
}

TEST_F(TargetApplicationTest, aFrontApplicationWithoutIdentifierIsNotTheProgram)
{
    addApplication({helperProcess, {}, u"Script"_qs});
    desktop.workspace().setFrontmostProcess(helperProcess);
    EXPECT_EQ(prepare(), lines({"0 body"}));
    EXPECT_EQ(resolve(), helperProcess);
}

TEST_F(TargetApplicationTest, aProgramWithoutIdentifierTakesAFrontApplicationWithoutOneForItself)
{
    desktop.platform.processInfo().setBundleIdentifier(std::nullopt);
    EXPECT_EQ(prepare(), lines({"0 body"}));
    addApplication({helperProcess, {}, u"Script"_qs});
    desktop.workspace().setFrontmostProcess(helperProcess);
    EXPECT_EQ(prepare(), lines({}));
    desktop.workspace().setFrontmostProcess(std::nullopt);
    EXPECT_EQ(prepare(), lines({}));
}

TEST_F(TargetApplicationTest, aRoleOfTheProgramDoesNotMakeAnotherApplicationTheProgram)
{
    addApplication({helperProcess, {u"org.example.files"_qs, u"com.velmor.Tarvin"_qs}, u"Files"_qs});
    desktop.workspace().setFrontmostProcess(helperProcess);
    EXPECT_EQ(prepare(), lines({"0 body"}));
}

TEST_F(TargetApplicationTest, anApplicationInFrontIsTheTargetItself)
{
    EXPECT_EQ(resolve(), ActionsDesktop::safariProcess);
    EXPECT_EQ(resolve(std::nullopt), ActionsDesktop::safariProcess);
    desktop.workspace().setFrontmostProcess(std::nullopt);
    EXPECT_EQ(resolve(), std::nullopt);
    desktop.bringSelfToFront();
    EXPECT_EQ(resolve(std::nullopt), ActionsDesktop::ownProcess);
}

TEST_F(TargetApplicationTest, theOwnerOfTheFrontmostLargeWindowIsTheTargetNotTheApplicationActiveLast)
{
    addFinder();
    desktop.bringSelfToFront();
    desktop.workspace().setOnScreenWindows({largeWindow(ActionsDesktop::ownProcess), largeWindow(finderProcess),
        largeWindow(ActionsDesktop::safariProcess)});
    EXPECT_EQ(resolve(), finderProcess);
}

TEST_F(TargetApplicationTest, aWindowOf150PointsInOneDirectionIsTooSmall)
{
    addFinder();
    desktop.bringSelfToFront();
    for (const Size size : {Size{150, 400}, Size{400, 150}, Size{150, 150}, Size{20, 900}}) {
        desktop.workspace().setOnScreenWindows({{.owner = finderProcess, .layer = 0, .size = size}});
        EXPECT_EQ(resolve(), ActionsDesktop::safariProcess);
    }
    desktop.workspace().setOnScreenWindows({{.owner = finderProcess, .layer = 0, .size = {150.5, 150.5}}});
    EXPECT_EQ(resolve(), finderProcess);
}

TEST_F(TargetApplicationTest, aWindowOfAnotherLayerOrOfNoneIsPassedOver)
{
    addFinder();
    desktop.bringSelfToFront();
    for (const std::optional<int> layer : {std::optional(25), std::optional(-1), std::optional<int>()}) {
        desktop.workspace().setOnScreenWindows({{.owner = finderProcess, .layer = layer, .size = {800, 600}}});
        EXPECT_EQ(resolve(), ActionsDesktop::safariProcess);
    }
}

TEST_F(TargetApplicationTest, aWindowOfAnUnknownProcessOrOfABackgroundApplicationIsPassedOver)
{
    addFinder();
    addApplication({.processIdentifier = helperProcess,
        .bundleIdentifiers = {u"com.example.helper"_qs},
        .localizedName = u"Helper"_qs,
        .activationPolicy = ActivationPolicy::accessory});
    desktop.bringSelfToFront();
    desktop.workspace().setOnScreenWindows({largeWindow(999), largeWindow(helperProcess), largeWindow(finderProcess)});
    EXPECT_EQ(resolve(), finderProcess);
}

TEST_F(TargetApplicationTest, theOwnerOfAWindowNeedsNoIdentifier)
{
    addApplication({helperProcess, {}, u"Script"_qs});
    desktop.bringSelfToFront();
    desktop.workspace().setOnScreenWindows({largeWindow(helperProcess)});
    EXPECT_EQ(resolve(), helperProcess);
}

TEST_F(TargetApplicationTest, withoutWindowsTheFirstOrdinaryApplicationIsTheTarget)
{
    addFinder();
    desktop.bringSelfToFront();
    EXPECT_EQ(resolve(), ActionsDesktop::safariProcess);
    desktop.workspace().removeApplication(ActionsDesktop::safariProcess);
    EXPECT_EQ(resolve(), finderProcess);
}

TEST_F(TargetApplicationTest, withoutWindowsBackgroundAndTerminatedApplicationsArePassedOver)
{
    auto safari = *desktop.workspace().applicationWithProcess(ActionsDesktop::safariProcess);
    addFinder();
    desktop.bringSelfToFront();
    safari.activationPolicy = ActivationPolicy::accessory;
    addApplication(safari);
    EXPECT_EQ(resolve(), finderProcess);
    safari.activationPolicy = ActivationPolicy::regular;
    safari.isTerminated = true;
    addApplication(safari);
    EXPECT_EQ(resolve(), finderProcess);
}

TEST_F(TargetApplicationTest, aHiddenApplicationIsOnlyChosenThroughAWindowOfItsOwn)
{
    auto safari = *desktop.workspace().applicationWithProcess(ActionsDesktop::safariProcess);
    safari.isHidden = true;
    addApplication(safari);
    desktop.bringSelfToFront();
    EXPECT_EQ(resolve(), ActionsDesktop::ownProcess) << "nothing else is left";
    EXPECT_EQ(prepare(), lines({}));
    desktop.workspace().setOnScreenWindows({largeWindow(ActionsDesktop::safariProcess)});
    EXPECT_EQ(resolve(), ActionsDesktop::safariProcess);
}

TEST_F(TargetApplicationTest, anOrdinaryApplicationWithoutIdentifierCanBeTheTarget)
{
    desktop.workspace().removeApplication(ActionsDesktop::safariProcess);
    addApplication({helperProcess, {}, u"Script"_qs});
    desktop.bringSelfToFront();
    EXPECT_EQ(prepare(), lines({"0 activate Script", "80 body"}));
}

} // namespace

} // namespace tarvin::test
