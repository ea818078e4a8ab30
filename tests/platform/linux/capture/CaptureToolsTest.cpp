#include "platform/linux/capture/CaptureTools.h"

#include "support/QtPrinters.h"

namespace tarvin::capture {

namespace {

/// The command on a machine where these run and those are installed, as one line.
QString commandWith(ScreenCaptureMode mode, const QStringList& running, const QStringList& installed)
{
    const auto command = captureCommand(
        mode, QStringLiteral("/a b.png"), [&](QStringView name) { return running.contains(name); },
        [&](QStringView name) { return installed.contains(name); });
    return command ? command->program + u'|' + command->arguments.join(u'|') : QStringLiteral("none");
}

const QString gnomeTool = QStringLiteral("gnome-screenshot");
const QString import = QStringLiteral("import");

} // namespace

TEST(CaptureTools, theToolOfTheRunningDesktopComesFirst)
{
    EXPECT_EQ(commandWith(ScreenCaptureMode::region, {QStringLiteral("gnome-shell")}, {import, gnomeTool}),
        QStringLiteral("gnome-screenshot|-a|-f|/a b.png"));
    EXPECT_EQ(
        commandWith(ScreenCaptureMode::region, {}, {import, gnomeTool}), QStringLiteral("import|-silent|/a b.png"));
}

TEST(CaptureTools, eachKindOfPictureHasItsOwnArguments)
{
    EXPECT_EQ(
        commandWith(ScreenCaptureMode::screen, {}, {import}), QStringLiteral("import|-silent|-window|root|/a b.png"));
    EXPECT_EQ(commandWith(ScreenCaptureMode::window, {}, {import}), QStringLiteral("import|-silent|-frame|/a b.png"));
}

TEST(CaptureTools, aForeignDesktopsToolIsBetterThanNone)
{
    EXPECT_EQ(commandWith(ScreenCaptureMode::screen, {}, {gnomeTool}), QStringLiteral("gnome-screenshot|-f|/a b.png"));
    EXPECT_EQ(commandWith(ScreenCaptureMode::screen, {}, {}), QStringLiteral("none"));
}

} // namespace tarvin::capture
