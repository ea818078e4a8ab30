#include "app/cli/RecordArguments.h"

#include "model/ModelPrinters.h"
#include "model/RecordJson.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QJsonObject>

namespace tarvin {

namespace {

RecordOrProblem made(const QString& action, const QStringList& parameters = {})
{
    return recordFromArguments(action, parameters, QUuid::createUuid);
}

QString problem(const QString& action, const QStringList& parameters = {})
{
    const RecordOrProblem result = made(action, parameters);
    const auto* const text = std::get_if<QString>(&result);
    return text ? *text : u"no problem"_qs;
}

TEST(RecordArguments, anActionAloneIsARecordWithoutParameters)
{
    EXPECT_EQ(std::get<ConfiguredAction>(made(u"mute"_qs)), ConfiguredAction(KeyAction::mute));
}

TEST(RecordArguments, fieldsAreThoseOfAStoredRecord)
{
    const auto record = std::get<ConfiguredAction>(
        made(u"screen_capture"_qs, {u"screenCaptureMode=Window"_qs, u"textSnippet=a=b"_qs, u"customURL="_qs}));
    EXPECT_EQ(record.screenCaptureMode, ScreenCaptureMode::window);
    EXPECT_EQ(record.textSnippet, u"a=b"_qs);
    EXPECT_EQ(record.customURL, QString());
}

TEST(RecordArguments, aShortcutIsTypedAsUsersWriteIt)
{
    const auto record = std::get<ConfiguredAction>(made(u"keyboard_shortcut"_qs, {u"shortcut=Ctrl+shift+K"_qs}));
    ASSERT_TRUE(record.customShortcut);
    EXPECT_EQ(record.customShortcut->keyCode, 40);
    EXPECT_TRUE(record.customShortcut->control && record.customShortcut->shift);
    EXPECT_FALSE(record.customShortcut->command || record.customShortcut->option);
    EXPECT_EQ(record.customShortcut->keyDisplay, u"K"_qs);
    EXPECT_FALSE(record.customShortcut->id.isNull());
    EXPECT_TRUE(record.isEffectivelyCustom(FKey::f5));
}

TEST(RecordArguments, listsAndObjectsAreJson)
{
    const auto record = std::get<ConfiguredAction>(made(u"keyboard_shortcut"_qs,
        {u"customShortcuts=[{\"keyCode\":8,\"keyDisplay\":\"C\",\"command\":true}]"_qs,
            u"multiKeyMode=sequential"_qs}));
    EXPECT_EQ(record.customShortcuts.size(), 1);
    EXPECT_EQ(record.multiKeyMode, MultiKeyPlaybackMode::sequential);
}

TEST(RecordArguments, whatIsWrongIsNamed)
{
    EXPECT_EQ(problem(u"fly"_qs), u"\"fly\" is no action; \"tarvin actions\" lists them"_qs);
    EXPECT_EQ(problem(u"mute"_qs, {u"loud"_qs}), u"\"loud\" is no parameter; expected FIELD=VALUE"_qs);
    EXPECT_EQ(problem(u"mute"_qs, {u"=x"_qs}), u"\"=x\" is no parameter; expected FIELD=VALUE"_qs);
    EXPECT_TRUE(problem(u"mute"_qs, {u"colour=red"_qs}).contains(u"\"colour\""));
    EXPECT_TRUE(problem(u"screen_capture"_qs, {u"screenCaptureMode=sideways"_qs}).contains(u"\"screenCaptureMode\""));
    EXPECT_EQ(problem(u"mute"_qs, {u"textSnippet=a"_qs, u"textSnippet=b"_qs}),
        u"the field \"textSnippet\" is given twice"_qs);
    EXPECT_EQ(problem(u"mute"_qs, {u"action=copy"_qs}), u"the field \"action\" is given twice"_qs);
    EXPECT_EQ(problem(u"action_chain"_qs, {u"chainSteps=none"_qs}),
        u"the value of \"chainSteps\" is no JSON object or list"_qs);
    EXPECT_EQ(problem(u"keyboard_shortcut"_qs, {u"shortcut=hyper+k"_qs}),
        u"\"hyper\" is no modifier; expected cmd, opt, ctrl or shift before the key"_qs);
    EXPECT_EQ(problem(u"keyboard_shortcut"_qs, {u"shortcut=ctrl+"_qs}), u"\"\" is the name of no key"_qs);
}

} // namespace

} // namespace tarvin
