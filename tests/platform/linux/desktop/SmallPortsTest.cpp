#include "platform/linux/desktop/Ewmh.h"
#include "platform/linux/desktop/LinuxPermission.h"
#include "platform/linux/desktop/LinuxProcessInfo.h"
#include "platform/linux/desktop/LinuxScripts.h"

#include "platform/linux/desktop/support/EnvironmentChange.h"
#include "support/QtPrinters.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace tarvin::desktop {

using endtoend::EnvironmentChange;
using testing::Contains;

TEST(LinuxProcessInfo, tellsTheProgramAndWhereItLies)
{
    const QStringList arguments{QStringLiteral("tarvin"), QStringLiteral("--startup")};
    const LinuxProcessInfo info(arguments);
    EXPECT_EQ(info.arguments(), arguments);
    EXPECT_EQ(info.executable(), QFileInfo(QStringLiteral("/proc/self/exe")).symLinkTarget());
    EXPECT_EQ(info.bundlePath() + u'/' + info.processName(), info.executable());
    EXPECT_EQ(info.bundleIdentifier(), QStringLiteral("com.velmor.Tarvin"));
    EXPECT_EQ(info.bundleName(), QStringLiteral("Tarvin"));
    EXPECT_FALSE(info.wasStartedAsLoginItem());
}

TEST(LinuxPermission, isThereWhileAConsumingPathCanBeHad)
{
    bool canConsume = false;
    const LinuxPermission permission([&] { return canConsume; });
    EXPECT_FALSE(permission.isProcessTrusted());
    canConsume = true;
    EXPECT_TRUE(permission.isProcessTrusted());
}

TEST(LinuxScripts, secondRoadsAreSilentAndSucceed)
{
    LinuxScripts scripts({}, {});
    for (const Script& script : {Script(PressKeyByScript{.keyCode = 96}), Script(SetLoginItem()),
             Script(AdjustOutputVolume{.delta = 6}), Script(ToggleOutputMute()), Script(ControlMediaPlayer()),
             Script(RequestPowerByScript()), Script(OpenForceQuitDialog()), Script(SnapWindowByScript())}) {
        const std::optional<ScriptResult> result = scripts.run(script);
        ASSERT_TRUE(result);
        EXPECT_FALSE(result->error);
    }
}

TEST(LinuxScripts, theMicrophoneAndTheFileManagerHaveNoOtherRoad)
{
    int fileManagers = 0;
    LinuxScripts scripts({},
        {.toggleMicrophone = [] { return ScriptResult{.error = {}, .text = QStringLiteral("Microphone Muted (0%)")}; },
            .activateFileManager = [&] { ++fileManagers; }});
    const std::optional<ScriptResult> result = scripts.run(ToggleMicrophone());
    ASSERT_TRUE(result);
    EXPECT_EQ(result->text, QStringLiteral("Microphone Muted (0%)"));
    EXPECT_TRUE(scripts.run(ActivateFileManager()));
    EXPECT_EQ(fileManagers, 1);
}

TEST(LinuxScripts, aMicrophoneThatIsNotThereGivesNoResult)
{
    LinuxScripts scripts({}, {.toggleMicrophone = [] { return std::nullopt; }, .activateFileManager = {}});
    EXPECT_EQ(scripts.run(ToggleMicrophone()).has_value(), false);
}

TEST(LinuxScripts, aMissingPageOnGrantingAccessIsAnError)
{
    const std::optional<ScriptResult> result =
        LinuxScripts({QStringLiteral("/nowhere/granting-access.md")}, {}).run(OpenAccessibilityPage());
    ASSERT_TRUE(result);
    EXPECT_TRUE(result->error);
}

TEST(LinuxScripts, thePageIsSoughtWhereTheProgramMayHaveBeenInstalled)
{
    EXPECT_THAT(LinuxScripts::accessPageCandidates(QStringLiteral("/usr/bin/tarvin")),
        Contains(u"/usr/share/doc/tarvin/granting-access.html"));
    EXPECT_THAT(LinuxScripts::accessPageCandidates(QStringLiteral("/src/build/release/tarvin")),
        Contains(u"/src/docs/granting-access.md"));
}

TEST(LinuxScripts, thePageOpensInWhateverHandlesIt)
{
    QTemporaryDir directory;
    const QString page = directory.filePath(QStringLiteral("granting-access.md"));
    const QString record = directory.filePath(QStringLiteral("opened"));
    const QString opener = directory.filePath(QStringLiteral("xdg-open"));
    QFile pageFile(page);
    ASSERT_TRUE(pageFile.open(QIODevice::WriteOnly));
    QFile script(opener);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\nprintf %s \"$1\" > " + record.toUtf8() + ".part && mv " + record.toUtf8() + ".part "
        + record.toUtf8() + '\n');
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const EnvironmentChange path("PATH", directory.path().toUtf8() + ':' + qgetenv("PATH"));
    const std::optional<ScriptResult> result = LinuxScripts({page}, {}).run(OpenAccessibilityPage());
    ASSERT_TRUE(result && !result->error);

    QFile opened(record);
    for (int attempt = 0; attempt < 500 && !opened.exists(); ++attempt)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    ASSERT_TRUE(opened.open(QIODevice::ReadOnly));
    EXPECT_EQ(opened.readAll(), page.toUtf8());
}

TEST(StartupNotification, theTimeOfTheUsersDeedIsPartOfTheId)
{
    EXPECT_EQ(startupTime("gnome-shell-1234_TIME98765"), 98765U);
    EXPECT_EQ(startupTime("plain"), std::nullopt);
    EXPECT_EQ(startupTime("x_TIMEsoon"), std::nullopt);
    EXPECT_EQ(startupTime(""), std::nullopt);
}

} // namespace tarvin::desktop
