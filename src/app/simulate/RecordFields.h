#pragma once

#include "app/simulate/FieldReader.h"

#include <QJsonObject>

namespace tarvin::simulate {

/// Reads what a key is to do: either "action" with a bare action, or "record" with the stored form of a record.
[[nodiscard]] QJsonObject readRecord(FieldReader& fields);

} // namespace tarvin::simulate
