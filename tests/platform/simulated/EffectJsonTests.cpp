#include "platform/simulated/EffectJson.h"
#include "platform/simulated/JsonLine.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tarvin::simulated {
namespace {

std::string textOf(EffectKind what)
{
    return toJsonLine({VirtualTime(0), std::move(what)}).toStdString();
}

TEST(JsonLine, fieldsStandInTheOrderInWhichTheyWereAdded)
{
    JsonLine line;
    line.add(u"z", 1).add(u"a", QJsonArray{true, QJsonValue()}).add(u"m", QStringView(u"\"\n\u00e9"));
    EXPECT_EQ(line.text().toStdString(), "{\"z\":1,\"a\":[true,null],\"m\":\"\\\"\\n\u00e9\"}");
    EXPECT_TRUE(QJsonDocument::fromJson(line.text()).isObject());
    EXPECT_EQ(JsonLine().text(), "{}");
}

TEST(EffectJson, aKeyEventNamesItsKeyWhereItHasAName)
{
    EXPECT_EQ(textOf(EventDelivered{InputPath::sessionTap,
                  {.type = InputEventType::keyDown, .keyCode = 96, .flags = EventFlags::shift, .autorepeat = 1},
                  EventOutcome::consumed}),
        R"({"at":0,"effect":"event","path":"sessionTap","type":"keyDown","keyCode":96,"key":"F5","repeat":true,)"
        R"("flags":["shift"],"marked":false,"outcome":"consumed"})");
    EXPECT_EQ(textOf(EventReceived{u"Safari"_qs, {.type = InputEventType::keyUp, .keyCode = 0, .userData = 7}}),
        R"({"at":0,"effect":"received","application":"Safari","type":"keyUp","keyCode":0,"repeat":false,)"
        R"("flags":[],"marked":false,"userData":7})");
}

TEST(EffectJson, aMediaKeyIsTakenApart)
{
    EXPECT_EQ(textOf(EventDelivered{InputPath::globalMonitor,
                  {.type = InputEventType::systemDefined, .systemDefined = SystemDefinedFields{8, 0x00070A01}},
                  EventOutcome::observed}),
        R"({"at":0,"effect":"event","path":"globalMonitor","type":"systemDefined","subtype":8,"keyType":7,)"
        R"("key":"F10","state":"down","repeat":true,"flags":[],"marked":false,"outcome":"observed"})");
    EXPECT_EQ(
        textOf(EventDelivered{InputPath::hidTap,
            {.type = InputEventType::systemDefined, .systemDefined = SystemDefinedFields{7, 9}}, EventOutcome::passed}),
        R"({"at":0,"effect":"event","path":"hidTap","type":"systemDefined","subtype":7,"data1":9,"flags":[],)"
        R"("marked":false,"outcome":"passed"})");
}

TEST(EffectJson, whatIsAbsentIsNullOrLeftOut)
{
    EXPECT_EQ(textOf(FrontApplicationChanged{u"job"_qs, std::nullopt}),
        R"({"at":0,"effect":"frontApplication","name":"job","bundleIdentifier":null})");
    EXPECT_EQ(textOf(LoginItemChanged{true, std::nullopt}), R"({"at":0,"effect":"loginItem","enabled":true})");
    EXPECT_EQ(textOf(LoginItemChanged{true, u"no"_qs}), R"({"at":0,"effect":"loginItem","enabled":true,"error":"no"})");
    EXPECT_EQ(textOf(NoticeChanged{std::nullopt}), R"({"at":0,"effect":"noticeCleared"})");
    EXPECT_EQ(textOf(SettingStored{u"k"_qs, QJsonValue(QJsonValue::Undefined)}),
        R"({"at":0,"effect":"settingRemoved","key":"k"})");
}

TEST(EffectJson, aKeyOfTheSystemIsToldFieldByField)
{
    EXPECT_EQ(textOf(SystemKeyPosted{SystemKey::brightnessDown, SystemKeyMotion::down}),
        R"({"at":0,"effect":"systemKeyPosted","key":"brightnessDown","state":"down","type":14,"x":0,"y":0,)"
        R"("modifierFlags":2560,"windowNumber":0,"subtype":8,"data1":199168,"data2":-1,"location":"session"})");
    EXPECT_EQ(textOf(SystemKeyPosted{SystemKey::soundUp, SystemKeyMotion::up, true}),
        R"({"at":0,"effect":"systemKeyPosted","key":"soundUp","state":"up","type":14,"x":0,"y":0,)"
        R"("modifierFlags":2816,"windowNumber":0,"subtype":8,"data1":2816,"data2":-1,"location":"session",)"
        R"("dropped":true})");
}

TEST(EffectJson, theEventOfTheLoginWindowTellsItsCodesInLetters)
{
    EXPECT_EQ(textOf(LoginWindowAsked{PowerEvent::restart}),
        R"({"at":0,"effect":"loginWindowEvent","target":"com.apple.loginwindow","eventClass":"aevt","eventID":"rest",)"
        R"("returnID":-1,"transactionID":0,"options":1,"timeout":2})");
    EXPECT_TRUE(
        QString::fromStdString(textOf(LoginWindowAsked{PowerEvent::shutDown})).contains(u"\"eventID\":\"shut\""));
}

TEST(EffectJson, aWrittenAttributeTellsItsValue)
{
    EXPECT_EQ(textOf(WindowAttributeSet{7, u"w"_qs, u"AXPosition"_qs, Point{1.5, -2}, true}),
        R"({"at":0,"effect":"windowAttribute","process":7,"window":"w","attribute":"AXPosition",)"
        R"("value":{"x":1.5,"y":-2},"refused":true})");
    EXPECT_EQ(textOf(WindowAttributeSet{7, u"w"_qs, u"AXMinimized"_qs, true}),
        R"({"at":0,"effect":"windowAttribute","process":7,"window":"w","attribute":"AXMinimized","value":true})");
}

TEST(EffectJson, everyNameOfAnEffectIsListed)
{
    const QStringList names = allEffectNames();
    for (const QString& name : {u"event"_qs, u"notice"_qs, u"noticeCleared"_qs, u"setting"_qs, u"settingRemoved"_qs,
             u"directoryCreated"_qs, u"fileWritten"_qs, u"fileAppendFailed"_qs, u"misuse"_qs})
        EXPECT_TRUE(names.contains(name)) << name.toStdString();
    EXPECT_FALSE(names.contains(QString()));
}

/// Every kind has a description of its own: each line tells its kind and is valid JSON.
TEST(EffectJson, everyKindIsOneValidObject)
{
    const std::vector<EffectKind> kinds = {EventDelivered{}, HidValueDelivered{}, EventReceived{}, TapChanged{},
        MonitorChanged{}, HidManagerChanged{}, ConsumedKeysPublished{}, KeyPosted{}, ClickPosted{},
        PermissionPrompted{}, ScriptRun{}, ToolLaunched{}, SystemPreferenceSet{}, SystemPreferenceSynchronized{},
        ChangeAnnounced{}, UrlOpened{}, ApplicationActivated{}, FrontApplicationChanged{}, FileChanged{},
        SettingStored{}, PasteboardSet{}, ConsoleLine{}, LoginItemChanged{}, ActivationPolicySet{}, SelfActivated{},
        WindowChanged{}, PanelPlaced{}, PanelFaded{}, ShellPatched{}, Terminated{}, SoundPlayed{}, HapticTapped{},
        NoticeChanged{}, KeycapAnimated{}, StateChanged{}, SystemKeyPosted{}, LoginWindowAsked{}, AppleMenuPressed{},
        WindowAttributeSet{}, WindowButtonPressed{}, ApplicationOpened{}, PathOpened{}, ApplicationForceQuit{},
        ProcessKilled{}, PortMisused{}};
    EXPECT_EQ(kinds.size(), std::variant_size_v<EffectKind>);
    QStringList names;
    for (const EffectKind& kind : kinds) {
        const QByteArray line = toJsonLine({VirtualTime(1500), kind});
        const QJsonObject object = QJsonDocument::fromJson(line).object();
        EXPECT_EQ(object.value(u"at"), QJsonValue(1.5)) << line.toStdString();
        names << object.value(u"effect").toString();
        EXPECT_TRUE(allEffectNames().contains(names.last())) << line.toStdString();
    }
    EXPECT_FALSE(names.contains(QString()));
    names.removeDuplicates();
    EXPECT_EQ(names.size(), static_cast<qsizetype>(kinds.size()));
}

} // namespace
} // namespace tarvin::simulated
