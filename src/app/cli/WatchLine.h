#pragma once

#include "interception/KeyObservation.h"

#include <QJsonObject>

namespace tarvin {

/// One press for scripts: key, path, outcome, and where a record is in force its profile and what it does.
[[nodiscard]] QJsonObject toJson(const KeyObservation& observation);

/// The same for people.
[[nodiscard]] QString watchText(const QJsonObject& observation);

} // namespace tarvin
