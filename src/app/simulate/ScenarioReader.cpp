#include "app/simulate/ScenarioReader.h"

#include "app/simulate/DuplicateFields.h"
#include "app/simulate/InstructionReader.h"

#include <QJsonDocument>

namespace tarvin::simulate {

namespace {

using simulated::VirtualTime;

QString inMilliseconds(VirtualTime time)
{
    return QString::number(static_cast<double>(time.count()) / 1000.0, 'g', 15);
}

/// Reads line after line, and knows how far the play has come.
class Reader
{
public:
    Reader(const QString& name, Scenario& scenario)
        : m_name(name)
        , m_scenario(scenario)
    { }

    void readLine(int number, const QByteArray& line)
    {
        m_number = number;
        QJsonParseError problem{};
        const QJsonDocument document = QJsonDocument::fromJson(line, &problem);
        if (problem.error != QJsonParseError::NoError || !document.isObject()) {
            const QString reason = problem.error == QJsonParseError::NoError
                ? u"it is a list"_qs
                : u"%1 at byte %2"_qs.arg(problem.errorString()).arg(problem.offset);
            fail(u"expected one JSON object, such as {\"do\":\"start\"}; "_qs + reason);
            return;
        }
        if (const std::optional<QString> twice = duplicateField(line)) {
            fail(u"field \"%1\" stands there twice; expected it once"_qs.arg(*twice));
            return;
        }
        readInstruction(document.object());
    }

private:
    void readInstruction(const QJsonObject& object)
    {
        FieldReader fields(object);
        const std::optional<VirtualTime> at = fields.optional(u"at", field::milliseconds());
        const QString name = fields.required(u"do", field::text());
        if (fields.error()) {
            fail(*fields.error());
            return;
        }
        const InstructionRow* row = findInstruction(name);
        if (row == nullptr) {
            fail(u"unknown instruction \"%1\"; expected %2"_qs.arg(name, field::alternatives(instructionNames())));
            return;
        }
        const Instruction instruction = row->read(fields);
        fields.finish();
        if (fields.error()) {
            fail(name + u": "_qs + *fields.error());
            return;
        }
        if (!place(*row, at.value_or(m_time), instruction))
            return;
        m_scenario.lines.push_back({m_number, m_time, m_started, instruction});
        if (const auto* advance = std::get_if<AdvanceTime>(&instruction))
            m_time += advance->by;
    }

    /// Whether the instruction may stand here, at this time.
    bool place(const InstructionRow& row, VirtualTime at, const Instruction& instruction)
    {
        if (!m_end.isEmpty()) {
            fail(u"\"%1\" stands behind \"%2\"; expected nothing more"_qs.arg(row.name, m_end));
            return false;
        }
        if (at < m_time) {
            fail(u"\"at\" goes back from %1 to %2; expected at least %1"_qs.arg(
                inMilliseconds(m_time), inMilliseconds(at)));
            return false;
        }
        m_time = at;
        if (row.phase == Phase::stage && (m_started || at > VirtualTime::zero())) {
            fail(u"\"%1\" sets the stage; expected it at 0, before the program starts"_qs.arg(row.name));
            return false;
        }
        if (std::holds_alternative<StartProgram>(instruction) && m_started) {
            fail(u"\"start\": the program runs already; expected it once, before anything that needs the program"_qs);
            return false;
        }
        m_started = m_started || row.phase == Phase::running || at > VirtualTime::zero();
        if (std::holds_alternative<EndRun>(instruction) || std::holds_alternative<TerminateProgram>(instruction))
            m_end = row.name;
        return true;
    }

    void fail(const QString& message) { m_scenario.errors.append(errorAt(m_name, m_number, message)); }

    const QString& m_name;
    Scenario& m_scenario;
    int m_number = 0;
    VirtualTime m_time{};
    bool m_started = false;
    QStringView m_end; ///< what ended the play, empty before
};

} // namespace

Scenario readScenario(const QString& name, const QByteArray& text)
{
    Scenario scenario;
    Reader reader(name, scenario);
    int number = 0;
    for (const QByteArray& rawLine : text.split('\n')) {
        ++number;
        const QByteArray line = rawLine.trimmed();
        if (!line.isEmpty() && !line.startsWith('#'))
            reader.readLine(number, line);
    }
    return scenario;
}

QString errorAt(const QString& name, int line, const QString& message)
{
    return u"%1:%2: %3"_qs.arg(name, QString::number(line), message);
}

} // namespace tarvin::simulate
