#include "platform/linux/x11/GrabBook.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <initializer_list>

namespace tarvin::x11 {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr Keycode f5 = 71;
constexpr Keycode f6 = 72;
constexpr DeviceId desk = 7;
constexpr DeviceId laptop = 8;

KeycodeSet setOf(std::initializer_list<Keycode> keycodes)
{
    KeycodeSet set;
    for (const Keycode keycode : keycodes)
        set.set(keycode);
    return set;
}

GrabStep install(DeviceId device, Keycode keycode)
{
    return {{device, keycode}, GrabStep::Change::install};
}

GrabStep remove(DeviceId device, Keycode keycode)
{
    return {{device, keycode}, GrabStep::Change::remove};
}

class GrabBooks : public ::testing::Test
{
protected:
    /// Carries the steps out with success.
    void grant(const GrabSteps& steps)
    {
        for (const GrabStep& step : steps) {
            if (step.change == GrabStep::Change::install) {
                EXPECT_FALSE(book.noteInstalled(step.key));
            }
        }
    }

    GrabBook book;
};

TEST_F(GrabBooks, aNewKeyboardGetsWhatIsWanted)
{
    EXPECT_THAT(book.setWanted(setOf({f5, f6})), IsEmpty());
    EXPECT_THAT(book.addDevice(desk), UnorderedElementsAre(install(desk, f5), install(desk, f6)));
}

TEST_F(GrabBooks, onlyTheDifferenceIsAskedFor)
{
    grant(book.setWanted(setOf({f5})));
    grant(book.addDevice(desk));
    grant(book.addDevice(laptop));
    EXPECT_THAT(book.setWanted(setOf({f5, f6})), ElementsAre(install(desk, f6), install(laptop, f6)));
}

TEST_F(GrabBooks, whatIsNoLongerWantedIsRemoved)
{
    static_cast<void>(book.setWanted(setOf({f5, f6})));
    grant(book.addDevice(desk));
    EXPECT_THAT(book.setWanted(setOf({f6})), ElementsAre(remove(desk, f5)));
    EXPECT_FALSE(book.isInstalled({desk, f5}));
    EXPECT_TRUE(book.isInstalled({desk, f6}));
    EXPECT_THAT(book.setWanted(setOf({f6})), IsEmpty());
}

TEST_F(GrabBooks, aKeyIsInstalledOnlyAfterTheServerSaysSo)
{
    static_cast<void>(book.setWanted(setOf({f5})));
    const GrabSteps steps = book.addDevice(desk);
    EXPECT_FALSE(book.isInstalled({desk, f5}));
    grant(steps);
    EXPECT_TRUE(book.isInstalled({desk, f5}));
    EXPECT_FALSE(book.isInstalled({laptop, f5}));
}

TEST_F(GrabBooks, aRefusalIsNewsOnceAndSoIsItsEnd)
{
    static_cast<void>(book.setWanted(setOf({f5})));
    static_cast<void>(book.addDevice(desk));
    EXPECT_TRUE(book.noteRefused({desk, f5}));
    EXPECT_FALSE(book.noteRefused({desk, f5}));
    EXPECT_THAT(book.retries(), ElementsAre(install(desk, f5)));
    EXPECT_TRUE(book.noteInstalled({desk, f5}));
    EXPECT_THAT(book.retries(), IsEmpty());
    EXPECT_TRUE(book.isInstalled({desk, f5}));
}

TEST_F(GrabBooks, whatWasRefusedIsNotAskedForWithEveryChange)
{
    static_cast<void>(book.setWanted(setOf({f5})));
    static_cast<void>(book.addDevice(desk));
    static_cast<void>(book.noteRefused({desk, f5}));
    EXPECT_THAT(book.setWanted(setOf({f5, f6})), ElementsAre(install(desk, f6)));
    EXPECT_THAT(book.setWanted({}), IsEmpty());
    EXPECT_THAT(book.retries(), IsEmpty());
    EXPECT_THAT(book.setWanted(setOf({f5})), ElementsAre(install(desk, f5)));
}

TEST_F(GrabBooks, aKeyboardThatComesBackHasNoGrabs)
{
    static_cast<void>(book.setWanted(setOf({f5})));
    grant(book.addDevice(desk));
    EXPECT_THAT(book.addDevice(desk), ElementsAre(install(desk, f5)));
    book.removeDevice(desk);
    EXPECT_FALSE(book.isInstalled({desk, f5}));
    EXPECT_THAT(book.setWanted({}), IsEmpty());
}

TEST_F(GrabBooks, theKeyboardsThatGrabAKeyAreKnown)
{
    static_cast<void>(book.setWanted(setOf({f5})));
    grant(book.addDevice(desk));
    static_cast<void>(book.addDevice(laptop));
    EXPECT_THAT(book.devicesGrabbing(f5), ElementsAre(desk));
    EXPECT_THAT(book.devicesGrabbing(f6), IsEmpty());
}

} // namespace

} // namespace tarvin::x11
