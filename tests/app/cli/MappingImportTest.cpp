#include "app/cli/MappingImport.h"

#include "profiles/MappingFile.h"
#include "support/QtPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MappingImport checked(const QByteArray& content)
{
    return checkMappings(content, QUuid::createUuid);
}

TEST(MappingImport, aFileOfTheProgramIsTakenWhole)
{
    const MappingImport import = checked(R"({"global":{"F5":{"action":"mute"},"CapsLock":"copy"},"com.app":{}})");
    EXPECT_THAT(import.problems, IsEmpty());
    EXPECT_EQ(import.records, 2);
    EXPECT_EQ(import.mappings.at(u"global"_qs).at(FKey::capsLock).action, KeyAction::copy);
    EXPECT_TRUE(import.mappings.at(u"com.app"_qs).empty());
}

TEST(MappingImport, whatWasExportedIsImportedWithoutAWord)
{
    ProfileMappings mappings;
    ConfiguredAction record(KeyAction::textSnippet);
    record.textSnippet = u"\u00e4\n"_qs;
    mappings[u"global"_qs].emplace(FKey::f5, record);
    const MappingImport import = checked(encodeMappings(mappings));
    EXPECT_THAT(import.problems, IsEmpty());
    EXPECT_EQ(import.mappings, mappings);
}

TEST(MappingImport, everyMistakeIsNamedWithItsPlace)
{
    const MappingImport import = checked(R"({"global":{"F5":{"action":"fly"},"Foo":{"action":"mute"},"F6":7,
        "F7":{"action":"mute","colour":"red"}},"safari":[],"":{}})");
    EXPECT_THAT(import.problems,
        ElementsAre(u"a profile has an empty name"_qs,
            testing::Truly([](const QString& text) { return text.startsWith(u"global.F5: \"action\""); }),
            testing::Truly([](const QString& text) { return text.startsWith(u"global.F6: expected an object"); }),
            testing::Truly(
                [](const QString& text) { return text.startsWith(u"global.F7: ") && text.contains(u"colour"); }),
            u"global.Foo: \"Foo\" is the stored name of no key"_qs, u"safari: expected an object of keys"_qs));
}

TEST(MappingImport, aTextThatIsNoJsonIsNamedWithItsLine)
{
    const MappingImport import = checked("{\n  \"global\": {\n    oops\n  }\n}");
    ASSERT_EQ(import.problems.size(), 1);
    EXPECT_TRUE(import.problems.first().startsWith(u"line 3, column ")) << import.problems.first().toStdString();
    EXPECT_EQ(checked("[]").problems.value(0), u"expected an object of profiles"_qs);
    EXPECT_FALSE(checked("").problems.isEmpty());
}

TEST(MappingImport, mergingKeepsOtherKeysAndTakesAwayWhatTheFactoryDoesToo)
{
    ProfileMappings present;
    present[u"global"_qs].emplace(FKey::f5, ConfiguredAction(KeyAction::mute));
    present[u"global"_qs].emplace(FKey::f6, ConfiguredAction(KeyAction::copy));
    ProfileMappings imported;
    imported[u"global"_qs].emplace(FKey::f5, ConfiguredAction(defaultAction(FKey::f5)));
    imported[u"safari"_qs].emplace(FKey::f7, ConfiguredAction(KeyAction::paste));
    const ProfileMappings result = merged(present, imported);
    EXPECT_FALSE(result.at(u"global"_qs).contains(FKey::f5));
    EXPECT_EQ(result.at(u"global"_qs).at(FKey::f6).action, KeyAction::copy);
    EXPECT_EQ(result.at(u"safari"_qs).at(FKey::f7).action, KeyAction::paste);
}

} // namespace

} // namespace tarvin
