#pragma once

#include <QJsonValue>
#include <QString>

#include <optional>

namespace tarvin {

/// What is wrong with the stored form of a record, if anything. The program reads records with much tolerance; in what
/// a user writes by hand a field that it would not understand is a mistake.
[[nodiscard]] std::optional<QString> problemWithRecord(const QJsonValue& record);

} // namespace tarvin
