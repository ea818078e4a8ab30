#include "platform/linux/desktop/DesktopEntryCatalog.h"

#include "support/QtPrinters.h"

namespace tarvin::desktop {

namespace {

struct Fields
{
    QString windowClass{};
    QString executable{};
    bool isShown = true;
};

DesktopEntry entry(const QString& id, const Fields& fields = {})
{
    return {.id = id,
        .path = {},
        .name = id,
        .windowClass = fields.windowClass,
        .executable = fields.executable,
        .categories = {},
        .isShown = fields.isShown};
}

QString matched(std::vector<DesktopEntry> entries, const ApplicationClues& clues)
{
    const DesktopEntryCatalog catalog(std::move(entries));
    const DesktopEntry* found = catalog.match(clues);
    return found ? found->id : QStringLiteral("none");
}

ApplicationClues window(const QString& instanceName, const QString& className)
{
    return {.className = className, .instanceName = instanceName, .desktopFile = {}, .executable = {}, .arguments = {}};
}

ApplicationClues process(const QString& executable, const QStringList& arguments = {})
{
    return {.className = QStringLiteral("Unknown"),
        .instanceName = QStringLiteral("unknown"),
        .desktopFile = {},
        .executable = executable,
        .arguments = arguments};
}

const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");

} // namespace

TEST(DesktopEntryCatalog, theFileThatTheWindowNamesComesFirst)
{
    ApplicationClues clues = window(a, a);
    clues.desktopFile = b;
    EXPECT_EQ(matched({entry(a), entry(b)}, clues), b);
    clues.desktopFile = QStringLiteral("/usr/share/applications/b.desktop");
    EXPECT_EQ(matched({entry(a), entry(b)}, clues), b);
    clues.desktopFile = QStringLiteral("gone");
    EXPECT_EQ(matched({entry(a), entry(b)}, clues), a);
}

TEST(DesktopEntryCatalog, theDeclaredClassComesBeforeTheFileName)
{
    EXPECT_EQ(matched({entry(a), entry(b, {.windowClass = a})}, window(QStringLiteral("x"), a)), b);
}

TEST(DesktopEntryCatalog, theDeclaredClassAsWrittenComesBeforeAnotherSpelling)
{
    const std::vector<DesktopEntry> entries{
        entry(a, {.windowClass = QStringLiteral("xterm")}), entry(b, {.windowClass = QStringLiteral("XTerm")})};
    EXPECT_EQ(matched(entries, window(QStringLiteral("i"), QStringLiteral("XTerm"))), b);
    EXPECT_EQ(matched(entries, window(QStringLiteral("i"), QStringLiteral("xterm"))), a);
    EXPECT_EQ(matched(entries, window(QStringLiteral("i"), QStringLiteral("XTERM"))), a);
}

TEST(DesktopEntryCatalog, theDeclaredClassMayBeTheInstance)
{
    EXPECT_EQ(matched({entry(a, {.windowClass = QStringLiteral("web-app")})},
                  window(QStringLiteral("web-app"), QStringLiteral("Browser"))),
        a);
}

TEST(DesktopEntryCatalog, theFileNameMatchesTheClassWithoutRegardToCase)
{
    EXPECT_EQ(
        matched({entry(QStringLiteral("firefox"))}, window(QStringLiteral("Navigator"), QStringLiteral("Firefox"))),
        QStringLiteral("firefox"));
}

TEST(DesktopEntryCatalog, theLastPartOfTheFileNameMatchesToo)
{
    EXPECT_EQ(
        matched({entry(QStringLiteral("org.kde.dolphin"))}, window(QStringLiteral("dolphin"), QStringLiteral("x"))),
        QStringLiteral("org.kde.dolphin"));
}

TEST(DesktopEntryCatalog, theProgramIsTheLastResort)
{
    const std::vector<DesktopEntry> entries{entry(a, {.executable = QStringLiteral("/usr/bin/chromium")})};
    EXPECT_EQ(matched(entries, process(QStringLiteral("/usr/lib/chromium/chromium"))), a);
    EXPECT_EQ(matched(entries, process(QStringLiteral("/usr/lib/chromium/crashpad"))), QStringLiteral("none"));
}

TEST(DesktopEntryCatalog, anInterpretersArgumentIsTheProgram)
{
    const std::vector<DesktopEntry> entries{entry(a, {.executable = QStringLiteral("lollypop")})};
    const QString python = QStringLiteral("/usr/bin/python3.11");
    EXPECT_EQ(matched(entries, process(python, {python, QStringLiteral("/usr/bin/lollypop")})), a);
    EXPECT_EQ(
        matched(entries,
            process(QStringLiteral("/usr/bin/less"), {QStringLiteral("less"), QStringLiteral("/usr/bin/lollypop")})),
        QStringLiteral("none"));
}

TEST(DesktopEntryCatalog, amongEqualsTheOneWithTheSameProgramWins)
{
    ApplicationClues clues = window(QStringLiteral("i"), a);
    clues.executable = QStringLiteral("/opt/two");
    EXPECT_EQ(matched({entry(QStringLiteral("one"), {.windowClass = a, .executable = QStringLiteral("one")}),
                          entry(QStringLiteral("two"), {.windowClass = a, .executable = QStringLiteral("two")})},
                  clues),
        QStringLiteral("two"));
}

TEST(DesktopEntryCatalog, amongEqualsTheOneInMenusWinsAndThenThePrecedence)
{
    const DesktopEntry hidden = entry(QStringLiteral("hidden"), {.windowClass = a, .isShown = false});
    const DesktopEntry first = entry(QStringLiteral("first"), {.windowClass = a});
    const DesktopEntry second = entry(QStringLiteral("second"), {.windowClass = a});
    EXPECT_EQ(matched({hidden, first, second}, window(QStringLiteral("i"), a)), QStringLiteral("first"));
    EXPECT_EQ(matched({hidden}, window(QStringLiteral("i"), a)), QStringLiteral("hidden"));
}

TEST(DesktopEntryCatalog, aWindowThatTellsNothingMatchesNothing)
{
    EXPECT_EQ(matched({entry(a), entry(QString(), {})}, {}), QStringLiteral("none"));
}

} // namespace tarvin::desktop
