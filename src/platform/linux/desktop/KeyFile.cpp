#include "platform/linux/desktop/KeyFile.h"

namespace tarvin::desktop {

namespace {

/// What stands for the character after a backslash, or nothing where the pair means no escape.
std::optional<QChar> escapedCharacter(QChar afterBackslash)
{
    switch (afterBackslash.unicode()) {
    case u's':
        return u' ';
    case u'n':
        return u'\n';
    case u't':
        return u'\t';
    case u'r':
        return u'\r';
    case u'\\':
        return u'\\';
    default:
        return std::nullopt;
    }
}

} // namespace

void readKeyFile(QByteArrayView content, const std::function<bool(const KeyFileLine&)>& visit)
{
    QByteArrayView group;
    while (!content.isEmpty()) {
        const qsizetype end = content.indexOf('\n');
        const QByteArrayView line = (end < 0 ? content : content.first(end)).trimmed();
        content = end < 0 ? QByteArrayView() : content.sliced(end + 1);
        if (line.isEmpty() || line.front() == '#')
            continue;
        if (line.front() == '[') {
            group = line.back() == ']' ? line.sliced(1, line.size() - 2) : QByteArrayView();
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        if (equals <= 0)
            continue;
        if (!visit({group, line.first(equals).trimmed(), line.sliced(equals + 1).trimmed()}))
            return;
    }
}

QString unescapedValue(QByteArrayView value)
{
    QString raw = QString::fromUtf8(value);
    if (!raw.contains(u'\\'))
        return raw;
    QString text;
    for (qsizetype i = 0; i < raw.size(); ++i) {
        const std::optional<QChar> escaped =
            raw[i] == u'\\' && i + 1 < raw.size() ? escapedCharacter(raw[i + 1]) : std::nullopt;
        text += escaped.value_or(raw[i]);
        if (escaped)
            ++i;
    }
    return text;
}

QString escapedValue(const QString& value)
{
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        const QChar character = value[i];
        if (character == u'\\')
            text += u"\\\\";
        else if (character == u'\n')
            text += u"\\n";
        else if (character == u'\r')
            text += u"\\r";
        else if (character == u'\t')
            text += u"\\t";
        else if (character == u' ' && i == 0)
            text += u"\\s"; // a reader drops blanks after the equals sign
        else
            text += character;
    }
    return text;
}

QStringList listValue(QByteArrayView value)
{
    QStringList parts;
    QByteArray part;
    const auto finishPart = [&] {
        if (!part.isEmpty())
            parts += unescapedValue(part);
        part.clear();
    };
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] == '\\' && i + 1 < value.size()) {
            if (value[i + 1] != ';')
                part += value[i];
            part += value[++i];
        } else if (value[i] == ';') {
            finishPart();
        } else {
            part += value[i];
        }
    }
    finishPart();
    return parts;
}

} // namespace tarvin::desktop
