#include "app/simulate/ScenarioReader.h"

#include "app/simulate/DuplicateFields.h"
#include "app/simulate/InstructionReader.h"

#include <gmock/gmock.h>

namespace tarvin::simulate {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> errorsOf(const char* text)
{
    std::vector<std::string> errors;
    for (const QString& error : readScenario(u"play"_qs, text).errors)
        errors.push_back(error.toStdString());
    return errors;
}

/// The one instruction of a scenario that must be right.
template <typename Kind> Kind only(const char* line)
{
    const Scenario scenario = readScenario(u"play"_qs, line);
    EXPECT_EQ(scenario.errors, QStringList());
    if (scenario.lines.size() != 1 || !std::holds_alternative<Kind>(scenario.lines.front().instruction)) {
        ADD_FAILURE() << "not read as expected: " << line;
        return {};
    }
    return std::get<Kind>(scenario.lines.front().instruction);
}

TEST(ScenarioReader, emptyLinesAndCommentsCountButSayNothing)
{
    const Scenario scenario = readScenario(u"play"_qs, "# a comment\n\n  {\"do\":\"start\"}\r\n   # another\n");
    EXPECT_EQ(scenario.errors, QStringList());
    ASSERT_EQ(scenario.lines.size(), 1u);
    EXPECT_EQ(scenario.lines.front().number, 3);
}

TEST(ScenarioReader, aLineWithoutTimeFollowsTheLineBefore)
{
    const Scenario scenario = readScenario(u"play"_qs,
        "{\"at\":1.5,\"do\":\"start\"}\n"
        "{\"do\":\"reopen\"}\n"
        "{\"do\":\"advance\",\"by\":100}\n"
        "{\"do\":\"reopen\"}\n"
        "{\"at\":200,\"do\":\"end\"}\n");
    EXPECT_EQ(scenario.errors, QStringList());
    std::vector<simulated::VirtualTime> times;
    for (const ScenarioLine& line : scenario.lines)
        times.push_back(line.at);
    EXPECT_THAT(times, ElementsAre(1500us, 1500us, 1500us, 101500us, 200ms));
}

TEST(ScenarioReader, timeGoingBackwardsIsAnErrorOfItsLine)
{
    EXPECT_THAT(errorsOf("{\"at\":10,\"do\":\"start\"}\n{\"at\":9.5,\"do\":\"reopen\"}"),
        ElementsAre("play:2: \"at\" goes back from 10 to 9.5; expected at least 10"));
    EXPECT_THAT(errorsOf("{\"do\":\"advance\",\"by\":10}\n{\"at\":9,\"do\":\"reopen\"}"),
        ElementsAre("play:2: \"at\" goes back from 10 to 9; expected at least 10"));
}

TEST(ScenarioReader, whatIsNotAnObjectIsAnError)
{
    EXPECT_THAT(errorsOf("{\"do\":\"start\""),
        ElementsAre("play:1: expected one JSON object, such as {\"do\":\"start\"}; unterminated string at byte 13"));
    EXPECT_THAT(
        errorsOf("[1]"), ElementsAre("play:1: expected one JSON object, such as {\"do\":\"start\"}; it is a list"));
    EXPECT_EQ(errorsOf("start").size(), 1u);
    EXPECT_EQ(errorsOf("{\"do\":\"start\"} {\"do\":\"end\"}").size(), 1u);
}

TEST(ScenarioReader, everyWrongLineIsReported)
{
    EXPECT_THAT(errorsOf("{\"do\":\"reopen\",\"x\":1}\n{\"do\":\"start\"}\n{\"at\":\"now\",\"do\":\"end\"}"),
        ElementsAre("play:1: reopen: unknown field \"x\"; expected \"at\" or \"do\"",
            "play:3: \"at\": expected a number of milliseconds from 0 on, with up to three decimals, found the text "
            "\"now\""));
}

TEST(ScenarioReader, anUnknownInstructionIsAnsweredWithTheKnownOnes)
{
    const std::vector<std::string> errors = errorsOf("{\"do\":\"dance\"}");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_THAT(
        errors.front(), testing::StartsWith("play:1: unknown instruction \"dance\"; expected \"process\", \"map\","));
    EXPECT_THAT(errors.front(), testing::HasSubstr("\"press\""));
    EXPECT_THAT(errorsOf("{\"at\":0}"), ElementsAre("play:1: field \"do\" is missing; expected a text"));
}

TEST(ScenarioReader, aFieldThatStandsTwiceIsAnError)
{
    EXPECT_THAT(errorsOf(R"({"do":"press","key":"F5","key":"F6"})"),
        ElementsAre("play:1: field \"key\" stands there twice; expected it once"));
}

TEST(DuplicateFields, onlyTheOutermostNamesAreCompared)
{
    EXPECT_EQ(duplicateField(R"({"a":"b","b":["a","a"],"c":{"a":1,"d":2}})"), std::nullopt);
    EXPECT_EQ(duplicateField(R"({"a\"" : 1, "\u0061\"" : 2})"), u"a\""_qs);
    EXPECT_EQ(duplicateField(R"({"a":"\\","a":1})"), u"a"_qs);
}

TEST(ScenarioReader, theStageIsSetBeforeTheProgramStarts)
{
    EXPECT_THAT(errorsOf("{\"do\":\"map\",\"key\":\"F5\",\"action\":\"mute\"}\n{\"do\":\"process\"}"), IsEmpty());
    const char* words = "play:2: \"process\" sets the stage; expected it at 0, before the program starts";
    EXPECT_THAT(errorsOf("{\"do\":\"start\"}\n{\"do\":\"process\"}"), ElementsAre(words));
    EXPECT_THAT(errorsOf("{\"do\":\"press\",\"key\":\"F5\"}\n{\"do\":\"process\"}"), ElementsAre(words));
    EXPECT_THAT(errorsOf("\n{\"at\":1,\"do\":\"process\"}"), ElementsAre(words));
    EXPECT_THAT(errorsOf("{\"do\":\"permission\",\"granted\":true}\n{\"do\":\"process\"}"), IsEmpty());
}

TEST(ScenarioReader, theProgramStartsOnce)
{
    const char* words =
        "play:2: \"start\": the program runs already; expected it once, before anything that needs the program";
    EXPECT_THAT(errorsOf("{\"do\":\"start\"}\n{\"do\":\"start\"}"), ElementsAre(words));
    EXPECT_THAT(errorsOf("{\"do\":\"reopen\"}\n{\"do\":\"start\"}"), ElementsAre(words));
}

TEST(ScenarioReader, nothingFollowsTheEnd)
{
    EXPECT_THAT(errorsOf("{\"do\":\"end\"}\n{\"do\":\"reopen\"}"),
        ElementsAre("play:2: \"reopen\" stands behind \"end\"; expected nothing more"));
    EXPECT_THAT(errorsOf("{\"do\":\"terminate\"}\n{\"do\":\"end\"}"),
        ElementsAre("play:2: \"end\" stands behind \"terminate\"; expected nothing more"));
}

TEST(ScenarioReader, aPressNamesAKeyOrACode)
{
    const auto named = only<PressKey>(R"({"do":"press","key":"F5"})");
    EXPECT_EQ(std::get<FKey>(named.key), FKey::f5);
    EXPECT_EQ(named.hold, 50ms);
    EXPECT_EQ(named.form, PressForm::plain);
    const auto coded = only<PressKey>(R"({"do":"press","keyCode":40,"flags":["option","command"],"hold":700})");
    EXPECT_EQ(std::get<KeyCode>(coded.key), 40);
    EXPECT_EQ(coded.flags, EventFlags::option | EventFlags::command);
    EXPECT_EQ(coded.hold, 700ms);
    EXPECT_EQ(only<PressKey>(R"({"do":"press","key":"F10","as":"printed"})").form, PressForm::printed);
    EXPECT_THAT(errorsOf(R"({"do":"press","key":"F13","as":"printed"})"),
        ElementsAre("play:1: press: \"as\": only F1 to F12 have a printed function; expected \"plain\""));
    EXPECT_THAT(errorsOf(R"({"do":"press"})"),
        ElementsAre("play:1: press: expected exactly one of the fields \"key\" or \"keyCode\""));
}

TEST(ScenarioReader, anEventHasTheFieldsOfItsType)
{
    const auto repeat = only<DeliverEvent>(
        R"({"do":"event","path":"hidTap","type":"keyDown","keyCode":96,"repeat":true,"flags":8388608,"marked":true})");
    EXPECT_EQ(repeat.path, simulated::InputPath::hidTap);
    EXPECT_EQ(repeat.event.keyCode, 96);
    EXPECT_NE(repeat.event.autorepeat, 0);
    EXPECT_EQ(repeat.event.flags, EventFlags::function);
    EXPECT_TRUE(repeat.event.isSelfPosted());

    const auto media = only<DeliverEvent>(
        R"({"do":"event","path":"localMonitor","type":"systemDefined","keyType":7,"state":"up","userData":3})");
    ASSERT_TRUE(media.event.systemDefined.has_value());
    EXPECT_EQ(media.event.systemDefined->subtype, 8);
    EXPECT_EQ(media.event.systemDefined->keyType(), 7);
    EXPECT_FALSE(media.event.systemDefined->isDown());
    EXPECT_EQ(media.event.userData, 3);

    const auto raw =
        only<DeliverEvent>(R"({"do":"event","path":"sessionTap","type":"systemDefined","subtype":7,"data1":461313})");
    EXPECT_EQ(raw.event.systemDefined->subtype, 7);
    EXPECT_TRUE(raw.event.systemDefined->isDown());
    EXPECT_TRUE(raw.event.systemDefined->isRepeat());

    EXPECT_FALSE(
        only<DeliverEvent>(R"({"do":"event","path":"sessionTap","type":"systemDefined","untranslatable":true})")
            .event.systemDefined.has_value());
    EXPECT_EQ(only<DeliverEvent>(R"({"do":"event","path":"hidTap","type":"tapDisabledByUserInput"})").event.type,
        InputEventType::tapDisabledByUserInput);
    EXPECT_THAT(errorsOf(R"({"do":"event","path":"hidTap","type":"keyUp","keyCode":1,"keyType":7})"),
        ElementsAre("play:1: event: unknown field \"keyType\"; expected \"at\", \"do\", \"path\", \"type\", "
                    "\"keyCode\", \"repeat\", \"flags\", \"marked\" or \"userData\""));
    EXPECT_THAT(errorsOf(R"({"do":"event","path":"tap","type":"keyUp","keyCode":1})"),
        ElementsAre("play:1: event: \"path\": expected \"hidTap\", \"sessionTap\", \"globalMonitor\" or "
                    "\"localMonitor\", found the text \"tap\""));
}

TEST(ScenarioReader, hardwareValuesAreTakenAsTheyAre)
{
    const auto hid = only<DeliverHidValue>(R"({"do":"hidValue","page":65281,"usage":3,"value":-1})");
    EXPECT_EQ(hid.value.page, 65281u);
    EXPECT_EQ(hid.value.usage, 3u);
    EXPECT_EQ(hid.value.value, -1);
}

TEST(ScenarioReader, aRecordIsAnActionOrItsStoredForm)
{
    EXPECT_EQ(
        only<ExecuteRecord>(R"({"do":"execute","action":"mute"})").record, (QJsonObject{{u"action"_qs, u"mute"_qs}}));
    const auto mapped = only<MapKey>(
        R"({"do":"map","key":"F5","profile":"safari","record":{"action":"open_web_url","customURL":"https://a.org"}})");
    EXPECT_EQ(mapped.profile, u"safari"_qs);
    EXPECT_EQ(mapped.record.value(u"customURL"), QJsonValue(u"https://a.org"_qs));
    EXPECT_THAT(errorsOf(R"({"do":"execute","action":"louder"})"),
        ElementsAre("play:1: execute: \"action\": expected the stored name of an action, such as \"mute\", found the "
                    "text \"louder\""));
}

TEST(ScenarioReader, aRecordThatTheProgramWouldNotUnderstandIsAnError)
{
    EXPECT_THAT(errorsOf(R"({"do":"execute","record":{"action":"reboot"}})"),
        ElementsAre("play:1: execute: \"record\": \"action\" of the record: expected the stored name of an action, "
                    "such as \"mute\""));
    EXPECT_THAT(errorsOf(R"({"do":"execute","record":{"action":"mute","customUrl":"https://a.org"}})"),
        ElementsAre("play:1: execute: \"record\": the record's field \"customUrl\" is unknown, or its value is none "
                    "that the field can have"));
    EXPECT_THAT(
        errorsOf(R"({"do":"execute","record":{"action":"keyboard_shortcut","customShortcuts":[{"keyCode":"8"}]}})"),
        ElementsAre("play:1: execute: \"record\": the record's field \"customShortcuts[0].keyCode\" is unknown, or its "
                    "value is none that the field can have"));
    EXPECT_THAT(errorsOf(R"({"do":"execute","record":"mute"})"),
        ElementsAre("play:1: execute: \"record\": expected an object with \"action\" and its parameters"));
}

TEST(ScenarioReader, filesHoldTextOrJson)
{
    EXPECT_EQ(only<PutFile>(R"({"do":"file","path":"a.json","text":"{"})").content, "{");
    EXPECT_EQ(only<PutFile>(R"({"do":"file","path":"a.json","json":{"a":[]}})").content, "{\n    \"a\": [\n    ]\n}\n");
    EXPECT_EQ(only<PutFile>(R"({"do":"file","path":"a.json","json":[1]})").content, "[\n    1\n]\n");
    EXPECT_THAT(errorsOf(R"({"do":"file","path":"a","json":1})"),
        ElementsAre("play:1: file: \"json\": expected an object or a list, found 1"));
    EXPECT_THAT(errorsOf(R"({"do":"file","path":"a"})"),
        ElementsAre("play:1: file: expected exactly one of the fields \"text\" or \"json\""));
    EXPECT_EQ(only<FailFile>(R"({"do":"failFile","path":"a","operation":"write","error":"full","once":true})").span,
        simulated::FailureSpan::once);
}

TEST(ScenarioReader, theDesktopIsDescribedInFull)
{
    const auto safari = only<RunApplication>(
        R"({"do":"application","name":"Firefox","bundleIdentifier":"firefox","roles":["com.apple.Safari"],)"
        R"("policy":"accessory","hidden":true,"front":true,"process":7})");
    EXPECT_EQ(safari.bundleIdentifiers, (QStringList{u"firefox"_qs, u"com.apple.Safari"_qs}));
    EXPECT_EQ(safari.policy, ActivationPolicy::accessory);
    EXPECT_TRUE(safari.isHidden);
    EXPECT_TRUE(safari.inFront);
    EXPECT_EQ(safari.process, 7);
    EXPECT_THAT(errorsOf(R"({"do":"application","name":"job","roles":["com.apple.Safari"]})"),
        ElementsAre("play:1: application: \"roles\": expected a \"bundleIdentifier\" beside them, which comes first"));

    const auto windows = only<ShowWindows>(
        R"({"do":"windows","windows":[{"process":7,"width":10,"height":20},{"process":8,"layer":null,"width":1,"height":1}]})");
    ASSERT_EQ(windows.windows.size(), 2u);
    EXPECT_EQ(windows.windows[0].layer, 0);
    EXPECT_EQ(windows.windows[1].layer, std::nullopt);
    EXPECT_EQ(windows.windows[0].size, (Size{10, 20}));
    EXPECT_THAT(errorsOf(R"({"do":"windows","windows":[{"process":7,"width":-1,"height":20}]})"),
        ElementsAre("play:1: windows: \"windows\", item 1: \"width\": expected a number from 0 on, found -1"));

    const auto screens = only<ArrangeScreens>(
        R"({"do":"screens","screens":[{"x":0,"y":0,"width":100,"height":50,"visible":{"x":0,"y":5,"width":100,"height":45}},)"
        R"({"x":100,"y":-10,"width":10,"height":10}]})");
    ASSERT_EQ(screens.screens.size(), 2u);
    EXPECT_EQ(screens.screens[0].visibleFrame, (Rect{{0, 5}, {100, 45}}));
    EXPECT_EQ(screens.screens[1].visibleFrame, screens.screens[1].frame);
    EXPECT_THAT(errorsOf(R"({"do":"screens","screens":[{"x":0,"y":0,"width":100,"height":50,"visible":1}]})"),
        ElementsAre("play:1: screens: \"screens\", item 1: \"visible\": expected an object, found 1"));
}

TEST(ScenarioReader, theFrontIsAnApplicationOrNone)
{
    EXPECT_EQ(only<BringToFront>(R"({"do":"front","none":true})").application, std::nullopt);
    EXPECT_EQ(only<BringToFront>(R"({"do":"front","application":"Safari","announcement":"never"})").announcement,
        FrontAnnouncement::never);
    EXPECT_THAT(
        errorsOf(R"({"do":"front","none":false})"), ElementsAre("play:1: front: \"none\": expected true, found false"));
    EXPECT_THAT(errorsOf(R"({"do":"front"})"),
        ElementsAre("play:1: front: expected exactly one of the fields \"application\" or \"none\""));
}

TEST(ScenarioReader, whatIsToldOfTheProcessIsSetAndTheRestIsLeft)
{
    const auto process = only<DescribeProcess>(R"({"do":"process","arguments":["--startup"],"bundleName":null})");
    EXPECT_EQ(process.arguments, QStringList{u"--startup"_qs});
    EXPECT_EQ(process.bundleName, NullableText(std::in_place));
    EXPECT_EQ(process.bundleIdentifier, std::nullopt);
    EXPECT_EQ(process.loginItem, std::nullopt);
}

TEST(ScenarioReader, anAccessibleWindowTellsWhatOfItFails)
{
    const auto shown = only<ShowAccessibleWindows>(
        R"({"do":"accessibleWindows","windows":[{"process":7,"title":"a","x":1,"y":2,"width":3,"height":4,)"
        R"("focus":false,"fullScreen":true,"unreadable":["size"],"unwritable":["position","minimizeButton"]}]})");
    ASSERT_EQ(shown.windows.size(), 1U);
    const simulated::AccessibleWindow& window = shown.windows.front();
    EXPECT_EQ(window.process, 7);
    EXPECT_EQ(window.title, u"a"_qs);
    EXPECT_EQ(window.frame, (Rect{{1, 2}, {3, 4}}));
    EXPECT_FALSE(window.hasFocus);
    EXPECT_TRUE(window.isFullScreen);
    using enum simulated::WindowPart;
    EXPECT_EQ(window.unreadable, std::set{size});
    EXPECT_EQ(window.unwritable, (std::set{position, minimizeButton}));
    EXPECT_THAT(errorsOf(R"({"do":"accessibleWindows","windows":[{"process":7,"x":1,"y":2,"width":3,"height":4,)"
                         R"("unreadable":["colour"]}]})"),
        ElementsAre("play:1: accessibleWindows: \"windows\", item 1: \"unreadable\": expected some of \"position\", "
                    "\"size\", \"fullScreen\", \"minimized\", \"fullScreenButton\" or \"minimizeButton\", found the "
                    "text \"colour\""));
}

TEST(ScenarioReader, theMainScreenIsOneOfThem)
{
    const QByteArray two = R"([{"x":0,"y":0,"width":1,"height":1},{"x":1,"y":0,"width":1,"height":1}])";
    EXPECT_EQ(only<ArrangeScreens>(R"({"do":"screens","main":2,"screens":)" + two + '}').main, 1U);
    EXPECT_EQ(only<ArrangeScreens>(R"({"do":"screens","screens":)" + two + '}').main, std::nullopt);
    EXPECT_THAT(errorsOf(R"({"do":"screens","main":3,"screens":)" + two + '}'),
        ElementsAre("play:1: screens: \"main\": expected an integer from 1 to 2, found 3"));
}

TEST(ScenarioReader, whatCannotBeKnownIsSaidInstead)
{
    EXPECT_EQ(only<SetBrightness>(R"({"do":"brightness","unknown":true})").brightness, std::nullopt);
    EXPECT_EQ(only<ArrangeAppleMenu>(R"({"do":"appleMenu","unreadable":true})").titles, std::nullopt);
    EXPECT_EQ(only<ArrangeAppleMenu>(R"({"do":"appleMenu","titles":["Sleep"]})").titles, QStringList{u"Sleep"_qs});
}

TEST(ScenarioReader, theUsersClockIsMinutesAhead)
{
    const auto user = only<DescribeUser>(R"({"do":"user","home":"/home/me","utcOffset":-90})");
    EXPECT_EQ(user.homeDirectory, u"/home/me"_qs);
    EXPECT_EQ(user.utcOffset, -std::chrono::minutes(90));
}

TEST(ScenarioReader, switchesNeedAtLeastOne)
{
    EXPECT_EQ(only<FlipSwitches>(R"({"do":"switches","functionKeys":false})").functionKeys, false);
    EXPECT_THAT(errorsOf(R"({"do":"switches"})"),
        ElementsAre("play:1: switches: expected at least one of the fields \"interception\", \"functionKeys\" or "
                    "\"otherKeys\""));
}

TEST(ScenarioReader, theOutputIsAllOrSomeKinds)
{
    EXPECT_EQ(only<SelectOutput>(R"({"do":"output","all":true})").kinds, std::nullopt);
    EXPECT_EQ(
        only<SelectOutput>(R"({"do":"output","only":["notice","log"]})").kinds, (QStringList{u"notice"_qs, u"log"_qs}));
    EXPECT_THAT(errorsOf(R"({"do":"output","only":["notices"]})"),
        ElementsAre(
            testing::StartsWith("play:1: output: \"only\": there is no effect \"notices\"; expected a list of ")));
}

/// Each instruction with just what it needs; keeps the table honest.
TEST(ScenarioReader, everyInstructionCanBeWritten)
{
    const char* scenario = R"({"do":"process"}
{"do":"map","key":"F5","action":"mute"}
{"do":"file","path":"a","text":""}
{"do":"removeFile","path":"a"}
{"do":"failFile","path":"a","operation":"read","error":null}
{"do":"setting","key":"a","value":null}
{"do":"uptime","seconds":100}
{"do":"clock","now":"2026-01-01T00:00:00Z"}
{"do":"permission","granted":false}
{"do":"scripts"}
{"do":"functionKeyTool"}
{"do":"loginItem"}
{"do":"application","name":"a"}
{"do":"quit","application":"a"}
{"do":"front","none":true}
{"do":"installed","path":"/a","name":"a"}
{"do":"windows","windows":[]}
{"do":"accessibleWindows","windows":[]}
{"do":"brightness","value":0.5}
{"do":"appleMenu","titles":[]}
{"do":"systemTools","error":null}
{"do":"user"}
{"do":"screens","screens":[]}
{"do":"pointer","x":1,"y":-1.5}
{"do":"clipboard","text":"a"}
{"do":"tap","location":"hid","available":false}
{"do":"globalMonitor","available":false}
{"do":"hidManager","opens":false}
{"do":"posting","clicks":true,"possible":false}
{"do":"output","all":true}
{"do":"start"}
{"do":"press","key":"F5"}
{"do":"event","path":"hidTap","type":"keyDown","keyCode":0}
{"do":"hidValue","page":7,"usage":62,"value":1}
{"do":"disableTap","location":"session"}
{"do":"advance","by":1}
{"do":"execute","action":"mute"}
{"do":"executeAction","action":"mute"}
{"do":"switches","interception":true}
{"do":"editProfile","profile":"global"}
{"do":"addProfile","name":"a","bundleIdentifier":"b"}
{"do":"editKey","key":"F5","action":"mute"}
{"do":"resetKey","key":"F5"}
{"do":"pasteClip","row":1}
{"do":"typeNote","text":"a"}
{"do":"chooseRingItem","title":"Copy"}
{"do":"closePanel","title":"Actions Ring"}
{"do":"reopen"}
{"do":"openUrls","urls":["tarvin://a"]}
{"do":"closeWindow","title":"a"}
{"do":"terminate"}
)";
    EXPECT_THAT(errorsOf(scenario), IsEmpty());
    const QByteArray text = scenario + QByteArray("{\"do\":\"end\"}");
    for (const QString& name : instructionNames())
        EXPECT_TRUE(text.contains("\"do\":\"" + name.toUtf8() + '"')) << name.toStdString();
    EXPECT_EQ(instructionNames().size(), static_cast<qsizetype>(std::variant_size_v<Instruction>));
}

} // namespace
} // namespace tarvin::simulate
