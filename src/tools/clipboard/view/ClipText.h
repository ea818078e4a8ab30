#pragma once

#include "tools/clipboard/ClipboardItem.h"

#include <QLocale>
#include <QString>

namespace tarvin {

/// What a row of the panel says about an item.
struct ClipText
{
    QString preview;
    QString length; ///< "45 chars", of the whole text
    QString time; ///< of the capture, as the user's locale tells the time

    [[nodiscard]] static ClipText of(const ClipboardItem& item, const QLocale& locale);
};

/// What the number in front of a row reads; empty from the tenth row on, which has a dot instead.
[[nodiscard]] inline QString clipBadge(qsizetype index)
{
    constexpr qsizetype numberedRows = 9;
    return index < numberedRows ? QString::number(index + 1) : QString();
}

} // namespace tarvin
