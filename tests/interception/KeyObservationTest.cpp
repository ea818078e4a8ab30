#include "interception/support/InterceptionDesktop.h"
#include "interception/support/Printers.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class KeyObservationTest : public testing::Test
{
protected:
    void watch()
    {
        desktop.manager().setKeyObserver([this](const KeyObservation& one) {
            constexpr std::array names = {"paused", "not customised", "already fired", "fired"};
            seen += u"%1 %2 %3 %4 %5"_qs.arg(rawValue(one.key), rawValue(one.source),
                QString::fromLatin1(names.at(static_cast<std::size_t>(one.outcome))), one.profileId.value_or(u"-"_qs),
                one.title.value_or(u"-"_qs));
        });
    }

    InterceptionDesktop desktop;
    QStringList seen;
};

TEST_F(KeyObservationTest, everyPathThatSeesAPressIsTold)
{
    desktop.map(FKey::f5, KeyAction::mute);
    watch();
    desktop.play("hid +F5 | 2ms | tap +F5 | 50ms | tap -F5 | 2ms | hid -F5");
    EXPECT_THAT(
        seen, ElementsAre(u"F5 IOHID fired global Mute audio"_qs, u"F5 EventTap already fired global Mute audio"_qs));
}

TEST_F(KeyObservationTest, aPressIsToldOfBeforeItsActionRuns)
{
    desktop.map(FKey::f5, KeyAction::mute);
    watch();
    desktop.actions.onExecute = [this](const ConfiguredAction&) { seen += u"runs"_qs; };
    desktop.play("tap +F5");
    EXPECT_THAT(seen, ElementsAre(u"F5 EventTap fired global Mute audio"_qs, u"runs"_qs));
}

TEST_F(KeyObservationTest, aPausedKeyAndOneThatIsNotCustomisedAreToldApart)
{
    desktop.map(FKey::f5, KeyAction::mute);
    watch();
    desktop.manager().triggerPhysicalKey(FKey::f6, TriggerSource::ioHid);
    desktop.profile.setFunctionKeysEnabled(false);
    desktop.manager().triggerPhysicalKey(FKey::f5, TriggerSource::ioHid);
    desktop.profile.setInterceptionEnabled(false);
    desktop.manager().triggerPhysicalKey(FKey::f5, TriggerSource::ioHid);
    EXPECT_THAT(
        seen, ElementsAre(u"F6 IOHID not customised - -"_qs, u"F5 IOHID paused - -"_qs, u"F5 IOHID paused - -"_qs));
}

TEST_F(KeyObservationTest, anEmptyObserverEndsIt)
{
    desktop.map(FKey::f5, KeyAction::mute);
    watch();
    desktop.manager().setKeyObserver({});
    EXPECT_EQ(desktop.play("tap +F5"), "mute");
    EXPECT_THAT(seen, IsEmpty());
}

} // namespace

} // namespace tarvin::test
