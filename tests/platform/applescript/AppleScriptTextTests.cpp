#include "platform/applescript/AppleScriptText.h"

#include <gtest/gtest.h>

namespace tarvin {
namespace {

TEST(AppleScriptText, openingTheAccessibilityPageTakesThreeLines)
{
    EXPECT_EQ(appleScriptSource(OpenAccessibilityPage{}).toStdString(),
        "tell application \"System Settings\" to quit\n"
        "delay 0.2\n"
        "do shell script \"open x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility\"");
}

TEST(AppleScriptText, aKeyWithoutModifiersIsOnlyNamed)
{
    EXPECT_EQ(appleScriptSource(PressKeyByScript{96, EventFlags::none}).toStdString(),
        "tell application \"System Events\" to key code 96");
}

TEST(AppleScriptText, aKeyWithCommandSaysSo)
{
    EXPECT_EQ(appleScriptSource(PressKeyByScript{49, EventFlags::command}).toStdString(),
        "tell application \"System Events\" to key code 49 using command down");
}

TEST(AppleScriptText, addingTheLoginItemNamesItAndItsPath)
{
    EXPECT_EQ(appleScriptSource(SetLoginItem{u"Tarvin"_qs, u"/Applications/Tarvin.app"_qs, true}).toStdString(),
        "tell application \"System Events\"\n"
        "    if not (exists login item \"Tarvin\") then\n"
        "        make new login item at end with properties {path:\"/Applications/Tarvin.app\", hidden:true}\n"
        "    end if\n"
        "end tell");
}

TEST(AppleScriptText, removingTheLoginItemNeedsNoPath)
{
    EXPECT_EQ(appleScriptSource(SetLoginItem{u"Tarvin"_qs, u"/Applications/Tarvin.app"_qs, false}).toStdString(),
        "tell application \"System Events\"\n"
        "    if exists login item \"Tarvin\" then\n"
        "        delete login item \"Tarvin\"\n"
        "    end if\n"
        "end tell");
}

TEST(AppleScriptText, namesAndPathsGoInWithoutQuoting)
{
    const QString source = appleScriptSource(SetLoginItem{u"My \"Tarvin\" %1"_qs, u"/%2/a\\b"_qs, true});
    EXPECT_TRUE(source.contains(u"login item \"My \"Tarvin\" %1\")"_qs));
    EXPECT_TRUE(source.contains(u"{path:\"/%2/a\\b\", hidden:true}"_qs));
}

} // namespace
} // namespace tarvin
