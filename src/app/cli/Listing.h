#pragma once

#include "profiles/KeyMappings.h"

#include <QJsonArray>
#include <QString>
#include <QStringList>

namespace tarvin {

// What the commands print for people and for scripts.

/// One object per stored record, by profile and key.
[[nodiscard]] QJsonArray recordsJson(const ProfileMappings& mappings);
/// The same in columns; a text that says so where there is none.
[[nodiscard]] QString recordsText(const ProfileMappings& mappings);

/// The catalogue, or what the query finds, best first. A blank query is one that finds nothing.
[[nodiscard]] QJsonArray actionsJson(const std::optional<QString>& query);
[[nodiscard]] QString actionsText(const std::optional<QString>& query);

/// Rows of cells as text, each column as wide as its widest cell.
[[nodiscard]] QString inColumns(const QList<QStringList>& rows);

/// Indented, without the line end.
[[nodiscard]] QString printed(const QJsonArray& json);
[[nodiscard]] QString printed(const QJsonObject& json);

} // namespace tarvin
