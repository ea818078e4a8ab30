#include "platform/linux/desktop/ApplicationRoles.h"

#include "platform/linux/desktop/DesktopEntryCatalog.h"
#include "platform/linux/desktop/MimeDefaults.h"

#include "support/QtPrinters.h"

namespace tarvin::desktop {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

DesktopEntry entry(const QString& id, const QStringList& categories, const QString& executable = {})
{
    return {.id = id,
        .path = {},
        .name = id,
        .windowClass = {},
        .executable = executable,
        .categories = categories,
        .isShown = !id.endsWith(u"-hidden")};
}

const QString webBrowser = QStringLiteral("WebBrowser");
const QString safari = QStringLiteral("com.apple.Safari");
const QString terminal = QStringLiteral("com.apple.Terminal");
const QString finder = QStringLiteral("com.apple.finder");

ApplicationRoles rolesOf(std::vector<DesktopEntry> entries, const char* defaults = "", const QString& browser = {})
{
    return {DesktopEntryCatalog(std::move(entries)), MimeDefaults({QByteArray("[Default Applications]\n") + defaults}),
        browser};
}

std::vector<DesktopEntry> twoBrowsers()
{
    return {entry(QStringLiteral("firefox"), {webBrowser}, QStringLiteral("firefox")),
        entry(QStringLiteral("chromium"), {webBrowser}, QStringLiteral("/usr/bin/chromium")),
        entry(QStringLiteral("chooser"), {QStringLiteral("Utility")})};
}

} // namespace

TEST(ApplicationRoles, theDefaultBrowserAloneFillsTheBrowsersRole)
{
    const ApplicationRoles roles = rolesOf(twoBrowsers(), "x-scheme-handler/https=chromium.desktop;firefox.desktop;\n");
    EXPECT_THAT(roles.wellKnownIdentifiersOf(QStringLiteral("chromium")), ElementsAre(safari));
    EXPECT_THAT(roles.wellKnownIdentifiersOf(QStringLiteral("firefox")), IsEmpty());
    EXPECT_THAT(roles.applicationsFilling(safari), ElementsAre(u"chromium"));
}

TEST(ApplicationRoles, aDefaultThatIsNotInstalledOrNoBrowserIsPassedOver)
{
    const ApplicationRoles roles =
        rolesOf(twoBrowsers(), "x-scheme-handler/https=gone.desktop;chooser.desktop;firefox.desktop\n");
    EXPECT_THAT(roles.applicationsFilling(safari), ElementsAre(u"firefox"));
}

TEST(ApplicationRoles, withoutADefaultTheBrowserVariableTells)
{
    EXPECT_THAT(rolesOf(twoBrowsers(), "", QStringLiteral("lynx:chromium --new-window")).applicationsFilling(safari),
        ElementsAre(u"chromium"));
    EXPECT_THAT(
        rolesOf(twoBrowsers(), "text/html=firefox.desktop\n", QStringLiteral("chromium")).applicationsFilling(safari),
        ElementsAre(u"firefox"));
}

TEST(ApplicationRoles, withoutAnyChoiceEveryBrowserFillsTheRole)
{
    EXPECT_THAT(rolesOf(twoBrowsers()).applicationsFilling(safari), ElementsAre(u"firefox", u"chromium"));
}

TEST(ApplicationRoles, everyTerminalEmulatorIsATerminal)
{
    const QString category = QStringLiteral("TerminalEmulator");
    const ApplicationRoles roles =
        rolesOf({entry(QStringLiteral("foot-hidden"), {category}), entry(QStringLiteral("xterm"), {category})});
    EXPECT_THAT(roles.wellKnownIdentifiersOf(QStringLiteral("xterm")), ElementsAre(terminal));
    EXPECT_THAT(roles.wellKnownIdentifiersOf(QStringLiteral("foot-hidden")), ElementsAre(terminal));
    EXPECT_THAT(roles.applicationsFilling(terminal), ElementsAre(u"xterm", u"foot-hidden"));
}

TEST(ApplicationRoles, anEditorThatTookTheFoldersIsNoFileManager)
{
    const ApplicationRoles roles = rolesOf({entry(QStringLiteral("code"), {QStringLiteral("IDE")}),
                                               entry(QStringLiteral("thunar"), {QStringLiteral("FileManager")})},
        "inode/directory=code.desktop;\n");
    EXPECT_THAT(roles.applicationsFilling(finder), ElementsAre(u"thunar"));
    EXPECT_THAT(roles.wellKnownIdentifiersOf(QStringLiteral("code")), ElementsAre(u"com.apple.dt.Xcode"));
}

TEST(ApplicationRoles, toolsWithoutACategoryOfTheirOwnAreKnownByName)
{
    const ApplicationRoles roles = rolesOf({entry(QStringLiteral("systemsettings"), {QStringLiteral("Settings")}),
        entry(QStringLiteral("display-panel"), {QStringLiteral("Settings")}),
        entry(QStringLiteral("org.gnome.Notes"), {})});
    EXPECT_THAT(
        roles.applicationsFilling(QStringLiteral("com.apple.systempreferences")), ElementsAre(u"systemsettings"));
    EXPECT_THAT(roles.applicationsFilling(QStringLiteral("com.apple.Notes")), ElementsAre(u"org.gnome.Notes"));
    EXPECT_THAT(roles.wellKnownIdentifiersOf(QStringLiteral("display-panel")), IsEmpty());
}

TEST(ApplicationRoles, anApplicationCanFillSeveralRoles)
{
    const ApplicationRoles roles = rolesOf(
        {entry(QStringLiteral("konqueror"), {webBrowser, QStringLiteral("FileManager"), QStringLiteral("Qt")})});
    EXPECT_THAT(roles.wellKnownIdentifiersOf(QStringLiteral("konqueror")), ElementsAre(safari, finder));
}

TEST(ApplicationRoles, anUnknownRoleHasNoApplications)
{
    EXPECT_THAT(rolesOf(twoBrowsers()).applicationsFilling(QStringLiteral("com.apple.Mail")), IsEmpty());
}

TEST(MimeDefaults, theFileOfHigherPrecedenceComesFirstAndTheOthersFollow)
{
    const MimeDefaults defaults({"[Default Applications]\ntext/html=a.desktop;\n",
        "[Added Associations]\ntext/html=x.desktop;\n[Default Applications]\ntext/html=b.desktop;a.desktop;\n"});
    EXPECT_THAT(defaults.applicationsFor(QStringLiteral("text/html")), ElementsAre(u"a", u"b"));
}

TEST(MimeDefaults, theDesktopsOwnFilesComeBeforeTheCommonOnes)
{
    EXPECT_THAT(mimeAppsPaths({QStringLiteral("/c")}, {QStringLiteral("/d")}, QStringLiteral("Budgie:GNOME")),
        ElementsAre(u"/c/budgie-mimeapps.list", u"/c/gnome-mimeapps.list", u"/c/mimeapps.list",
            u"/d/budgie-mimeapps.list", u"/d/gnome-mimeapps.list", u"/d/mimeapps.list"));
}

} // namespace tarvin::desktop
