#pragma once

#include "model/ConfiguredAction.h"
#include "model/UuidSource.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

#include <variant>

namespace tarvin {

/// A record, or what is wrong with the words that were to tell it.
using RecordOrProblem = std::variant<ConfiguredAction, QString>;

/// The record of an action's stored name and its parameters as FIELD=VALUE. The fields are those of a stored record;
/// "shortcut" takes a combination as users write it, such as ctrl+shift+k.
[[nodiscard]] RecordOrProblem recordFromArguments(
    const QString& action, const QStringList& parameters, const UuidSource& newUuid);

/// A combination of modifiers and one key, parted by "+": cmd, opt or alt, ctrl, shift, and the key by its name.
/// @return the stored form of a shortcut, or what is wrong
[[nodiscard]] std::variant<QJsonObject, QString> shortcutFromText(const QString& text);

} // namespace tarvin
