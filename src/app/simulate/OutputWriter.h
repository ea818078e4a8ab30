#pragma once

#include "platform/simulated/EffectLog.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin::simulate {

/// Turns effects into the lines of the output.
class OutputWriter
{
public:
    /// @param logFile the file whose content is shown as log lines
    explicit OutputWriter(const QString& logFile)
        : m_logFile(logFile)
    { }

    /// From now on only these kinds are written; absent: all.
    void select(std::optional<QStringList> kinds) { m_kinds = std::move(kinds); }
    /// Writes the effects that came since the last call.
    void collect(const simulated::EffectLog& log);
    [[nodiscard]] const QByteArray& text() const { return m_text; }

private:
    [[nodiscard]] bool isSelected(QStringView kind) const;
    void write(const simulated::Effect& effect);
    void writeLogLines(const simulated::Effect& effect, const QByteArray& content);

    QString m_logFile;
    std::optional<QStringList> m_kinds;
    std::size_t m_collected = 0;
    QByteArray m_text;
};

} // namespace tarvin::simulate
