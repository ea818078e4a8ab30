#include "platform/linux/desktop/DesktopEntry.h"

#include "platform/linux/desktop/ExecLine.h"
#include "platform/linux/desktop/KeyFile.h"

#include <algorithm>
#include <array>

namespace tarvin::desktop {

namespace {

constexpr auto launchers = std::to_array<QStringView>(
    {u"bash", u"dash", u"env", u"flatpak", u"gjs", u"java", u"node", u"perl", u"ruby", u"sh", u"snap"});
/// Interpreters whose names end with a version.
constexpr auto launcherPrefixes = std::to_array<QStringView>({u"perl5", u"python", u"ruby"});

bool isVariable(const QString& word)
{
    return word.contains(u'=') && !word.startsWith(u'/');
}

QString executableOf(const QString& exec)
{
    QStringList words = splitExecLine(exec);
    if (!words.isEmpty() && (words.first() == u"env" || words.first() == u"/usr/bin/env")) {
        words.removeFirst();
        while (!words.isEmpty() && isVariable(words.first()))
            words.removeFirst();
    }
    if (words.isEmpty())
        return {};
    return isGenericLauncher(words.first().section(u'/', -1)) ? QString() : words.first();
}

/// The place of a key's locale in the list, past its end for no locale at all, nothing for a foreign one.
std::optional<qsizetype> localeRank(QByteArrayView key, const QStringList& locales)
{
    const qsizetype bracket = key.indexOf('[');
    if (bracket < 0)
        return locales.size();
    const QByteArrayView suffix = key.sliced(bracket + 1).chopped(1);
    for (qsizetype rank = 0; rank < locales.size(); ++rank) {
        if (locales[rank] == QLatin1String(suffix.data(), suffix.size()))
            return rank;
    }
    return std::nullopt;
}

} // namespace

bool isGenericLauncher(QStringView programName)
{
    return std::find(launchers.begin(), launchers.end(), programName) != launchers.end()
        || std::any_of(launcherPrefixes.begin(), launcherPrefixes.end(),
            [&](QStringView prefix) { return programName.startsWith(prefix); });
}

QStringList localeSuffixes(const QString& locale)
{
    const QString modifier = locale.contains(u'@') ? u'@' + locale.section(u'@', 1) : QString();
    const QString territory = locale.section(u'@', 0, 0).section(u'.', 0, 0);
    const QString language = territory.section(u'_', 0, 0);
    if (language.isEmpty() || language == u"C" || language == u"POSIX")
        return {};
    QStringList suffixes{territory + modifier, territory, language + modifier, language};
    suffixes.removeDuplicates();
    return suffixes;
}

QString messageLocale()
{
    for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        QString value = qEnvironmentVariable(variable);
        if (!value.isEmpty())
            return value;
    }
    return {};
}

DesktopEntryFile readDesktopEntry(
    QByteArrayView content, const QString& id, const QString& path, const QStringList& locales)
{
    DesktopEntry entry{.id = id, .path = path, .name = {}, .windowClass = {}, .executable = {}, .categories = {}};
    bool isDeleted = false;
    bool isApplication = false;
    bool runsInTerminal = false;
    qsizetype nameRank = locales.size() + 1;
    readKeyFile(content, [&](const KeyFileLine& line) {
        if (line.group != "Desktop Entry")
            return true;
        if (line.key == "Type") {
            isApplication = line.value == "Application";
        } else if (line.key == "Hidden") {
            isDeleted = line.value == "true";
        } else if (line.key == "NoDisplay") {
            entry.isShown = line.value != "true";
        } else if (line.key == "Terminal") {
            runsInTerminal = line.value == "true";
        } else if (line.key == "StartupWMClass") {
            entry.windowClass = unescapedValue(line.value);
        } else if (line.key == "Exec") {
            entry.executable = executableOf(unescapedValue(line.value));
        } else if (line.key == "Icon") {
            entry.icon = unescapedValue(line.value);
        } else if (line.key == "Categories") {
            entry.categories = listValue(line.value);
        } else if (line.key == "Name" || line.key.startsWith("Name[")) {
            const std::optional<qsizetype> rank = localeRank(line.key, locales);
            if (rank && *rank < nameRank) {
                nameRank = *rank;
                entry.name = unescapedValue(line.value);
            }
        }
        return true;
    });
    if (isDeleted || !isApplication || entry.name.isEmpty())
        return {.isDeleted = isDeleted, .entry = std::nullopt};
    if (runsInTerminal)
        entry.executable.clear();
    return {.isDeleted = false, .entry = std::move(entry)};
}

} // namespace tarvin::desktop
