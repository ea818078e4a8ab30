#include "actions/support/PerformingDesktop.h"

#include "actions/content/WebAddress.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

using namespace std::chrono_literals;

class WebActionsTest : public testing::Test
{
protected:
    static ConfiguredAction address(const QString& text)
    {
        ConfiguredAction config(KeyAction::openWebURL);
        config.customURL = text;
        return config;
    }
    QStringList openedBy(const std::optional<QString>& question)
    {
        return {u"120 url "_qs + assistantAddress(question.value_or(QString()))};
    }
    QStringList askAbout(const PasteboardText& copied)
    {
        desktop.platform.pasteboard().copy(copied);
        return desktop.run(KeyAction::aiAssistant).filter(u"url"_qs);
    }

    PerformingDesktop desktop;
};

TEST_F(WebActionsTest, anAddressIsOpened)
{
    EXPECT_EQ(desktop.run(address(u" example.org "_qs)), lines({"0 use open_web_url", "0 url https://example.org"}));
}

TEST_F(WebActionsTest, withoutAnAddressTheDefaultOneIsOpened)
{
    const QString standard = u"0 url "_qs + webAddress(std::nullopt).value_or(QString());
    EXPECT_EQ(desktop.run(KeyAction::openWebURL), QStringList(standard));
    EXPECT_EQ(desktop.run(address(u"  "_qs)).last(), standard);
}

TEST_F(WebActionsTest, aTextThatMakesNoAddressOpensNothing)
{
    EXPECT_EQ(desktop.run(address(u"not an address"_qs)), lines({"0 use open_web_url"}));
}

TEST_F(WebActionsTest, inTestSafeModeNoAddressIsOpened)
{
    desktop.runInTestSafeMode();
    EXPECT_EQ(desktop.run(KeyAction::openWebURL), lines({}));
}

TEST_F(WebActionsTest, theAssistantIsAskedAboutWhatTheApplicationCopies)
{
    EXPECT_EQ(desktop.transcriptOf([this] {
        desktop.actions.executor.execute(KeyAction::aiAssistant);
        desktop.platform.scheduler().callAfter(
            100ms, [this] { desktop.platform.pasteboard().copy({.text = u" selected text\n"_qs}); });
    }),
        lines({"0 down 8 command", "15 up 8 command"}) + openedBy(u"selected text"_qs));
    EXPECT_EQ(desktop.platform.pasteboard().content()->text, u" selected text\n"_qs);
}

TEST_F(WebActionsTest, withNothingSelectedTheOldClipboardGoesOut)
{
    EXPECT_EQ(askAbout({.text = u"old"_qs}), openedBy(u"old"_qs));
}

TEST_F(WebActionsTest, aClipboardWithoutTextOpensThePageAlone)
{
    EXPECT_EQ(askAbout({.text = u" \n"_qs}), openedBy(std::nullopt));
    desktop.platform.pasteboard().copyWithoutText();
    EXPECT_EQ(desktop.run(KeyAction::aiAssistant).filter(u"url"_qs), openedBy(std::nullopt));
}

TEST_F(WebActionsTest, aSecretIsNeverSentToTheAssistant)
{
    EXPECT_EQ(askAbout({.text = u"password"_qs, .isSecret = true}), openedBy(std::nullopt));
}

TEST_F(WebActionsTest, theAssistantTakesTheProgramItselfAtItsWord)
{
    desktop.bringSelfToFront();
    EXPECT_EQ(desktop.run(KeyAction::aiAssistant).first(), u"0 down 8 command"_qs);
}

TEST_F(WebActionsTest, inTestSafeModeThePageOpensWithoutTheKeystroke)
{
    desktop.runInTestSafeMode();
    desktop.platform.pasteboard().copy({.text = u"old"_qs});
    EXPECT_EQ(desktop.run(KeyAction::aiAssistant), openedBy(u"old"_qs));
}

} // namespace

} // namespace tarvin::test
