#include "profiles/MappingFile.h"

#include "model/ModelPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QJsonDocument>
#include <QJsonObject>

#include <cstdint>

namespace tarvin {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

const UuidSource newUuid = QUuid::createUuid;

ConfiguredAction openingWebsite(const QString& url)
{
    ConfiguredAction record(KeyAction::openWebURL);
    record.customURL = url;
    return record;
}

TEST(MappingFile, mappingsSurviveWritingAndReading)
{
    ConfiguredAction shortcut(KeyAction::keyboardShortcut);
    shortcut.customShortcuts = {CustomShortcut{.id = newUuid(), .command = true, .keyCode = 8, .keyDisplay = u"C"_qs}};
    shortcut.customShortcut = shortcut.customShortcuts.first();
    const ProfileMappings mappings{
        {u"global"_qs, {{FKey::f5, openingWebsite(u"https://example.org"_qs)}, {FKey::capsLock, shortcut}}},
        {u"safari"_qs, {}},
        {u"com.example.editor"_qs, {{FKey::fnGlobe, ConfiguredAction(KeyAction::mute)}}},
    };
    EXPECT_EQ(decodeMappings(encodeMappings(mappings), newUuid), mappings);
}

TEST(MappingFile, textOfEveryKindSurvives)
{
    // A lone half of a surrogate pair is no text that UTF-8 knows; a file must not become unreadable by it.
    const QString text = u"\u0000 \" \\ \n ü 日本 🌐 "_qs + QChar(0xD800);
    ConfiguredAction record(KeyAction::textSnippet);
    record.textSnippet = text;
    const ProfileMappings mappings{{u"profile \" 🌐"_qs, {{FKey::f1, record}}}};
    EXPECT_EQ(decodeMappings(encodeMappings(mappings), newUuid), mappings);
}

TEST(MappingFile, theFileIsPrettyPrintedUtf8UnderStoredNames)
{
    const QByteArray content = encodeMappings({{u"global"_qs, {{FKey::f5, openingWebsite(u"https://é.org"_qs)}}}});
    EXPECT_EQ(content, R"({
    "global": {
        "F5": {
            "action": "open_web_url",
            "chainSteps": [
            ],
            "customShortcuts": [
            ],
            "customURL": "https://é.org",
            "forceQuitMode": "Frontmost app",
            "multiKeyMode": "simultaneous",
            "screenCaptureDestination": "Clipboard",
            "screenCaptureMode": "Region"
        }
    }
}
)");
}

TEST(MappingFile, everyKeyIsFoundUnderItsStoredName)
{
    for (const FKey key : allFKeys) {
        const QByteArray name = rawValue(key).toUtf8();
        EXPECT_THAT(decodeMappings("{\"global\": {\"" + name + "\": \"copy\"}}", newUuid).value(),
            ElementsAre(Pair(u"global"_qs, ElementsAre(Pair(key, ConfiguredAction(KeyAction::copy))))));
    }
}

TEST(MappingFile, anEmptyObjectIsReadAsNoMappings)
{
    EXPECT_EQ(decodeMappings("{}", newUuid), ProfileMappings());
}

TEST(MappingFile, whatIsNotAnObjectOfObjectsIsNotRead)
{
    for (const char* content :
        {"", "   ", "null", "[]", "3", R"("global")", R"({"global": )", R"({"global": {}} x)", R"({"global": []})",
            R"({"global": {"F1": "mute"}, "safari": []})", R"({"safari": null})", R"({"global": "mute"})", "\xff\xfe"})
        EXPECT_EQ(decodeMappings(content, newUuid), std::nullopt) << content;
}

TEST(MappingFile, aTextAloneIsTheActionOfARecord)
{
    EXPECT_THAT(decodeMappings(R"({"global": {"F1": "mute"}})", newUuid).value(),
        ElementsAre(Pair(u"global"_qs, ElementsAre(Pair(FKey::f1, ConfiguredAction(KeyAction::mute))))));
}

TEST(MappingFile, anEntryUnderAnUnknownNameIsDropped)
{
    EXPECT_THAT(
        decodeMappings(R"({"global": {"F1": {"action": "mute"}, "Foo": {"action": "copy"}, "f2": "copy"}})", newUuid)
            .value(),
        ElementsAre(Pair(u"global"_qs, ElementsAre(Pair(FKey::f1, ConfiguredAction(KeyAction::mute))))));
}

TEST(MappingFile, aDamagedEntryCostsItselfAlone)
{
    for (const char* damage : {"[]", R"(["mute"])", "3", "-0.5", "true", "false", "null"}) {
        const QByteArray content = QByteArray(R"({"global": {"F1": "mute", "F2": )") + damage
            + R"(, "F3": {"action": "copy"}, "Foo": )" + damage + R"(}, "safari": {"F4": "paste"}})";
        EXPECT_THAT(decodeMappings(content, newUuid).value(),
            ElementsAre(Pair(u"global"_qs,
                            ElementsAre(Pair(FKey::f1, ConfiguredAction(KeyAction::mute)),
                                Pair(FKey::f3, ConfiguredAction(KeyAction::copy)))),
                Pair(u"safari"_qs, ElementsAre(Pair(FKey::f4, ConfiguredAction(KeyAction::paste))))))
            << damage;
    }
}

TEST(MappingFile, aProfileOfDamagedEntriesStaysAndIsEmpty)
{
    EXPECT_THAT(decodeMappings(R"({"global": {"F1": [], "Foo": {}}})", newUuid).value(),
        ElementsAre(Pair(u"global"_qs, IsEmpty())));
}

TEST(MappingFile, aRecordThatSaysNoMoreThanTheFactoryIsKept)
{
    EXPECT_THAT(decodeMappings(R"({"global": {"F10": "mute"}})", newUuid).value(),
        ElementsAre(Pair(u"global"_qs, ElementsAre(Pair(FKey::f10, ConfiguredAction(KeyAction::mute))))));
}

TEST(MappingFile, aMissingIdentityComesFromTheGivenSource)
{
    const QUuid id(u"11111111-2222-3333-4444-555555555555"_qs);
    const auto mappings = decodeMappings(
        R"({"global": {"F1": {"action": "keyboard_shortcut", "customShortcuts": [{"keyDisplay": "A"}]}}})",
        [&] { return id; });
    EXPECT_EQ(mappings.value().at(u"global"_qs).at(FKey::f1).customShortcuts.first().id, id);
}

} // namespace

} // namespace tarvin
