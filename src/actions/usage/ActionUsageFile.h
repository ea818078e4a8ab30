#pragma once

#include "actions/usage/ActionUsageRecord.h"
#include "model/KeyAction.h"
#include "platform/ports/Files.h"

#include <QByteArray>

#include <map>
#include <variant>

namespace tarvin {

/// In the declared order of the actions, which decides between equals.
using ActionUsageRecords = std::map<KeyAction, ActionUsageRecord>;

/// The records as the text of a file: an object under the stored names of the actions.
[[nodiscard]] QByteArray encodeUsageRecords(const ActionUsageRecords& records);

/// Strict, other than the mapping file: one record that cannot be read fails the whole. Only then are entries under
/// unknown names dropped.
[[nodiscard]] std::variant<ActionUsageRecords, FileError> decodeUsageRecords(const QByteArray& content);

} // namespace tarvin
