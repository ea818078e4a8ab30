#include "app/cli/CommandTable.h"

#include "model/FKey.h"
#include "model/KeyAction.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace tarvin {

namespace {

constexpr auto commands = std::to_array<CommandRow>({
    {u"doctor", u"[--json]", u"tell whether Tarvin can work here, and what is missing",
        u"Looks at the session, at every way to the keys, at who else holds the keyboard, and at the running program. "
        u"For everything that is missing it names the command that grants it. Exits with 0 when keys can be taken, "
        u"else with 1.",
        u"--json", CommandRoad::here},
    {u"list", u"[--json]", u"list the keys that are customised",
        u"One line for every stored record, by profile and key. With --json an array with one object per record: "
        u"profile, key, action, displayTitle, summaryLines, custom and record, the record as it is stored.",
        u"--json", CommandRoad::service},
    {u"actions", u"[QUERY] [--json]", u"list the actions, or those that a search finds",
        u"Without QUERY the whole catalogue in its order. With one the actions that the picker would show, ranked as "
        u"it ranks them, each with its score in --json.",
        u"--json", CommandRoad::here},
    {u"set", u"KEY ACTION [FIELD=VALUE]... [--profile ID]", u"give a key an action",
        u"KEY is the stored name of a key, such as F5 or CapsLock, ACTION that of an action, such as open_web_url; "
        u"\"tarvin actions\" lists them. The fields are those of a stored record: customURL=https://debian.org, "
        u"textSnippet=Hello, customAppBundleId=firefox-esr, screenCaptureMode=Window and so on; lists and objects are "
        u"JSON. shortcut=ctrl+shift+k stands for customShortcut. The profile is \"global\" unless --profile names "
        u"another: a preset (safari, xcode, terminal, finder) or the identifier of an application.",
        u"--profile", CommandRoad::service},
    {u"reset", u"KEY [--profile ID] | --profile [ID] | --all", u"take customisations away",
        u"Of one key, of one profile, or of all. A bare --profile means the profile that the Studio shows.",
        u"--profile --all", CommandRoad::service},
    {u"export", u"FILE", u"write all mappings to a file",
        u"In the form of the mapping file. \"-\" is the standard output.", u"", CommandRoad::service},
    {u"import", u"FILE [--replace]", u"read mappings from a file",
        u"The file is checked entry by entry before anything changes; what is wrong is named with its place, and "
        u"then nothing is imported. Keys that the file does not name stay, unless --replace puts the file in the "
        u"place of everything. \"-\" is the standard input.",
        u"--replace", CommandRoad::service},
    {u"undo", u"", u"take back the last change of the mappings",
        u"The last 50 changes are remembered, whoever made them, also after a new start.", u"", CommandRoad::service},
    {u"restore", u"[NUMBER]", u"list the kept states of the mappings, or bring one back",
        u"The last 10 distinct states lie beside the mapping file. NUMBER is that of the list, 1 the newest. To "
        u"restore is a change that can be undone.",
        u"", CommandRoad::service},
    {u"status", u"[--json]", u"tell whether Tarvin runs, and what its switches say",
        u"Exits with 0 when Tarvin runs and with 3 when it does not.", u"--json", CommandRoad::service},
    {u"run", u"ACTION [FIELD=VALUE]...", u"perform an action now",
        u"As if a key with that action had been pressed. Needs the running program. The fields are those of \"set\".",
        u"", CommandRoad::live},
    {u"watch", u"[--json]", u"show live what physical keys do",
        u"One line for every press of a key that reaches Tarvin: the path that saw it, the profile whose record is in "
        u"force, and what was done. Ends with Ctrl+C. Needs the running program.",
        u"--json", CommandRoad::live},
    {u"simulate", u"FILE", u"play a scenario on a desktop in memory",
        u"Plays a scenario of keys and events and prints everything that happens; \"-\" reads it from the standard "
        u"input.",
        u"", CommandRoad::here},
});

struct OptionRow
{
    QStringView words;
    QStringView meaning;
};

constexpr auto options = std::to_array<OptionRow>({
    {u"tarvin://...", u"open the Studio"},
    {u"--startup", u"start quietly, without the Studio, as at login; --background and -loginItem mean the same"},
    {u"--help", u"print this text; behind a command, the help of the command"},
    {u"--version", u"print the version"},
});

constexpr QStringView purpose =
    u"Tarvin makes the keys of your keyboard do what you want. Without a command it starts and stays resident; started "
    u"again, it opens the Studio of the program that runs already. Commands act through the running program; without "
    u"one they act on its files.";

struct ExitCodeRow
{
    int code;
    QStringView meaning;
};
constexpr auto exitCodes = std::to_array<ExitCodeRow>({
    {0, u"all went well"},
    {1, u"it could not be done"},
    {2, u"the arguments, a file or a scenario are wrong; nothing was changed"},
    {3, u"Tarvin does not run, from status, run and watch"},
});

constexpr qsizetype textWidth = 100;

/// The text in lines of a terminal's width, all but the first with the indent.
QString wrapped(QStringView text, qsizetype indent = 0)
{
    QString result;
    qsizetype column = indent;
    bool isLineStart = true;
    for (const QStringView word : text.split(u' ')) {
        if (!isLineStart && column + 1 + word.size() > textWidth) {
            result += u'\n' + QString(indent, u' ');
            column = indent;
            isLineStart = true;
        }
        if (!isLineStart) {
            result += u' ';
            ++column;
        }
        result += word;
        column += word.size();
        isLineStart = false;
    }
    return result;
}

/// "  term      meaning", the meaning wrapped in its column.
QString definition(const QString& term, QStringView meaning, int termWidth)
{
    QString line = QStringLiteral("  %1  ").arg(term, -termWidth);
    return line + wrapped(meaning, termWidth + 4) + u'\n';
}

QString usageLine(const CommandRow& command)
{
    const QString line = QStringLiteral("tarvin ") + command.name.toString();
    return command.operands.isEmpty() ? line : line + u' ' + command.operands.toString();
}

/// What roff would take for its own, made plain.
QString roff(QStringView text)
{
    QString plain = text.toString();
    plain.replace(u'\\', QStringLiteral("\\e")).replace(u'-', QStringLiteral("\\-"));
    if (plain.startsWith(u'.') || plain.startsWith(u'\''))
        plain.prepend(QStringLiteral("\\&"));
    return plain;
}

} // namespace

std::span<const CommandRow> commandTable()
{
    return commands;
}

const CommandRow* findCommand(QStringView name)
{
    const auto found = std::ranges::find(commands, name, &CommandRow::name);
    return found == commands.end() ? nullptr : &*found;
}

QString usageText()
{
    QString text = QStringLiteral("Usage: tarvin [OPTION | URL]...\n       tarvin COMMAND [ARGUMENT]...\n\n")
        + wrapped(purpose) + QStringLiteral("\n\nCommands:\n");
    for (const CommandRow& command : commands)
        text +=
            definition(command.name.toString() + (command.name == u"simulate" ? QStringLiteral(" FILE") : QString()),
                command.summary, 14);
    text += QStringLiteral("\nArguments:\n");
    for (const OptionRow& option : options)
        text += definition(option.words.toString(), option.meaning, 14);
    text += QStringLiteral("\nExit codes:\n");
    for (const ExitCodeRow& row : exitCodes)
        text += definition(QString::number(row.code), row.meaning, 1);
    return text.chopped(1);
}

QString helpOf(const CommandRow& command)
{
    return QStringLiteral("Usage: ") + usageLine(command) + QStringLiteral("\n\n") + wrapped(command.details);
}

QString manualPage()
{
    QString page =
        QStringLiteral(".TH TARVIN 1 \"\" \"tarvin %1\" \"User Commands\"\n").arg(QStringLiteral(TARVIN_VERSION));
    page += QStringLiteral(".SH NAME\ntarvin \\- make the keys of your keyboard do what you want\n.SH SYNOPSIS\n"
                           ".B tarvin\n[\\fIOPTION\\fR | \\fIURL\\fR]...\n.br\n.B tarvin\n\\fICOMMAND\\fR "
                           "[\\fIARGUMENT\\fR]...\n.SH DESCRIPTION\n");
    page += roff(purpose) + QStringLiteral("\n.SH COMMANDS\n");
    for (const CommandRow& command : commands) {
        page += QStringLiteral(".TP\n.B ") + roff(usageLine(command)) + u'\n' + roff(command.details) + u'\n';
    }
    page += QStringLiteral(".SH OPTIONS\n");
    for (const OptionRow& option : options)
        page += QStringLiteral(".TP\n.B ") + roff(option.words) + u'\n' + roff(option.meaning) + u'\n';
    page += QStringLiteral(".SH EXIT STATUS\n");
    for (const ExitCodeRow& row : exitCodes)
        page += QStringLiteral(".TP\n.B %1\n").arg(row.code) + roff(row.meaning) + u'\n';
    page +=
        QStringLiteral(".SH FILES\n.TP\n.I ~/.local/share/Tarvin/profiles_mappings.json\nthe mappings, with a safety "
                       "copy and the kept states beside it\n.TP\n.I ~/.config/Tarvin/settings.json\nthe settings\n"
                       ".TP\n.I ~/.local/share/Tarvin/runtime.log\nthe log\n");
    return page.chopped(1);
}

QString completionScript()
{
    QStringList names;
    QString cases;
    for (const CommandRow& command : commands) {
        names += command.name.toString();
        QString words = QStringLiteral("--help ") + command.options.toString();
        if (command.name == u"set" || command.name == u"reset") {
            for (const FKey key : allFKeys)
                words += u' ' + rawValue(key).toString();
        }
        if (command.name == u"set" || command.name == u"run") {
            for (const KeyAction action : allKeyActions)
                words += u' ' + rawValue(action).toString();
        }
        const bool takesFile = command.operands.contains(u"FILE");
        cases +=
            QStringLiteral("    %1) words=\"%2\"%3 ;;\n")
                .arg(command.name, words.simplified(), takesFile ? QStringLiteral("; compopt -o default") : QString());
    }
    return QStringLiteral("# Completion of tarvin for bash.\n"
                          "_tarvin() {\n"
                          "  local words\n"
                          "  COMPREPLY=()\n"
                          "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
                          "    words=\"%1 --startup --help --version\"\n"
                          "  else\n"
                          "    case ${COMP_WORDS[1]} in\n%2    esac\n"
                          "  fi\n"
                          "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"${COMP_WORDS[COMP_CWORD]}\")\n"
                          "}\n"
                          "complete -F _tarvin tarvin")
        .arg(names.join(u' '), cases);
}

} // namespace tarvin
