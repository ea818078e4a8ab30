#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace tarvin::simulate {

/// The first field that stands twice in the outermost object, of which Qt's reader would keep one and say nothing.
/// @param json valid JSON
[[nodiscard]] std::optional<QString> duplicateField(const QByteArray& json);

} // namespace tarvin::simulate
