#include "app/cli/CommandService.h"

#include "app/cli/Arguments.h"
#include "app/cli/Listing.h"
#include "app/cli/MappingImport.h"
#include "app/cli/RecordArguments.h"
#include "profiles/KeyProfile.h"
#include "profiles/MappingArchive.h"
#include "profiles/MappingFile.h"

#include <algorithm>

namespace tarvin {

namespace {

CommandReply wrong(const QString& message)
{
    return {.exitCode = exitWrongInput, .error = message};
}

CommandReply failed(const QString& message)
{
    return {.exitCode = exitFailed, .error = message};
}

CommandReply said(const QString& text)
{
    return {.output = text};
}

QString keyNames()
{
    QStringList names;
    for (const FKey key : allFKeys)
        names += rawValue(key).toString();
    return names.join(QStringLiteral(", "));
}

CommandReply noSuchKey(const QString& word)
{
    return wrong(QStringLiteral("\"%1\" is no key; expected one of %2").arg(word, keyNames()));
}

QString titleOf(const ProfileMappings& mappings, const QString& profile, FKey key)
{
    const auto keys = mappings.find(profile);
    if (keys == mappings.end())
        return QStringLiteral("factory default");
    const auto record = keys->second.find(key);
    return record == keys->second.end() ? QStringLiteral("factory default") : record->second.displayTitle();
}

/// What an undo did, a line for every key.
QString undoneText(const MappingChange& change, const ProfileMappings& before, const ProfileMappings& now)
{
    QStringList lines;
    for (const auto& [profile, changed] : change.profiles) {
        for (const auto& [key, record] : changed.keys) {
            lines += QStringLiteral("%1 %2: %3 -> %4")
                         .arg(profile, rawValue(key), titleOf(before, profile, key), titleOf(now, profile, key));
        }
    }
    return lines.isEmpty() ? QStringLiteral("Undone.") : lines.join(u'\n');
}

int recordCount(const ProfileMappings& mappings)
{
    std::size_t count = 0;
    for (const auto& [profile, keys] : mappings)
        count += keys.size();
    return static_cast<int>(count);
}

QString stateWord(bool isOn)
{
    return isOn ? QStringLiteral("on") : QStringLiteral("off");
}

} // namespace

CommandService::CommandService(
    KeyProfile& keyProfile, MappingArchive& archive, UuidSource newUuid, std::optional<LiveProgram> live)
    : m_keyProfile(keyProfile)
    , m_archive(archive)
    , m_newUuid(std::move(newUuid))
    , m_live(std::move(live))
{ }

CommandReply CommandService::perform(const CommandRequest& request)
{
    if (request.command == u"list")
        return list(request.words);
    if (request.command == u"set")
        return set(request.words);
    if (request.command == u"reset")
        return reset(request.words);
    if (request.command == u"export")
        return exportMappings(request.words);
    if (request.command == u"import")
        return importMappings(request);
    if (request.command == u"undo")
        return undo(request.words);
    if (request.command == u"restore")
        return restore(request.words);
    if (request.command == u"status")
        return status(request.words);
    if (request.command == u"run")
        return run(request.words);
    return wrong(QStringLiteral("unknown command \"%1\"").arg(request.command));
}

CommandReply CommandService::list(const QStringList& words) const
{
    const Arguments arguments(words, {{u"--json"}});
    if (arguments.error())
        return wrong(*arguments.error());
    if (!arguments.operands().isEmpty())
        return wrong(QStringLiteral("list takes no operand"));
    const ProfileMappings& mappings = m_keyProfile.profileMappings();
    return said(arguments.has(u"--json") ? printed(recordsJson(mappings)) : recordsText(mappings));
}

CommandReply CommandService::set(const QStringList& words)
{
    const Arguments arguments(words, {{u"--profile", OptionValue::required}});
    if (arguments.error())
        return wrong(*arguments.error());
    const QStringList& operands = arguments.operands();
    if (operands.size() < 2)
        return wrong(QStringLiteral("set takes a key and an action"));
    const std::optional<FKey> key = fKeyFromRawValue(operands.at(0));
    if (!key)
        return noSuchKey(operands.at(0));
    const QString profile = arguments.has(u"--profile") ? arguments.value(u"--profile") : AppProfile::global().id;
    if (const std::optional<QString> problem = problemWithProfile(profile))
        return wrong(*problem);
    const RecordOrProblem record = recordFromArguments(operands.at(1), operands.mid(2), m_newUuid);
    if (const auto* const problem = std::get_if<QString>(&record))
        return wrong(*problem);
    const auto& config = std::get<ConfiguredAction>(record);
    m_keyProfile.setConfigInProfile(config, *key, profile);
    if (!config.isEffectivelyCustom(*key)) {
        return said(QStringLiteral("%1 in %2 is as the factory made it: %3")
                        .arg(rawValue(*key), profile, config.displayTitle()));
    }
    return said(QStringLiteral("%1 in %2: %3").arg(rawValue(*key), profile, config.displayTitle()));
}

CommandReply CommandService::reset(const QStringList& words)
{
    const Arguments arguments(words, {{u"--profile", OptionValue::optional}, {u"--all"}});
    if (arguments.error())
        return wrong(*arguments.error());
    const QStringList& operands = arguments.operands();
    const bool namesProfile = arguments.has(u"--profile");
    if (operands.size() > 1 || (arguments.has(u"--all") && (namesProfile || !operands.isEmpty()))
        || (operands.isEmpty() && !namesProfile && !arguments.has(u"--all")))
        return wrong(QStringLiteral("reset takes one key, --profile or --all"));
    if (arguments.has(u"--all")) {
        m_keyProfile.resetAllProfilesToDefaults();
        return said(QStringLiteral("All keys of all profiles are as the factory made them."));
    }
    QString profile = arguments.value(u"--profile");
    if (profile.isEmpty())
        profile = namesProfile ? m_keyProfile.currentProfile().id : AppProfile::global().id;
    if (const std::optional<QString> problem = problemWithProfile(profile))
        return wrong(*problem);
    if (operands.isEmpty()) {
        m_keyProfile.resetProfileToDefaults(profile);
        return said(QStringLiteral("All keys of %1 are as the factory made them.").arg(profile));
    }
    const std::optional<FKey> key = fKeyFromRawValue(operands.first());
    if (!key)
        return noSuchKey(operands.first());
    m_keyProfile.resetToDefaultInProfile(*key, profile);
    return said(QStringLiteral("%1 in %2 is as the factory made it.").arg(rawValue(*key), profile));
}

CommandReply CommandService::exportMappings(const QStringList& words) const
{
    const Arguments arguments(words, {});
    if (arguments.error() || arguments.operands().size() != 1)
        return wrong(arguments.error().value_or(QStringLiteral("export takes one file, or - for the standard output")));
    return {.file = encodeMappings(m_keyProfile.profileMappings())};
}

CommandReply CommandService::importMappings(const CommandRequest& request)
{
    const Arguments arguments(request.words, {{u"--replace"}});
    if (arguments.error() || arguments.operands().size() != 1)
        return wrong(arguments.error().value_or(QStringLiteral("import takes one file, or - for the standard input")));
    const MappingImport import = checkMappings(request.input.value_or(QByteArray()), m_newUuid);
    if (!import.problems.isEmpty()) {
        const QString head = QStringLiteral("%1: nothing was imported\n").arg(arguments.operands().first());
        return wrong(head + QStringLiteral("  ") + import.problems.join(QStringLiteral("\n  ")));
    }
    m_keyProfile.replaceMappings(
        merged(arguments.has(u"--replace") ? ProfileMappings() : m_keyProfile.profileMappings(), import.mappings));
    return said(QStringLiteral("Imported %1 records; %2 are stored now.")
                    .arg(import.records)
                    .arg(recordCount(m_keyProfile.profileMappings())));
}

CommandReply CommandService::undo(const QStringList& words)
{
    if (!words.isEmpty())
        return wrong(QStringLiteral("undo takes no operand"));
    const ProfileMappings before = m_keyProfile.profileMappings();
    const std::optional<MappingChange> change = m_archive.undo();
    if (!change)
        return failed(QStringLiteral("there is no change to undo"));
    return said(undoneText(*change, before, m_keyProfile.profileMappings()));
}

CommandReply CommandService::restore(const QStringList& words)
{
    const Arguments arguments(words, {});
    if (arguments.error() || arguments.operands().size() > 1)
        return wrong(arguments.error().value_or(QStringLiteral("restore takes at most one number")));
    if (arguments.operands().isEmpty())
        return said(stateList());
    bool isNumber = false;
    const qsizetype number = arguments.operands().first().toLongLong(&isNumber);
    if (!isNumber || number < 1 || number > m_archive.savedStates().size()) {
        return wrong(QStringLiteral("there is no kept state \"%1\"; \"tarvin restore\" lists them")
                         .arg(arguments.operands().first()));
    }
    const SavedState state = m_archive.savedStates().at(number - 1);
    if (!m_archive.restore(state))
        return failed(QStringLiteral("%1 is damaged or gone; nothing was changed").arg(state.fileName));
    return said(QStringLiteral("Restored %1: %2 records.")
                    .arg(state.fileName)
                    .arg(recordCount(m_keyProfile.profileMappings())));
}

QString CommandService::stateList() const
{
    QList<QStringList> rows;
    for (const SavedState& state : m_archive.savedStates()) {
        const std::optional<ProfileMappings> mappings = m_archive.read(state);
        rows.append({QString::number(rows.size() + 1),
            state.savedAt.isValid() ? state.savedAt.toString(Qt::ISODate) : QStringLiteral("at an unknown time"),
            mappings ? QStringLiteral("%1 records").arg(recordCount(*mappings)) : QStringLiteral("damaged"),
            state.fileName});
    }
    return rows.isEmpty() ? QStringLiteral("No state is kept yet.") : inColumns(rows);
}

CommandReply CommandService::status(const QStringList& words) const
{
    const Arguments arguments(words, {{u"--json"}});
    if (arguments.error() || !arguments.operands().isEmpty())
        return wrong(arguments.error().value_or(QStringLiteral("status takes no operand")));
    QJsonObject fields = m_live ? m_live->status() : QJsonObject();
    fields.insert(QStringLiteral("running"), m_live.has_value());
    fields.insert(QStringLiteral("version"), QStringLiteral(TARVIN_VERSION));
    fields.insert(QStringLiteral("interceptionEnabled"), m_keyProfile.isInterceptionEnabled());
    fields.insert(QStringLiteral("functionKeysEnabled"), m_keyProfile.isFunctionKeysEnabled());
    fields.insert(QStringLiteral("otherKeysEnabled"), m_keyProfile.isOtherKeysEnabled());
    fields.insert(QStringLiteral("storedRecords"), recordCount(m_keyProfile.profileMappings()));
    const int code = m_live ? exitWell : exitNotRunning;
    if (arguments.has(u"--json"))
        return {.exitCode = code, .output = printed(fields)};

    QList<QStringList> rows{{QStringLiteral("Tarvin"),
        m_live ? QStringLiteral("runs, version %1").arg(QStringLiteral(TARVIN_VERSION))
               : QStringLiteral("does not run")}};
    if (m_live) {
        rows.append({QStringLiteral("Keys are taken"),
            fields.value(u"engineRunning").toBool() ? QStringLiteral("yes") : QStringLiteral("no")});
        rows.append({QStringLiteral("Application in front"), fields.value(u"frontApplication").toString()});
        QStringList keys;
        if (const QJsonValue installed = fields.value(u"installedApplications"); !installed.isUndefined())
            rows.append({QStringLiteral("Applications known"), QString::number(installed.toInteger())});
        const QJsonArray custom = fields.value(u"customKeys").toArray();
        for (const auto& key : custom)
            keys += key.toString();
        rows.append({QStringLiteral("Custom keys now"), keys.isEmpty() ? QStringLiteral("none") : keys.join(u' ')});
        if (const QString word = fields.value(u"testSafeMode").toString(); !word.isEmpty())
            rows.append({QStringLiteral("Keystrokes held back"), word});
    }
    rows.append({QStringLiteral("Master switch"), stateWord(m_keyProfile.isInterceptionEnabled())});
    rows.append({QStringLiteral("Function keys"), stateWord(m_keyProfile.isFunctionKeysEnabled())});
    rows.append({QStringLiteral("Other keys"), stateWord(m_keyProfile.isOtherKeysEnabled())});
    rows.append({QStringLiteral("Stored records"), QString::number(recordCount(m_keyProfile.profileMappings()))});
    return {.exitCode = code, .output = inColumns(rows)};
}

CommandReply CommandService::run(const QStringList& words)
{
    const Arguments arguments(words, {});
    if (arguments.error() || arguments.operands().isEmpty())
        return wrong(arguments.error().value_or(QStringLiteral("run takes an action")));
    const RecordOrProblem record =
        recordFromArguments(arguments.operands().first(), arguments.operands().mid(1), m_newUuid);
    if (const auto* const problem = std::get_if<QString>(&record))
        return wrong(*problem);
    if (!m_live)
        return {.exitCode = exitNotRunning, .error = QStringLiteral("Tarvin does not run; start it first")};
    m_live->run(std::get<ConfiguredAction>(record));
    return {};
}

std::optional<QString> CommandService::problemWithProfile(const QString& id) const
{
    QStringList known;
    for (const AppProfile& profile : m_keyProfile.availableProfiles())
        known += profile.id;
    for (const auto& [stored, keys] : m_keyProfile.profileMappings()) {
        if (!known.contains(stored))
            known += stored;
    }
    // Identifiers of applications have dots nearly always; a word without one is more likely mistyped.
    if (known.contains(id) || id.contains(u'.'))
        return std::nullopt;
    return QStringLiteral("there is no profile \"%1\"; expected %2, or the identifier of an application")
        .arg(id, known.join(QStringLiteral(", ")));
}

} // namespace tarvin
