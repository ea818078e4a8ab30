#pragma once

#include "model/ActionChainStep.h"
#include "model/ConfiguredAction.h"
#include "model/CustomShortcut.h"
#include "model/UuidSource.h"

#include <QJsonValue>

#include <optional>

namespace tarvin {

// The stored form of the records. Fields with a value are written under their own names; an
// optional field without one is left out. Reading takes what earlier versions wrote.

[[nodiscard]] QJsonValue toJson(const CustomShortcut& shortcut);
[[nodiscard]] QJsonValue toJson(const ActionChainStep& step);
[[nodiscard]] QJsonValue toJson(const ConfiguredAction& record);

/// Absent only if @p value is not an object. A field that is missing or of the wrong type takes its
/// fallback, for the identity a fresh one from @p newUuid.
[[nodiscard]] std::optional<CustomShortcut> customShortcutFromJson(
    const QJsonValue& value, const UuidSource& newUuid = QUuid::createUuid);

/// Strict: absent if the identity, the type or the delay is missing, or if any field has the wrong
/// type or an unknown name.
[[nodiscard]] std::optional<ActionChainStep> actionChainStepFromJson(
    const QJsonValue& value, const UuidSource& newUuid = QUuid::createUuid);

/// Absent only if @p value is neither a string (the form of the first versions, which held the
/// action alone) nor an object. An unknown or missing action becomes `calculator`, and every other
/// field that cannot be read takes the value of a new record.
[[nodiscard]] std::optional<ConfiguredAction> configuredActionFromJson(
    const QJsonValue& value, const UuidSource& newUuid = QUuid::createUuid);

} // namespace tarvin
