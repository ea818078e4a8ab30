#include "model/ActionParameters.h"

#include "model/ModelPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

namespace {

/// The stored names of all cases, after a check that each name leads back to its case.
template <typename Enumeration>
QStringList namesOf(const auto& cases, std::optional<Enumeration> (*lookup)(QStringView) noexcept)
{
    QStringList names;
    for (const Enumeration value : cases) {
        names << rawValue(value).toString();
        EXPECT_EQ(lookup(rawValue(value)), value);
    }
    return names;
}

TEST(ActionParameters, screenCaptureModes)
{
    EXPECT_EQ(namesOf(allScreenCaptureModes, screenCaptureModeFromRawValue),
        (QStringList{u"Screen"_qs, u"Window"_qs, u"Region"_qs}));
    EXPECT_EQ(screenCaptureModeFromRawValue(u"region"), std::nullopt);
}

TEST(ActionParameters, screenCaptureDestinations)
{
    EXPECT_EQ(namesOf(allScreenCaptureDestinations, screenCaptureDestinationFromRawValue),
        (QStringList{u"Clipboard"_qs, u"File"_qs}));
    EXPECT_EQ(screenCaptureDestinationFromRawValue(u""), std::nullopt);
}

TEST(ActionParameters, forceQuitModes)
{
    EXPECT_EQ(namesOf(allForceQuitModes, forceQuitModeFromRawValue),
        (QStringList{u"Frontmost app"_qs, u"Force Quit dialog (⌥⌘⎋)"_qs}));
    EXPECT_EQ(forceQuitModeFromRawValue(u"Frontmost App"), std::nullopt);
}

TEST(ActionParameters, multiKeyPlaybackModes)
{
    EXPECT_EQ(namesOf(allMultiKeyPlaybackModes, multiKeyPlaybackModeFromRawValue),
        (QStringList{u"simultaneous"_qs, u"sequential"_qs}));
    EXPECT_EQ(multiKeyPlaybackModeFromRawValue(u"Sequential"), std::nullopt);

    EXPECT_EQ(title(MultiKeyPlaybackMode::simultaneous), u"All at once");
    EXPECT_EQ(subtitle(MultiKeyPlaybackMode::simultaneous), u"Fires all keys together at the same time");
    EXPECT_EQ(shortLabel(MultiKeyPlaybackMode::simultaneous), u"Simultaneous");
    EXPECT_EQ(icon(MultiKeyPlaybackMode::simultaneous), u"bolt.horizontal.fill");
    EXPECT_EQ(title(MultiKeyPlaybackMode::sequential), u"In sequence");
    EXPECT_EQ(subtitle(MultiKeyPlaybackMode::sequential), u"Fires each key one after another in order");
    EXPECT_EQ(shortLabel(MultiKeyPlaybackMode::sequential), u"Sequence");
    EXPECT_EQ(icon(MultiKeyPlaybackMode::sequential), u"arrow.right.circle.fill");
}

TEST(ActionParameters, actionChainStepTypes)
{
    EXPECT_EQ(namesOf(allActionChainStepTypes, actionChainStepTypeFromRawValue),
        (QStringList{u"shortcut"_qs, u"delay"_qs, u"text_snippet"_qs, u"open_url"_qs, u"key_action"_qs}));
    EXPECT_EQ(actionChainStepTypeFromRawValue(u"openURL"), std::nullopt);

    EXPECT_EQ(title(ActionChainStepType::shortcut), u"Keyboard Shortcut");
    EXPECT_EQ(title(ActionChainStepType::delay), u"Wait Delay");
    EXPECT_EQ(title(ActionChainStepType::textSnippet), u"Insert Text");
    EXPECT_EQ(title(ActionChainStepType::openURL), u"Open URL");
    EXPECT_EQ(title(ActionChainStepType::keyAction), u"Key Action");
    EXPECT_EQ(icon(ActionChainStepType::shortcut), u"command");
    EXPECT_EQ(icon(ActionChainStepType::delay), u"clock.arrow.circlepath");
    EXPECT_EQ(icon(ActionChainStepType::textSnippet), u"character.cursor.ibeam");
    EXPECT_EQ(icon(ActionChainStepType::openURL), u"globe");
    EXPECT_EQ(icon(ActionChainStepType::keyAction), u"bolt.fill");
}

} // namespace

} // namespace tarvin
