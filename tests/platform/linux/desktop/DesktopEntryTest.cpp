#include "platform/linux/desktop/DesktopEntry.h"

#include "support/QtPrinters.h"

namespace tarvin::desktop {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

DesktopEntryFile read(const char* lines, const QStringList& locales = {})
{
    const QByteArray content = QByteArray("[Desktop Entry]\nType=Application\nName=Editor\n") + lines;
    return readDesktopEntry(content, QStringLiteral("org.example.Editor"), QStringLiteral("/x.desktop"), locales);
}

QString executableFor(const char* exec)
{
    return read((QByteArray("Exec=") + exec + "\n").constData()).entry->executable;
}

} // namespace

TEST(DesktopEntry, theFieldsAreRead)
{
    const DesktopEntryFile file =
        read("StartupWMClass=EdWin\nExec=/usr/bin/ed %U\nCategories=Utility;TextEditor;\nNoDisplay=true\n");
    ASSERT_TRUE(file.entry);
    EXPECT_EQ(file.entry->id, QStringLiteral("org.example.Editor"));
    EXPECT_EQ(file.entry->path, QStringLiteral("/x.desktop"));
    EXPECT_EQ(file.entry->name, QStringLiteral("Editor"));
    EXPECT_EQ(file.entry->windowClass, QStringLiteral("EdWin"));
    EXPECT_EQ(file.entry->executable, QStringLiteral("/usr/bin/ed"));
    EXPECT_THAT(file.entry->categories, ElementsAre(u"Utility", u"TextEditor"));
    EXPECT_FALSE(file.entry->isShown);
}

TEST(DesktopEntry, keysOfOtherGroupsAreNotTheApplications)
{
    const DesktopEntryFile file = read("[Desktop Action new]\nName=New window\nExec=other\n");
    EXPECT_EQ(file.entry->name, QStringLiteral("Editor"));
    EXPECT_EQ(file.entry->executable, QString());
}

TEST(DesktopEntry, aDeletedEntryOnlyMasks)
{
    const DesktopEntryFile file = read("Hidden=true\n");
    EXPECT_TRUE(file.isDeleted);
    EXPECT_FALSE(file.entry);
}

TEST(DesktopEntry, linksAndFilesWithoutNameAreNoApplications)
{
    const QString name = QStringLiteral("x");
    EXPECT_FALSE(readDesktopEntry("[Desktop Entry]\nType=Link\nName=a\n", name, name, {}).entry);
    EXPECT_FALSE(readDesktopEntry("[Desktop Entry]\nType=Application\n", name, name, {}).entry);
    EXPECT_FALSE(readDesktopEntry("\x89PNG\r\n", name, name, {}).entry);
}

TEST(DesktopEntry, theBestTranslationOfTheNameWins)
{
    const char* names = "Name[fr]=Editeur\nName[de]=Bearbeiter\nName[de_AT]=Schreiber\n";
    EXPECT_EQ(read(names, {QStringLiteral("de_AT"), QStringLiteral("de")}).entry->name, QStringLiteral("Schreiber"));
    EXPECT_EQ(read(names, {QStringLiteral("de_CH"), QStringLiteral("de")}).entry->name, QStringLiteral("Bearbeiter"));
    EXPECT_EQ(read(names, {QStringLiteral("pt")}).entry->name, QStringLiteral("Editor"));
}

TEST(DesktopEntry, theProgramBehindEnvIsTheProgram)
{
    EXPECT_EQ(executableFor("env BAMF=1 A=b /opt/ed/ed --x"), QStringLiteral("/opt/ed/ed"));
    EXPECT_EQ(executableFor("\"/opt/my ed/ed\" %F"), QStringLiteral("/opt/my ed/ed"));
}

TEST(DesktopEntry, aGenericLauncherNamesNoProgram)
{
    EXPECT_EQ(executableFor("/usr/bin/flatpak run org.example.Editor"), QString());
    EXPECT_EQ(executableFor("sh -c \"ed\""), QString());
    EXPECT_EQ(executableFor("python3.11 /opt/ed.py"), QString());
}

TEST(DesktopEntry, aProgramInATerminalOwnsNoWindow)
{
    EXPECT_EQ(read("Exec=vim %F\nTerminal=true\n").entry->executable, QString());
}

TEST(DesktopEntry, localesAreTriedFromTheMostToTheLeastExact)
{
    EXPECT_THAT(
        localeSuffixes(QStringLiteral("de_AT.UTF-8@euro")), ElementsAre(u"de_AT@euro", u"de_AT", u"de@euro", u"de"));
    EXPECT_THAT(localeSuffixes(QStringLiteral("sv")), ElementsAre(u"sv"));
    EXPECT_THAT(localeSuffixes(QStringLiteral("C.UTF-8")), IsEmpty());
    EXPECT_THAT(localeSuffixes(QStringLiteral("POSIX")), IsEmpty());
    EXPECT_THAT(localeSuffixes(QString()), IsEmpty());
}

} // namespace tarvin::desktop
