#include "platform/linux/desktop/ExecLine.h"

#include <algorithm>

namespace tarvin::desktop {

namespace {

/// Characters that make quotes necessary, besides the four that also need a backslash within them.
constexpr QStringView reservedCharacters = u" \t\n'><~|&;*?#()";
constexpr QStringView backslashedCharacters = u"\"`$\\";

bool isPlainCharacter(QChar character)
{
    return !reservedCharacters.contains(character) && !backslashedCharacters.contains(character);
}

} // namespace

QStringList splitExecLine(const QString& exec)
{
    QStringList words;
    QString word;
    bool isInWord = false;
    bool isQuoted = false;
    bool isFieldCode = false;
    const auto finishWord = [&] {
        if (isInWord && !(isFieldCode && word.isEmpty()))
            words += word;
        word.clear();
        isInWord = false;
        isFieldCode = false;
    };
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar character = exec[i];
        const QChar next = i + 1 < exec.size() ? exec[i + 1] : QChar();
        if (!isQuoted && character.isSpace()) {
            finishWord();
            continue;
        }
        isInWord = true;
        if (character == u'"') {
            isQuoted = !isQuoted;
        } else if (isQuoted && character == u'\\' && backslashedCharacters.contains(next)) {
            word += next;
            ++i;
        } else if (character == u'%' && !next.isNull()) {
            if (next == u'%')
                word += u'%';
            else
                isFieldCode = true;
            ++i;
        } else {
            word += character;
        }
    }
    finishWord();
    return words;
}

QString quotedExecArgument(const QString& argument)
{
    QString text = argument;
    text.replace(u'%', QStringLiteral("%%"));
    if (!text.isEmpty() && std::all_of(text.cbegin(), text.cend(), isPlainCharacter))
        return text;
    QString quoted = QStringLiteral("\"");
    for (const QChar character : std::as_const(text)) {
        if (backslashedCharacters.contains(character))
            quoted += u'\\';
        quoted += character;
    }
    return quoted + u'"';
}

} // namespace tarvin::desktop
