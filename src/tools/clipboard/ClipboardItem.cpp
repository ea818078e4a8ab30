#include "tools/clipboard/ClipboardItem.h"

#include "model/TextLength.h"

#include <algorithm>

namespace tarvin {

namespace {

constexpr qsizetype longestPreview = 60;
constexpr qsizetype keptOfLongText = 57;

} // namespace

QString ClipboardItem::preview() const
{
    // A text may be as long as a book, so it is cut before it is worked on; for good only afterwards, because a blank
    // in place of a line feed is a character of its own where the line feed belonged to the carriage return before it.
    QString line = firstUserPerceived(QStringView(text).trimmed(), longestPreview + 1).toString();
    line = cutText(line.replace(u'\n', u' '), longestPreview, keptOfLongText);
    return line.isEmpty() ? u"(Empty)"_qs : line;
}

bool hasVisibleText(QStringView text)
{
    return !std::ranges::all_of(text, [](QChar character) { return character.isSpace(); });
}

} // namespace tarvin
