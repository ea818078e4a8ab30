#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace tarvin {

enum class OptionValue {
    none,
    required,
    optional, ///< the next word, unless there is none or it is an option too
};

struct Option
{
    QStringView name; ///< with its dashes
    OptionValue value = OptionValue::none;
};

/// The words behind a command, parted into options and operands. "--" ends the options; a lone "-" is an operand.
class Arguments
{
public:
    Arguments(const QStringList& words, const std::vector<Option>& known);

    [[nodiscard]] const QStringList& operands() const { return m_operands; }
    [[nodiscard]] bool has(QStringView option) const { return m_options.contains(option.toString()); }
    /// Empty where the option has none.
    [[nodiscard]] QString value(QStringView option) const;
    /// What is wrong with the words, for a message.
    [[nodiscard]] const std::optional<QString>& error() const { return m_error; }

private:
    void fail(const QString& message);

    QStringList m_operands;
    std::map<QString, QString> m_options;
    std::optional<QString> m_error;
};

} // namespace tarvin
