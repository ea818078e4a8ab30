#include <gtest/gtest.h>

#include "tapd/service/ServiceBench.h"

#include <random>

namespace tarvin::tapd::test {

using namespace std::chrono_literals;

namespace {

class TapServiceTest : public testing::Test
{
protected:
    ServiceBench bench;
};

/// The answer to every ping among the frames.
void answer(ApplicationEnd& application, const std::vector<DaemonFrame>& frames)
{
    for (const DaemonFrame& frame : frames) {
        if (const auto* const ping = std::get_if<Ping>(&frame))
            application.send(Pong{.number = ping->number});
    }
}

} // namespace

TEST_F(TapServiceTest, theApplicationIsGreetedAndHearsOfItsKeys)
{
    ApplicationEnd application = bench.connect();
    EXPECT_EQ(inWords(application.receive()), "welcome");
    bench.publish(application, {FKey::f5});
    EXPECT_EQ(bench.play("+a +f5 -f5 -a"), "+a -a");
    EXPECT_EQ(inWords(application.receive()), "+f5, -f5");
}

/// The promise on which the whole daemon stands: all keys there are, alone and under modifiers, with everything
/// published, and every byte that reaches the application is looked at.
TEST_F(TapServiceTest, whatIsTypedNeverReachesTheApplication)
{
    ApplicationEnd application = bench.connect();
    application.send(Publish{.keys = allKeys, .takesSummon = true});
    bench.service.readApplication(bench.now());
    std::mt19937 random(7);
    constexpr int rounds = 20'000;
    std::size_t keysHeard = 0;
    KeyBits held;
    std::vector<input_event> events;
    for (int round = 0; round < rounds; ++round) {
        const auto code = static_cast<std::uint16_t>(1 + random() % (KEY_MAX - 1));
        events.clear();
        const auto append = [&](std::uint16_t type, std::uint16_t eventCode, int value) {
            input_event event{};
            event.type = type;
            event.code = eventCode;
            event.value = value;
            events.push_back(event);
        };
        append(EV_MSC, MSC_SCAN, 0x70000 | code);
        append(EV_KEY, code, held[code] ? static_cast<int>(random() % 2) * 2 : 1);
        held[code] = events.back().value != 0;
        append(EV_SYN, SYN_REPORT, 0);
        bench.service.handleEvents(bench.keyboard, events);

        for (const DaemonFrame& frame : application.receive()) {
            const auto* const taken = std::get_if<KeyTaken>(&frame);
            if (taken == nullptr) {
                const bool isNoKey =
                    std::holds_alternative<Welcome>(frame) || std::holds_alternative<SummonTaken>(frame);
                ASSERT_TRUE(isNoKey);
                ASSERT_TRUE(std::holds_alternative<Welcome>(frame) || code == KEY_K);
                continue;
            }
            ++keysHeard;
            const KeyCodeRow* const row = keyRowOfEvdevCode(taken->code);
            ASSERT_NE(row, nullptr);
            ASSERT_TRUE(fKeyOf(*row)) << row->name << " is no customisable key";
            ASSERT_EQ(taken->code, code);
            ASSERT_EQ(taken->scan, 0x70000U | code) << "nothing rides along";
        }
    }
    EXPECT_GT(keysHeard, 100U);
}

TEST_F(TapServiceTest, aTypedSentenceLeavesNoTraceInTheBytesOfTheSocket)
{
    ApplicationEnd application = bench.connect();
    bench.publish(application, FKeySet::all());
    static_cast<void>(application.receive());
    const std::size_t before = application.bytes().size();
    EXPECT_NE(bench.play("+leftShift +s -s -leftShift +e -e +c -c +r -r +e -e +t -t +1 -1 +return -return"), "");
    static_cast<void>(application.receive());
    EXPECT_EQ(application.bytes().size(), before) << "not even that something was typed";
}

TEST_F(TapServiceTest, withoutAnApplicationNoKeyboardIsWantedAndEverythingPasses)
{
    EXPECT_FALSE(bench.service.wantsKeyboards());
    {
        ApplicationEnd application = bench.connect();
        EXPECT_FALSE(bench.service.wantsKeyboards()) << "nothing is published yet";
        bench.publish(application, {FKey::f5});
        EXPECT_TRUE(bench.service.wantsKeyboards());
        EXPECT_EQ(bench.play("+f5 -f5"), "");
    }
    bench.service.readApplication(bench.now());
    EXPECT_FALSE(bench.service.hasApplication());
    EXPECT_FALSE(bench.service.wantsKeyboards());
    EXPECT_EQ(bench.play("+f5 -f5"), "+f5 -f5");
}

TEST_F(TapServiceTest, aKeyHeldWhileItsApplicationExitsStaysFromTheSystemUntilItIsUp)
{
    {
        ApplicationEnd application = bench.connect();
        bench.publish(application, {FKey::f5});
        bench.play("+f5");
    }
    bench.service.readApplication(bench.now());
    EXPECT_FALSE(bench.service.isAtRest(bench.keyboard));
    EXPECT_EQ(bench.play("~f5 -f5 +f5 -f5"), "+f5 -f5");
    EXPECT_TRUE(bench.service.isAtRest(bench.keyboard));
}

TEST_F(TapServiceTest, aNewApplicationTakesThePlaceOfTheOldOne)
{
    ApplicationEnd old = bench.connect();
    bench.publish(old, {FKey::f5});
    ApplicationEnd next = bench.connect();
    EXPECT_TRUE(old.isClosed());
    EXPECT_EQ(bench.play("+f5 -f5"), "+f5 -f5") << "the set of the old one is gone";
    bench.publish(next, {FKey::f6});
    EXPECT_EQ(bench.play("+f5 -f5 +f6 -f6"), "+f5 -f5");
    EXPECT_EQ(inWords(next.receive()), "welcome, +f6, -f6");
}

TEST_F(TapServiceTest, aClientThatSendsRubbishIsDroppedAndNothingElseHappens)
{
    constexpr int rounds = 2'000;
    std::mt19937 random(99);
    for (int round = 0; round < rounds; ++round) {
        ApplicationEnd application = bench.connect();
        bench.publish(application, {FKey::f5});
        std::vector<std::byte> rubbish(1 + random() % 80);
        std::ranges::generate(rubbish, [&] { return static_cast<std::byte>(random()); });
        if (random() % 2 == 0)
            rubbish.front() = std::byte{protocolVersion};
        ASSERT_FALSE(decodeApplicationFrame(rubbish)) << "by chance no rubbish; choose another seed";
        ASSERT_TRUE(application.send(rubbish));
        bench.service.readApplication(bench.now());
        ASSERT_FALSE(bench.service.hasApplication());
        ASSERT_TRUE(application.isClosed());
        ASSERT_EQ(bench.play("+a +f5 -f5 -a"), "+a +f5 -f5 -a");
        ASSERT_EQ(bench.outputs.takePosted(), "");
    }
}

TEST_F(TapServiceTest, aFrameOfTheDaemonFromTheApplicationIsRubbish)
{
    ApplicationEnd application = bench.connect();
    ASSERT_TRUE(application.send(encode(DaemonFrame(Ping{})).bytes()));
    bench.service.readApplication(bench.now());
    EXPECT_FALSE(bench.service.hasApplication());
}

TEST_F(TapServiceTest, anApplicationThatAnswersIsTrusted)
{
    ApplicationEnd application = bench.connect();
    bench.publish(application, {FKey::f5});
    for (int i = 0; i < 100; ++i) {
        bench.advance(300ms);
        answer(application, application.receive());
        bench.service.readApplication(bench.now());
    }
    EXPECT_EQ(bench.play("+f5 -f5"), "");
}

TEST_F(TapServiceTest, withinASecondOfHangingTheKeysAreAsFromTheFactory)
{
    ApplicationEnd application = bench.connect();
    bench.publish(application, {FKey::f5});
    bench.advance(999ms);
    EXPECT_EQ(bench.play("+f5 -f5"), "");
    bench.advance(1ms);
    EXPECT_EQ(bench.play("+f5 -f5"), "+f5 -f5");
    EXPECT_TRUE(bench.service.hasApplication()) << "it may come back";
    EXPECT_FALSE(bench.service.deadline(bench.now())) << "nobody is asked again and again";
}

TEST_F(TapServiceTest, anApplicationThatComesBackHasItsKeysAgain)
{
    ApplicationEnd application = bench.connect();
    bench.publish(application, {FKey::f5});
    bench.advance(5s);
    EXPECT_EQ(bench.play("+f5 -f5"), "+f5 -f5");
    answer(application, application.receive());
    bench.service.readApplication(bench.now());
    EXPECT_EQ(bench.play("+f5 -f5"), "");
    EXPECT_TRUE(bench.service.deadline(bench.now()));
}

TEST_F(TapServiceTest, anApplicationWithoutKeysIsNotAskedWhetherItLives)
{
    ApplicationEnd application = bench.connect();
    EXPECT_FALSE(bench.service.deadline(bench.now()));
    bench.publish(application, {FKey::f5});
    EXPECT_TRUE(bench.service.deadline(bench.now()));
    bench.publish(application, {});
    EXPECT_FALSE(bench.service.deadline(bench.now()));
}

TEST_F(TapServiceTest, anApplicationThatDoesNotReadIsDroppedBeforeItDelaysAnything)
{
    ApplicationEnd application = bench.connect();
    bench.publish(application, {FKey::f5});
    constexpr int more = 10'000; // than any socket holds
    for (int i = 0; i < more && bench.service.hasApplication(); ++i)
        bench.play("+f5 -f5");
    EXPECT_FALSE(bench.service.hasApplication());
    EXPECT_EQ(bench.play("+f5 -f5"), "+f5 -f5");
}

TEST_F(TapServiceTest, theWayOutGivesEverythingBackAndIsTold)
{
    ApplicationEnd application = bench.connect();
    bench.publish(application, {FKey::f5});
    static_cast<void>(application.receive());
    bench.play("+backspace +escape +return");
    bench.advance(499ms);
    EXPECT_FALSE(bench.service.takeWayOut());
    bench.advance(1ms);
    EXPECT_TRUE(bench.service.takeWayOut());
    EXPECT_FALSE(bench.service.takeWayOut()) << "once";
    EXPECT_FALSE(bench.service.wantsKeyboards());
    EXPECT_EQ(inWords(application.receive()), "ping, way out 1");
    EXPECT_EQ(bench.play("+f5 -f5"), "+f5 -f5");
}

TEST_F(TapServiceTest, afterTheWayOutOnlyKeysPublishedInKnowledgeOfItCount)
{
    ApplicationEnd application = bench.connect();
    bench.publish(application, {FKey::f5});
    bench.play("+backspace +escape +return");
    bench.advance(500ms);
    EXPECT_TRUE(bench.service.takeWayOut());
    bench.publish(application, {FKey::f5, FKey::f6}, 0);
    EXPECT_FALSE(bench.service.wantsKeyboards()) << "sent before the way out was heard of";
    bench.publish(application, {}, 1);
    EXPECT_FALSE(bench.service.wantsKeyboards()) << "the master switch is off";
    bench.publish(application, {FKey::f5}, 1);
    EXPECT_TRUE(bench.service.wantsKeyboards()) << "the user switched it on again";
}

TEST_F(TapServiceTest, anApplicationThatComesLaterHearsOfTheWayOut)
{
    {
        ApplicationEnd application = bench.connect();
        bench.publish(application, {FKey::f5});
        bench.play("+backspace +escape +return");
        bench.advance(500ms);
    }
    ApplicationEnd next = bench.connect();
    EXPECT_EQ(inWords(next.receive()), "welcome out");
}

TEST_F(TapServiceTest, postedKeysGoThroughTheirOwnDevice)
{
    ApplicationEnd application = bench.connect();
    application.send(Post{.code = KEY_LEFTCTRL, .motion = KeyMotion::press});
    application.send(Post{.code = KEY_C, .motion = KeyMotion::press});
    application.send(Post{.code = KEY_C, .motion = KeyMotion::release});
    bench.service.readApplication(bench.now());
    EXPECT_EQ(bench.outputs.takePosted(), "+leftControl +c -c");
    EXPECT_EQ(bench.outputs.takeWritten(), "");
}

TEST_F(TapServiceTest, whatWasToBePostedDuringAPauseIsNotPostedAfterIt)
{
    ApplicationEnd application = bench.connect();
    application.send(Post{.code = KEY_A, .motion = KeyMotion::press});
    bench.service.readApplication(bench.now());
    EXPECT_EQ(bench.outputs.takePosted(), "+a");
    application.send(Post{.code = KEY_A, .motion = KeyMotion::release});
    application.send(Post{.code = KEY_B, .motion = KeyMotion::press});
    application.send(Post{.code = KEY_B, .motion = KeyMotion::release});
    application.send(Publish{.keys = 1U << static_cast<unsigned>(FKey::f5)});
    bench.service.readApplicationAfterPause(bench.now());
    EXPECT_EQ(bench.outputs.takePosted(), "-a -b") << "a release of what is up does nothing";
    EXPECT_EQ(bench.play("+f5"), "") << "all else counts";
    application.send(Post{.code = KEY_B, .motion = KeyMotion::press});
    bench.service.readApplication(bench.now());
    EXPECT_EQ(bench.outputs.takePosted(), "+b");
}

TEST_F(TapServiceTest, whatAnApplicationHasPostedGoesUpWithIt)
{
    {
        ApplicationEnd application = bench.connect();
        application.send(Post{.code = KEY_LEFTCTRL, .motion = KeyMotion::press});
        application.send(Post{.code = KEY_C, .motion = KeyMotion::press});
        bench.service.readApplication(bench.now());
    }
    bench.service.readApplication(bench.now());
    EXPECT_EQ(bench.outputs.takePosted(), "+leftControl +c -leftControl -c");
}

TEST_F(TapServiceTest, onlyKeysThatTheProgramHasAWordForCanBePosted)
{
    ApplicationEnd application = bench.connect();
    application.send(Post{.code = KEY_POWER, .motion = KeyMotion::press});
    application.send(Post{.code = KEY_SYSRQ, .motion = KeyMotion::press});
    bench.service.readApplication(bench.now());
    EXPECT_EQ(bench.outputs.takePosted(), "");
}

} // namespace tarvin::tapd::test
