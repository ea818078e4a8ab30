#include "platform/macos/translation/ApplicationRecord.h"
#include "platform/macos/translation/WindowRecord.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::macos {

namespace {

TEST(WindowRecord, aWholeRowIsTakenOver)
{
    const OnScreenWindow window = onScreenWindowOf({.owner = 312, .layer = 0, .size = Size{800, 600}});
    EXPECT_EQ(window.owner, 312);
    EXPECT_EQ(window.layer, 0);
    EXPECT_EQ(window.size, (Size{800, 600}));
}

TEST(WindowRecord, whatIsMissingIsNeitherAnOrdinaryWindowNorALargeOne)
{
    const OnScreenWindow window = onScreenWindowOf({});
    EXPECT_EQ(window.owner, 0);
    EXPECT_FALSE(window.layer);
    EXPECT_EQ(window.size, Size());
}

TEST(ApplicationRecord, whatTheSystemSaysIsTakenOver)
{
    const RunningApplication application = runningApplicationOf({.processIdentifier = 77,
        .bundleIdentifier = u"com.apple.Safari"_qs,
        .localizedName = u"Safari"_qs,
        .activationPolicy = 0,
        .isHidden = true,
        .isTerminated = true});
    EXPECT_EQ(application.processIdentifier, 77);
    EXPECT_EQ(application.bundleIdentifiers, QStringList({u"com.apple.Safari"_qs}));
    EXPECT_EQ(application.localizedName, u"Safari"_qs);
    EXPECT_EQ(application.activationPolicy, ActivationPolicy::regular);
    EXPECT_TRUE(application.isHidden);
    EXPECT_TRUE(application.isTerminated);
}

TEST(ApplicationRecord, anApplicationNeedHaveNeitherIdentifierNorName)
{
    const RunningApplication application =
        runningApplicationOf({.processIdentifier = 77, .bundleIdentifier = {}, .localizedName = {}});
    EXPECT_FALSE(application.bundleIdentifier());
    EXPECT_TRUE(application.localizedName.isEmpty());
}

TEST(ApplicationRecord, anUnknownPolicyIsNeverBroughtForward)
{
    EXPECT_EQ(activationPolicyOf(1), ActivationPolicy::accessory);
    EXPECT_EQ(activationPolicyOf(2), ActivationPolicy::prohibited);
    EXPECT_EQ(activationPolicyOf(3), ActivationPolicy::prohibited);
}

} // namespace

} // namespace tarvin::macos
