#include "platform/linux/desktop/KeyboardSettings.h"

#include "support/QtPrinters.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarvin::desktop {

namespace {

/// A folder with programs that do nothing.
class KeyboardSettings : public testing::Test
{
protected:
    void install(const QString& program)
    {
        QFile file(m_folder.filePath(program));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    /// The command without its folder.
    [[nodiscard]] QString commandOn(const QString& desktop) const
    {
        const auto command = keyboardSettingsCommand(desktop, {m_folder.path()});
        return command ? command->join(u' ').remove(m_folder.path() + u'/') : QStringLiteral("none");
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(KeyboardSettings, areThoseOfTheRunningDesktop)
{
    install(u"gnome-control-center"_qs);
    install(u"systemsettings"_qs);
    install(u"xfce4-keyboard-settings"_qs);
    EXPECT_EQ(commandOn(u"KDE"_qs), u"systemsettings kcm_keyboard"_qs);
    EXPECT_EQ(commandOn(u"ubuntu:GNOME"_qs), u"gnome-control-center keyboard"_qs);
    EXPECT_EQ(commandOn(u"XFCE"_qs), u"xfce4-keyboard-settings"_qs);
}

TEST_F(KeyboardSettings, areAnyThatIsInstalledOnADesktopWithoutItsOwn)
{
    install(u"mate-keyboard-properties"_qs);
    EXPECT_EQ(commandOn(u"KDE"_qs), u"mate-keyboard-properties"_qs);
    EXPECT_EQ(commandOn(QString()), u"mate-keyboard-properties"_qs);
}

TEST_F(KeyboardSettings, areNoneWhereNoneIsInstalled)
{
    EXPECT_EQ(commandOn(u"GNOME"_qs), u"none"_qs);
}

} // namespace

} // namespace tarvin::desktop
