#pragma once

#include "platform/ports/Scheduler.h"

#include <QString>
#include <QUuid>

namespace tarvin {

/// One text that passed through the clipboard.
struct ClipboardItem
{
    QUuid id; ///< made when the item is captured
    QString text; ///< as it was copied, not trimmed
    Scheduler::WallClock timestamp; ///< when it was captured
    bool isPinned = false;

    /// The text in one line of at most 60 characters.
    [[nodiscard]] QString preview() const;

    friend bool operator==(const ClipboardItem&, const ClipboardItem&) = default;
};

/// Whether a text holds anything beside white space.
[[nodiscard]] bool hasVisibleText(QStringView text);

} // namespace tarvin
