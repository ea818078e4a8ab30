#pragma once

#include "tools/clipboard/ClipboardItem.h"

#include <QJsonObject>
#include <QJsonValue>
#include <QList>

#include <variant>

namespace tarvin {

/// Why stored items cannot be read, in words for the log.
struct ClipboardItemsError
{
    QString text;
};

[[nodiscard]] QJsonObject toJson(const ClipboardItem& item);
/// Strict: all fields of all items have to be there, or nothing is read.
[[nodiscard]] std::variant<QList<ClipboardItem>, ClipboardItemsError> clipboardItemsFromJson(const QJsonValue& stored);

} // namespace tarvin
