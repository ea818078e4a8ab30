#include "platform/macrequests/LoginWindowEvent.h"
#include "platform/macrequests/SystemKeyEvent.h"
#include "platform/macrequests/ToolLaunch.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {

void PrintTo(const ToolLaunch& launch, std::ostream* stream)
{
    *stream << (launch.tool + u' ' + launch.arguments.join(u' ')).toStdString();
}

namespace {

QStringList captureArguments(ScreenCaptureMode mode, const std::optional<QString>& file)
{
    return toolLaunch(CaptureScreen{mode, file}).arguments;
}

TEST(ToolLaunch, sleepHasAToolOfItsOwn)
{
    EXPECT_EQ(toolLaunch(SleepNow{}), (ToolLaunch{u"/usr/bin/pmset"_qs, {u"sleepnow"_qs}}));
    EXPECT_EQ(toolLaunch(DisplaySleepNow{}), (ToolLaunch{u"/usr/bin/pmset"_qs, {u"displaysleepnow"_qs}}));
}

TEST(ToolLaunch, powerIsAskedForByAScriptInAProcess)
{
    EXPECT_EQ(toolLaunch(RequestPowerEvent{PowerEvent::shutDown}),
        (ToolLaunch{u"/usr/bin/osascript"_qs, {u"-e"_qs, u"tell application \"System Events\" to shut down"_qs}}));
    EXPECT_EQ(toolLaunch(RequestPowerEvent{PowerEvent::restart}),
        (ToolLaunch{u"/usr/bin/osascript"_qs, {u"-e"_qs, u"tell application \"System Events\" to restart"_qs}}));
}

TEST(ToolLaunch, aCaptureToTheClipboardSaysSoFirst)
{
    EXPECT_EQ(toolLaunch(CaptureScreen{}).tool, u"/usr/sbin/screencapture"_qs);
    EXPECT_EQ(captureArguments(ScreenCaptureMode::screen, std::nullopt), QStringList({u"-c"_qs}));
    EXPECT_EQ(captureArguments(ScreenCaptureMode::window, std::nullopt), QStringList({u"-c"_qs, u"-w"_qs}));
    EXPECT_EQ(captureArguments(ScreenCaptureMode::region, std::nullopt), QStringList({u"-c"_qs, u"-i"_qs}));
}

TEST(ToolLaunch, aCaptureToAFileEndsWithItsPath)
{
    const QString path = u"/Users/me/Desktop/Screen Shot.png"_qs;
    EXPECT_EQ(captureArguments(ScreenCaptureMode::screen, path), QStringList({path}));
    EXPECT_EQ(captureArguments(ScreenCaptureMode::window, path), QStringList({u"-w"_qs, path}));
    EXPECT_EQ(captureArguments(ScreenCaptureMode::region, path), QStringList({u"-i"_qs, path}));
}

TEST(SystemKeyEvent, theKeyStandsAboveItsMotion)
{
    const SystemKeyEvent down = systemKeyEvent(SystemKey::play, SystemKeyMotion::down);
    EXPECT_EQ(static_cast<int>(down.type), 14);
    EXPECT_EQ(down.modifierFlags, 0xA00U);
    EXPECT_EQ(down.subtype, 8);
    EXPECT_EQ(down.data1, (16 << 16) | 0xA00);
    EXPECT_EQ(down.data2, -1);
    const SystemKeyEvent up = systemKeyEvent(SystemKey::soundDown, SystemKeyMotion::up);
    EXPECT_EQ(up.modifierFlags, 0xB00U);
    EXPECT_EQ(up.data1, (1 << 16) | 0xB00);
}

TEST(LoginWindowEvent, itsCodesAreFourLetters)
{
    const LoginWindowEvent restart = loginWindowEvent(PowerEvent::restart);
    EXPECT_EQ(restart.targetIdentifier, u"com.apple.loginwindow");
    EXPECT_EQ(restart.eventClass, 0x61657674U);
    EXPECT_EQ(restart.eventId, 0x72657374U);
    EXPECT_EQ(restart.returnId, -1);
    EXPECT_EQ(restart.transactionId, 0);
    EXPECT_EQ(restart.sendOptions, 1U);
    EXPECT_EQ(restart.timeout, std::chrono::seconds(2));
    EXPECT_EQ(loginWindowEvent(PowerEvent::shutDown).eventId, 0x73687574U);
}

} // namespace
} // namespace tarvin
