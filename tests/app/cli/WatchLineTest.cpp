#include "app/cli/WatchLine.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

KeyObservation observed(KeyOutcome outcome, bool hasRecord)
{
    KeyObservation observation{FKey::f5, TriggerSource::eventTap, outcome, {}, {}};
    if (hasRecord) {
        observation.profileId = u"safari"_qs;
        observation.title = u"Copy"_qs;
    }
    return observation;
}

TEST(WatchLine, aPressThatFiredNamesPathProfileAndAction)
{
    const QJsonObject json = toJson(observed(KeyOutcome::fired, true));
    EXPECT_EQ(json,
        (QJsonObject{{u"key"_qs, u"F5"_qs}, {u"path"_qs, u"EventTap"_qs}, {u"outcome"_qs, u"fired"_qs},
            {u"profile"_qs, u"safari"_qs}, {u"action"_qs, u"Copy"_qs}}));
    EXPECT_EQ(watchText(json).simplified(), u"F5 EventTap safari Copy"_qs);
}

TEST(WatchLine, aPressThatDidNothingTellsWhy)
{
    EXPECT_EQ(watchText(toJson(observed(KeyOutcome::paused, false))).simplified(),
        u"F5 EventTap - factory behaviour: a switch is off"_qs);
    EXPECT_EQ(watchText(toJson(observed(KeyOutcome::notCustomised, false))).simplified(),
        u"F5 EventTap - factory behaviour: not customised"_qs);
    EXPECT_EQ(watchText(toJson(observed(KeyOutcome::alreadyFired, true))).simplified(),
        u"F5 EventTap safari Copy (fired already by this press)"_qs);
    EXPECT_TRUE(toJson(observed(KeyOutcome::paused, false)).value(u"profile").isNull());
}

} // namespace

} // namespace tarvin
