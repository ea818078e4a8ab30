#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>

#include <variant>

namespace tarvin::macos {

/// A setting in one of the forms that the user defaults keep. The first one is none: nothing is stored.
using StoredValue = std::variant<std::monostate, bool, double, QString, QByteArray>;

/// Truth values, numbers and texts are stored as such, so that the system's own tool shows and changes them; lists and
/// objects as data that holds their JSON text. Null and undefined are not stored.
[[nodiscard]] StoredValue storedValueOf(const QJsonValue& value);

/// @return undefined for nothing, and for data that is no JSON
[[nodiscard]] QJsonValue jsonValueOf(const StoredValue& value);

} // namespace tarvin::macos
