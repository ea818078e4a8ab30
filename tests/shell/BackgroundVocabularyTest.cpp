#include "shell/BackgroundBehavior.h"
#include "shell/StartupDockMode.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin::test {

namespace {

TEST(BackgroundVocabularyTest, theDockModesSayWhatTheyDo)
{
    ASSERT_EQ(allStartupDockModes.size(), 2U);
    const auto hide = allStartupDockModes[0];
    EXPECT_EQ(hide, StartupDockMode::hideFromDock);
    EXPECT_EQ(rawValue(hide), u"hideFromDock");
    EXPECT_EQ(title(hide), u"Hide from Dock automatically");
    EXPECT_EQ(subtitle(hide),
        u"Runs quietly in the background without showing in the Dock or opening a window. Your custom keys work "
        u"instantly.");
    EXPECT_EQ(icon(hide), u"eye.slash.fill");
    EXPECT_EQ(tag(hide), u"Recommended");
    const auto show = allStartupDockModes[1];
    EXPECT_EQ(show, StartupDockMode::showInDock);
    EXPECT_EQ(rawValue(show), u"showInDock");
    EXPECT_EQ(title(show), u"Show in Dock");
    EXPECT_EQ(subtitle(show), u"Tarvin launches on startup and stays visible in your macOS Dock.");
    EXPECT_EQ(icon(show), u"dock.rectangle");
    EXPECT_EQ(tag(show), u"Standard");
}

TEST(BackgroundVocabularyTest, theBehaviorsSayWhatTheyPromise)
{
    struct Row
    {
        BackgroundBehavior behavior;
        QStringView texts[5];
    };
    const Row rows[] = {
        {BackgroundBehavior::menuBarOnly,
            {u"menuBarOnly", u"Menu Bar Only (Hide Dock Icon Always)",
                u"Runs completely in background without a Dock icon. Accessible from the menu bar.",
                u"menubar.rectangle", u"Default"}},
        {BackgroundBehavior::hideOnWindowClose,
            {u"hideOnWindowClose", u"Hide from Dock When Window is Closed",
                u"Shows in Dock while Studio is open; completely hides from Dock when closed.", u"macwindow.badge.plus",
                u"Adaptive"}},
        {BackgroundBehavior::stealthLowPower,
            {u"stealthLowPower", u"Silent Stealth & Ultra-Low Power",
                u"Runs silently with zero Dock presence, near 0% CPU, and zero battery drain.", u"bolt.slash.fill",
                u"Max Power Saving"}},
    };
    ASSERT_EQ(allBackgroundBehaviors.size(), std::size(rows));
    for (std::size_t position = 0; position < std::size(rows); ++position) {
        const auto& [behavior, texts] = rows[position];
        EXPECT_EQ(allBackgroundBehaviors[position], behavior);
        EXPECT_EQ(rawValue(behavior), texts[0]);
        EXPECT_EQ(title(behavior), texts[1]);
        EXPECT_EQ(subtitle(behavior), texts[2]);
        EXPECT_EQ(icon(behavior), texts[3]);
        EXPECT_EQ(tag(behavior), texts[4]);
    }
}

TEST(BackgroundVocabularyTest, aStoredNameFindsItsCaseAndNothingElseDoes)
{
    for (const StartupDockMode mode : allStartupDockModes)
        EXPECT_EQ(startupDockModeFromRawValue(rawValue(mode)), mode);
    for (const BackgroundBehavior behavior : allBackgroundBehaviors)
        EXPECT_EQ(backgroundBehaviorFromRawValue(rawValue(behavior)), behavior);
    EXPECT_EQ(startupDockModeFromRawValue(u"hidefromdock"), std::nullopt);
    EXPECT_EQ(startupDockModeFromRawValue(u""), std::nullopt);
    EXPECT_EQ(backgroundBehaviorFromRawValue(u"showInDock"), std::nullopt);
}

} // namespace

} // namespace tarvin::test
