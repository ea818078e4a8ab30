#include "app/cli/Arguments.h"

#include <algorithm>

namespace tarvin {

Arguments::Arguments(const QStringList& words, const std::vector<Option>& known)
{
    bool areOptionsOver = false;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString& word = words.at(i);
        if (areOptionsOver || !word.startsWith(u'-') || word == u"-") {
            m_operands += word;
            continue;
        }
        if (word == u"--") {
            areOptionsOver = true;
            continue;
        }
        const qsizetype sign = word.indexOf(u'=');
        const QString name = sign < 0 ? word : word.left(sign);
        const auto option = std::ranges::find(known, QStringView(name), &Option::name);
        if (option == known.end()) {
            fail(QStringLiteral("unknown option \"%1\"").arg(name));
            return;
        }
        if (m_options.contains(name))
            fail(QStringLiteral("%1 is given twice").arg(name));
        QString& value = m_options[name];
        if (sign >= 0) {
            if (option->value == OptionValue::none)
                fail(QStringLiteral("%1 takes no value").arg(name));
            value = word.mid(sign + 1);
        } else if (option->value != OptionValue::none && i + 1 < words.size() && !words.at(i + 1).startsWith(u'-')) {
            value = words.at(++i);
        }
        if (option->value == OptionValue::required && value.isEmpty())
            fail(QStringLiteral("%1 needs a value").arg(name));
    }
}

QString Arguments::value(QStringView option) const
{
    const auto found = m_options.find(option.toString());
    return found == m_options.end() ? QString() : found->second;
}

void Arguments::fail(const QString& message)
{
    if (!m_error)
        m_error = message;
}

} // namespace tarvin
