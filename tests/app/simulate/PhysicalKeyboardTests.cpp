#include "app/simulate/PhysicalKeyboard.h"

#include "platform/simulated/Names.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <gmock/gmock.h>

namespace tarvin::simulate {
namespace {

using namespace std::chrono_literals;
using simulated::EventDelivered;
using simulated::EventOutcome;
using simulated::EventReceived;
using simulated::HidValueDelivered;
using simulated::InputPath;
using testing::ElementsAre;
using testing::IsEmpty;

class PhysicalKeyboardTest : public testing::Test
{
protected:
    PhysicalKeyboardTest()
    {
        desktop.workspace().setFrontmost(
            {.processIdentifier = 501, .bundleIdentifiers = {u"com.apple.Safari"_qs}, .localizedName = u"Safari"_qs});
        listen(TapLocation::hid, hidTap);
        listen(TapLocation::session, sessionTap);
        global = desktop.inputTaps().addGlobalMonitor([](const InputEvent&) {});
        local = desktop.inputTaps().addLocalMonitor([this](const InputEvent&) { return localVerdict; });
        hid = desktop.inputTaps().openHidManager([](const HidValue&) {});
        desktop.effects().clear();
    }

    void listen(TapLocation location, std::unique_ptr<EventTap>& tap)
    {
        tap = desktop.inputTaps().createTap(
            location, [this, location](const InputEvent&) { return verdicts[static_cast<std::size_t>(location)]; });
        tap->attachToMainLoop();
        tap->enable();
    }

    void press(const PressKey& key, simulated::VirtualTime wait = 2s)
    {
        keyboard.press(key);
        desktop.scheduler().advance(wait);
    }

    /// Where the reports went, one word per report and path.
    QStringList road()
    {
        QStringList stations;
        for (const simulated::Effect& effect : desktop.effects().effects()) {
            if (const auto* value = std::get_if<HidValueDelivered>(&effect.what))
                stations << (value->value.value == 1 ? u"hid down"_qs : u"hid up"_qs);
            else if (const auto* event = std::get_if<EventDelivered>(&effect.what))
                stations << simulated::nameIn(simulated::inputPathNames, event->path).toString();
            else if (const auto* received = std::get_if<EventReceived>(&effect.what))
                stations << u"to "_qs + received->application.value_or(u"nobody"_qs);
        }
        return stations;
    }

    std::vector<InputEvent> eventsAt(InputPath path)
    {
        std::vector<InputEvent> events;
        for (const EventDelivered& delivered : desktop.effects().all<EventDelivered>()) {
            if (delivered.path == path)
                events.push_back(delivered.event);
        }
        return events;
    }

    simulated::SimulatedPlatform desktop;
    PhysicalKeyboard keyboard{desktop};
    std::array<EventVerdict, 2> verdicts{EventVerdict::pass, EventVerdict::pass};
    EventVerdict localVerdict = EventVerdict::pass;
    std::unique_ptr<EventTap> hidTap;
    std::unique_ptr<EventTap> sessionTap;
    std::unique_ptr<EventMonitor> global;
    std::unique_ptr<EventMonitor> local;
    std::unique_ptr<HidManager> hid;
};

TEST_F(PhysicalKeyboardTest, anEventThatPassesTakesTheWholeRoad)
{
    press({.key = FKey::f5, .hold = 50ms});
    EXPECT_EQ(road(),
        (QStringList{u"hid down"_qs, u"hidTap"_qs, u"sessionTap"_qs, u"globalMonitor"_qs, u"to Safari"_qs, u"hid up"_qs,
            u"hidTap"_qs, u"sessionTap"_qs, u"globalMonitor"_qs, u"to Safari"_qs}));
    const std::vector<InputEvent> events = eventsAt(InputPath::hidTap);
    EXPECT_EQ(events[0].type, InputEventType::keyDown);
    EXPECT_EQ(events[0].keyCode, 96);
    EXPECT_EQ(events[1].type, InputEventType::keyUp);
    EXPECT_THAT(desktop.effects().timesOf<HidValueDelivered>(), ElementsAre(0us, 50ms));
}

TEST_F(PhysicalKeyboardTest, whatOneTapConsumesNobodyBehindItSees)
{
    verdicts[static_cast<std::size_t>(TapLocation::session)] = EventVerdict::consume;
    press({.key = FKey::f5, .hold = 50ms});
    EXPECT_EQ(road(),
        (QStringList{u"hid down"_qs, u"hidTap"_qs, u"sessionTap"_qs, u"hid up"_qs, u"hidTap"_qs, u"sessionTap"_qs}));
    desktop.effects().clear();
    verdicts[static_cast<std::size_t>(TapLocation::hid)] = EventVerdict::consume;
    press({.key = FKey::f5, .hold = 50ms});
    EXPECT_EQ(road(), (QStringList{u"hid down"_qs, u"hidTap"_qs, u"hid up"_qs, u"hidTap"_qs}));
}

TEST_F(PhysicalKeyboardTest, theProgramsOwnWindowsAreReachedThroughTheLocalMonitor)
{
    desktop.appShell().becomeActive();
    press({.key = KeyCode{0}, .hold = 50ms});
    EXPECT_EQ(road(),
        (QStringList{u"hidTap"_qs, u"sessionTap"_qs, u"localMonitor"_qs, u"to Tarvin"_qs, u"hidTap"_qs,
            u"sessionTap"_qs, u"localMonitor"_qs, u"to Tarvin"_qs}));
    desktop.effects().clear();
    localVerdict = EventVerdict::consume;
    press({.key = KeyCode{0}, .hold = 50ms});
    EXPECT_EQ(road().count(u"to Tarvin"_qs), 0);
}

TEST_F(PhysicalKeyboardTest, withoutAFrontApplicationTheEventGoesNowhere)
{
    desktop.workspace().setFrontmostProcess(std::nullopt);
    press({.key = FKey::f5, .hold = 50ms});
    EXPECT_EQ(road().count(u"to nobody"_qs), 2);
}

TEST_F(PhysicalKeyboardTest, aHeldKeyRepeatsAfterAWhile)
{
    press({.key = FKey::f5, .hold = 701ms});
    const std::vector<InputEvent> events = eventsAt(InputPath::sessionTap);
    ASSERT_EQ(events.size(), 5u);
    EXPECT_EQ(events[0].autorepeat, 0);
    for (std::size_t index = 1; index < 4; ++index) {
        EXPECT_EQ(events[index].type, InputEventType::keyDown);
        EXPECT_NE(events[index].autorepeat, 0);
    }
    EXPECT_EQ(events[4].type, InputEventType::keyUp);
    EXPECT_EQ(desktop.effects().count<HidValueDelivered>(), 2u);
}

TEST_F(PhysicalKeyboardTest, aModifierChangesTheFlagsAndDoesNotRepeat)
{
    press({.key = FKey::rightOption, .flags = EventFlags::shift, .hold = 1s});
    const std::vector<InputEvent> events = eventsAt(InputPath::sessionTap);
    ASSERT_EQ(events.size(), 2u);
    EXPECT_EQ(events[0].type, InputEventType::flagsChanged);
    EXPECT_EQ(events[0].keyCode, 61);
    EXPECT_EQ(events[0].flags, EventFlags::shift | EventFlags::option);
    EXPECT_EQ(events[1].type, InputEventType::flagsChanged);
    EXPECT_EQ(events[1].flags, EventFlags::shift);
}

TEST_F(PhysicalKeyboardTest, thePrintedFunctionOfAKeyIsAMediaEventOrAnotherCode)
{
    press({.key = FKey::f10, .form = PressForm::printed, .hold = 550ms});
    const std::vector<InputEvent> media = eventsAt(InputPath::sessionTap);
    ASSERT_EQ(media.size(), 3u);
    for (const InputEvent& event : media) {
        EXPECT_EQ(event.type, InputEventType::systemDefined);
        ASSERT_TRUE(event.systemDefined.has_value());
        EXPECT_EQ(event.systemDefined->keyType(), 7);
    }
    EXPECT_TRUE(media[0].systemDefined->isDown());
    EXPECT_FALSE(media[0].systemDefined->isRepeat());
    EXPECT_TRUE(media[1].systemDefined->isRepeat());
    EXPECT_FALSE(media[2].systemDefined->isDown());
    EXPECT_EQ(desktop.effects().all<HidValueDelivered>().front().value.page, 12u);
    desktop.effects().clear();
    press({.key = FKey::f3, .form = PressForm::printed, .hold = 50ms});
    EXPECT_EQ(eventsAt(InputPath::sessionTap).front().keyCode, 160);
}

TEST_F(PhysicalKeyboardTest, pressesMayOverlap)
{
    keyboard.press({.key = FKey::f5, .hold = 300ms});
    desktop.scheduler().advance(100ms);
    press({.key = FKey::f6, .hold = 50ms});
    std::vector<std::pair<InputEventType, KeyCode>> order;
    for (const InputEvent& event : eventsAt(InputPath::sessionTap))
        order.emplace_back(event.type, event.keyCode);
    EXPECT_THAT(order,
        ElementsAre(std::pair(InputEventType::keyDown, 96), std::pair(InputEventType::keyDown, 97),
            std::pair(InputEventType::keyUp, 97), std::pair(InputEventType::keyUp, 96)));
}

TEST_F(PhysicalKeyboardTest, nothingHappensBeforeTimeMoves)
{
    keyboard.press({.key = FKey::f5, .hold = 50ms});
    EXPECT_THAT(road(), IsEmpty());
    desktop.scheduler().runPosted();
    EXPECT_EQ(road().size(), 5);
}

} // namespace
} // namespace tarvin::simulate
