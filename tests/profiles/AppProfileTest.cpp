#include "profiles/AppProfile.h"

#include "model/JsonText.h"
#include "profiles/ProfilePrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonObject>

namespace tarvin {

namespace {

using testing::ElementsAre;

TEST(AppProfile, thePresetsStandInTheirOrder)
{
    EXPECT_THAT(AppProfile::presets(),
        ElementsAre(AppProfile{u"global"_qs, u"All Applications"_qs, std::nullopt, u"globe"_qs},
            AppProfile{u"safari"_qs, u"Safari"_qs, u"com.apple.Safari"_qs, u"safari.fill"_qs},
            AppProfile{u"xcode"_qs, u"Xcode"_qs, u"com.apple.dt.Xcode"_qs, u"hammer.fill"_qs},
            AppProfile{u"terminal"_qs, u"Terminal"_qs, u"com.apple.Terminal"_qs, u"terminal.fill"_qs},
            AppProfile{u"finder"_qs, u"Finder"_qs, u"com.apple.finder"_qs, u"folder.fill"_qs}));
}

TEST(AppProfile, everyFieldCountsForEqualityAndHash)
{
    const AppProfile safari = AppProfile::safari();
    AppProfile otherId = safari;
    otherId.id = u"x"_qs;
    AppProfile otherName = safari;
    otherName.name = u"x"_qs;
    AppProfile otherBundle = safari;
    otherBundle.bundleIdentifier = u"x"_qs;
    AppProfile withoutBundle = safari;
    withoutBundle.bundleIdentifier.reset();
    AppProfile emptyBundle = safari;
    emptyBundle.bundleIdentifier = QString();
    AppProfile otherIcon = safari;
    otherIcon.iconName = u"x"_qs;

    EXPECT_EQ(safari, AppProfile::safari());
    EXPECT_EQ(qHash(safari), qHash(AppProfile::safari()));
    EXPECT_NE(withoutBundle, emptyBundle);
    EXPECT_NE(qHash(withoutBundle), qHash(emptyBundle));
    for (const AppProfile& other : {otherId, otherName, otherBundle, withoutBundle, emptyBundle, otherIcon}) {
        EXPECT_NE(safari, other);
        EXPECT_NE(qHash(safari), qHash(other)) << testing::PrintToString(other);
    }
}

TEST(AppProfile, theFieldsAreWrittenUnderTheirOwnNames)
{
    EXPECT_EQ(toJson(AppProfile::safari()),
        json(
            R"({"id": "safari", "name": "Safari", "bundleIdentifier": "com.apple.Safari", "iconName": "safari.fill"})"));
    EXPECT_EQ(
        toJson(AppProfile::global()), json(R"({"id": "global", "name": "All Applications", "iconName": "globe"})"));
}

TEST(AppProfile, everyPresetSurvivesWritingAndReading)
{
    for (const AppProfile& profile : AppProfile::presets())
        EXPECT_EQ(appProfileFromJson(throughText(toJson(profile))), profile);
}

TEST(AppProfile, aNullBundleIdentifierIsAnAbsentOne)
{
    EXPECT_EQ(appProfileFromJson(json(
                  R"({"id": "global", "name": "All Applications", "bundleIdentifier": null, "iconName": "globe"})")),
        AppProfile::global());
}

TEST(AppProfile, aMissingOrWrongFieldIsNotRead)
{
    for (const char* text :
        {"[]", R"("safari")", R"({"name": "a", "iconName": "a"})", R"({"id": "a", "iconName": "a"})",
            R"({"id": "a", "name": "a"})", R"({"id": 1, "name": "a", "iconName": "a"})",
            R"({"id": "a", "name": "a", "iconName": "a", "bundleIdentifier": 1})"})
        EXPECT_EQ(appProfileFromJson(json(text)), std::nullopt) << text;
}

} // namespace

} // namespace tarvin
