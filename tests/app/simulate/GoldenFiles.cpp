#include "app/simulate/GoldenFiles.h"

#include "app/simulate/Simulation.h"

#include <QDir>
#include <QFile>

namespace tarvin::simulate {

namespace {

QString scenarioFolder()
{
    return QStringLiteral(TARVIN_SOURCE_FOLDER "/tests/app/simulate/scenarios/");
}

/// What the errors of the document's examples call their scenario.
QString exampleName()
{
    return u"example.jsonl"_qs;
}

} // namespace

QStringList goldenScenarios()
{
    QStringList names;
    const QStringList files = QDir(scenarioFolder()).entryList({u"*.jsonl"_qs}, QDir::Files, QDir::Name);
    for (const QString& file : files) {
        if (!file.endsWith(u".expected.jsonl"))
            names.append(file.chopped(6));
    }
    return names;
}

QString scenarioFile(const QString& name)
{
    return scenarioFolder() + name + u".jsonl"_qs;
}

QString expectedFile(const QString& name)
{
    return scenarioFolder() + name + u".expected.jsonl"_qs;
}

QString documentFile()
{
    return QStringLiteral(TARVIN_SOURCE_FOLDER "/docs/simulate.md");
}

std::optional<QByteArray> readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

QByteArray withPresentResults(const QByteArray& document)
{
    enum class Block { none, scenario, result };
    Block block = Block::none;
    QByteArray scenario;
    QByteArray rewritten;
    for (const QByteArray& line : document.split('\n')) {
        if (line == "```jsonl scenario") {
            block = Block::scenario;
            scenario.clear();
        } else if (line == "```jsonl output" || line == "```text errors") {
            block = Block::result;
            const SimulationResult result = simulate(exampleName(), scenario);
            const QByteArray errors =
                result.errors.isEmpty() ? QByteArray() : result.errors.join(u'\n').toUtf8() + '\n';
            rewritten += line + '\n' + result.output + errors;
            continue;
        } else if (line == "```") {
            block = Block::none;
        } else if (block == Block::scenario) {
            scenario += line + '\n';
        }
        if (block != Block::result)
            rewritten += line + '\n';
    }
    // Each line was given an end, also what stands behind the last one.
    rewritten.chop(1);
    return rewritten;
}

} // namespace tarvin::simulate
