#include "app/simulate/OutputWriter.h"

#include "app/simulate/OutputKinds.h"
#include "platform/simulated/EffectJson.h"

namespace tarvin::simulate {

namespace {

constexpr QStringView logKind = u"log";

} // namespace

QStringList outputKinds()
{
    QStringList kinds = simulated::allEffectNames();
    kinds.append(logKind.toString());
    kinds.sort();
    return kinds;
}

void OutputWriter::collect(const simulated::EffectLog& log)
{
    for (; m_collected < log.effects().size(); ++m_collected)
        write(log.effects()[m_collected]);
}

bool OutputWriter::isSelected(QStringView kind) const
{
    return !m_kinds || m_kinds->contains(kind);
}

void OutputWriter::write(const simulated::Effect& effect)
{
    using simulated::FileStep;
    const auto* file = std::get_if<simulated::FileChanged>(&effect.what);
    if (file != nullptr && file->path == m_logFile
        && (file->step == FileStep::written || file->step == FileStep::appended)) {
        writeLogLines(effect, file->content);
        return;
    }
    if (isSelected(simulated::effectName(effect.what)))
        m_text += toJsonLine(effect) + '\n';
}

void OutputWriter::writeLogLines(const simulated::Effect& effect, const QByteArray& content)
{
    if (!isSelected(logKind))
        return;
    // The end of the content is the end of its last line.
    QStringList lines = QString::fromUtf8(content).split(u'\n');
    if (lines.last().isEmpty())
        lines.removeLast();
    for (const QString& line : lines)
        m_text += simulated::startLine(effect.at, logKind).add(u"line", line).text() + '\n';
}

} // namespace tarvin::simulate
