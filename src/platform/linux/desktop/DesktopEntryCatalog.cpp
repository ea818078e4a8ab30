#include "platform/linux/desktop/DesktopEntryCatalog.h"

#include <algorithm>
#include <tuple>

namespace tarvin::desktop {

namespace {

QString fileName(const QString& path)
{
    return path.section(u'/', -1);
}

/// The names under which the process' program may be known. Of an interpreter the first argument is the program.
QStringList programsOf(const ApplicationClues& clues)
{
    QStringList programs;
    if (isGenericLauncher(fileName(clues.executable)))
        programs += clues.arguments.value(1);
    else
        programs += {clues.executable, clues.arguments.value(0)};
    programs.removeAll(QString());
    return programs;
}

bool runsProgramOf(const DesktopEntry& entry, const ApplicationClues& clues)
{
    if (entry.executable.isEmpty())
        return false;
    // By name alone: what lies in /usr/bin is often a script that starts a program of the same name elsewhere.
    const QString name = fileName(entry.executable);
    const QStringList programs = programsOf(clues);
    return std::any_of(
        programs.cbegin(), programs.cend(), [&](const QString& program) { return fileName(program) == name; });
}

} // namespace

DesktopEntryCatalog::DesktopEntryCatalog(std::vector<DesktopEntry> entries)
    : m_entries(std::move(entries))
{
    for (std::size_t i = 0; i < m_entries.size(); ++i) {
        const DesktopEntry& entry = m_entries[i];
        m_byFoldedId.emplace(entry.id.toLower(), i);
        m_byFoldedLastPart.emplace(entry.id.section(u'.', -1).toLower(), i);
        if (!entry.windowClass.isEmpty()) {
            m_byWindowClass.emplace(entry.windowClass, i);
            m_byFoldedWindowClass.emplace(entry.windowClass.toLower(), i);
        }
        if (!entry.executable.isEmpty())
            m_byProgramName.emplace(fileName(entry.executable), i);
    }
}

const DesktopEntry* DesktopEntryCatalog::entry(const QString& id) const
{
    for (auto [it, end] = m_byFoldedId.equal_range(id.toLower()); it != end; ++it) {
        const DesktopEntry& candidate = m_entries[it->second];
        if (candidate.id == id)
            return &candidate;
    }
    return nullptr;
}

const DesktopEntry* DesktopEntryCatalog::match(const ApplicationClues& clues) const
{
    if (!clues.desktopFile.isEmpty()) {
        QString id = fileName(clues.desktopFile);
        if (id.endsWith(u".desktop"))
            id.chop(8);
        if (const DesktopEntry* named = entry(id))
            return named;
    }
    for (const auto& [index, isFolded] : {std::pair(&m_byWindowClass, false), {&m_byFoldedWindowClass, true},
             {&m_byFoldedId, true}, {&m_byFoldedLastPart, true}}) {
        for (const QString& name : {clues.className, clues.instanceName}) {
            if (name.isEmpty())
                continue;
            if (const DesktopEntry* found = best(*index, isFolded ? name.toLower() : name, clues))
                return found;
        }
    }
    return matchByProcess(clues);
}

const DesktopEntry* DesktopEntryCatalog::best(
    const Index& index, const QString& key, const ApplicationClues& clues) const
{
    const DesktopEntry* winner = nullptr;
    // The entries lie in order of precedence, so their addresses tell it.
    const auto rank = [&](const DesktopEntry* entry) {
        return std::tuple(!runsProgramOf(*entry, clues), !entry->isShown, entry);
    };
    for (auto [it, end] = index.equal_range(key); it != end; ++it) {
        const DesktopEntry* candidate = &m_entries[it->second];
        if (!winner || rank(candidate) < rank(winner))
            winner = candidate;
    }
    return winner;
}

const DesktopEntry* DesktopEntryCatalog::matchByProcess(const ApplicationClues& clues) const
{
    const QStringList programs = programsOf(clues);
    for (const QString& program : programs) {
        if (const DesktopEntry* found = best(m_byProgramName, fileName(program), clues))
            return found;
    }
    return nullptr;
}

} // namespace tarvin::desktop
