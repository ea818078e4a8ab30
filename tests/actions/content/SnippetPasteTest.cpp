#include "actions/support/PerformingDesktop.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using namespace std::chrono_literals;

class SnippetPasteTest : public testing::Test
{
protected:
    simulated::SimulatedPasteboard& pasteboard() { return desktop.platform.pasteboard(); }
    static ConfiguredAction snippet(const QString& text)
    {
        ConfiguredAction config(KeyAction::textSnippet);
        config.textSnippet = text;
        return config;
    }
    QStringList paste(const QString& text) { return desktop.run(snippet(text)).mid(1); }

    PerformingDesktop desktop;
};

TEST_F(SnippetPasteTest, theOldTextComesBackAfterThePaste)
{
    pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(paste(u"new"_qs), lines({"0 clipboard new", "0 down 9 command", "15 up 9 command", "600 clipboard old"}));
    EXPECT_EQ(pasteboard().content(), (PasteboardText{.text = u"old"_qs}));
}

TEST_F(SnippetPasteTest, anEmptyOldTextComesBackToo)
{
    pasteboard().copy({.text = QString()});
    EXPECT_EQ(paste(u"new"_qs).last(), u"600 clipboard "_qs);
}

TEST_F(SnippetPasteTest, anImageIsGoneAndTheSnippetStays)
{
    pasteboard().copyWithoutText();
    EXPECT_EQ(paste(u"new"_qs), lines({"0 clipboard new", "0 down 9 command", "15 up 9 command"}));
    EXPECT_EQ(pasteboard().content(), (PasteboardText{.text = u"new"_qs}));
}

TEST_F(SnippetPasteTest, aSecretComesBackAsASecret)
{
    pasteboard().copy({.text = u"password"_qs, .isSecret = true});
    EXPECT_EQ(paste(u"new"_qs),
        lines({"0 clipboard new", "0 down 9 command", "15 up 9 command", "600 clipboard password secret"}));
}

TEST_F(SnippetPasteTest, ofTwoPastesInARowTheFirstSnippetStays)
{
    pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(desktop.transcriptOf([this] {
        desktop.actions.executor.execute(snippet(u"first"_qs));
        desktop.platform.scheduler().advance(300ms);
        desktop.actions.executor.execute(snippet(u"second"_qs));
    }),
        lines({"0 use text_snippet", "0 clipboard first", "0 down 9 command", "15 up 9 command", "300 use text_snippet",
            "300 clipboard second", "300 down 9 command", "315 up 9 command", "600 clipboard old",
            "900 clipboard first"}));
}

TEST_F(SnippetPasteTest, aSlowOwnerIsWaitedForAndLosesNothing)
{
    pasteboard().setAnswerDelay(200ms);
    pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(
        paste(u"new"_qs), lines({"200 clipboard new", "200 down 9 command", "215 up 9 command", "800 clipboard old"}));
}

TEST_F(SnippetPasteTest, pastesKeepTheirOrderWhileAnOwnerIsSlow)
{
    pasteboard().setAnswerDelay(200ms);
    pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(desktop.transcriptOf([this] {
        desktop.actions.executor.execute(snippet(u"first"_qs));
        desktop.actions.executor.execute(snippet(u"second"_qs));
        desktop.actions.executor.execute(snippet(u"third"_qs));
    }),
        lines({"0 use text_snippet", "0 use text_snippet", "0 use text_snippet", "200 clipboard first",
            "200 down 9 command", "200 clipboard second", "200 down 9 command", "200 clipboard third",
            "200 down 9 command", "215 up 9 command", "215 up 9 command", "215 up 9 command", "800 clipboard old",
            "800 clipboard first", "800 clipboard second"}));
}

TEST_F(SnippetPasteTest, withoutATextTheStandardOneIsPasted)
{
    EXPECT_EQ(desktop.run(ConfiguredAction(KeyAction::textSnippet)).mid(1, 1),
        lines({"0 clipboard Sent from my MacBook Air via Tarvin"}));
    EXPECT_EQ(
        desktop.run(KeyAction::textSnippet).mid(0, 1), lines({"0 clipboard Sent from my MacBook Air via Tarvin"}));
}

TEST_F(SnippetPasteTest, behindTheProgramItselfTheTargetComesForwardFirst)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(
        paste(u"new"_qs), lines({"0 activate Safari", "80 clipboard new", "80 down 9 command", "95 up 9 command"}));
}

TEST_F(SnippetPasteTest, inTestSafeModeTheClipboardIsNotTouched)
{
    desktop.runInTestSafeMode();
    pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(paste(u"new"_qs), lines({}));
    EXPECT_EQ(pasteboard().readings(), 0);
}

} // namespace

} // namespace tarvin::test
