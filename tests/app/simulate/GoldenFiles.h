#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace tarvin::simulate {

// The scenarios that are kept with what came of them, and the examples of the document. The tests compare; the program
// beside them, `accept_simulate_goldens`, writes what comes now.

/// The names of the kept scenarios, without folder and ending, sorted.
[[nodiscard]] QStringList goldenScenarios();
[[nodiscard]] QString scenarioFile(const QString& name);
[[nodiscard]] QString expectedFile(const QString& name);
[[nodiscard]] QString documentFile();

/// Absent if the file cannot be read.
[[nodiscard]] std::optional<QByteArray> readFile(const QString& path);

/// The document with the results of its examples as they come now. An example is a block that begins with
/// "```jsonl scenario"; the block "```jsonl output" or "```text errors" that follows it holds its result.
[[nodiscard]] QByteArray withPresentResults(const QByteArray& document);

} // namespace tarvin::simulate
