#include "model/TextLength.h"

#include <QStringBuilder>
#include <QTextBoundaryFinder>

#include <algorithm>

namespace tarvin {

namespace {

constexpr char16_t firstCombiningMark = 0x300;

/// Looks at blocks of a fixed size, which compilers turn into a handful of instructions.
bool isBelowCombiningMarks(QStringView text)
{
    constexpr qsizetype blockSize = 64;
    while (text.size() >= blockSize) {
        const char16_t* const units = text.utf16();
        char16_t largest = 0;
        for (qsizetype i = 0; i < blockSize; ++i)
            largest = std::max(largest, units[i]);
        if (largest >= firstCombiningMark)
            return false;
        text = text.sliced(blockSize);
    }
    return std::ranges::all_of(text, [](QChar unit) { return unit.unicode() < firstCombiningMark; });
}

} // namespace

qsizetype userPerceivedLength(QStringView text)
{
    // Most texts are Latin ones, and may be as long as a book: below the combining marks every unit is a character, but
    // for the two that end a line together.
    if (isBelowCombiningMarks(text))
        return text.size() - (text.contains(u'\r') ? text.count(u"\r\n") : 0);

    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    qsizetype length = 0;
    while (finder.toNextBoundary() >= 0)
        ++length;
    return length;
}

QStringView firstUserPerceived(QStringView text, qsizetype count)
{
    // The finder looks at all it is given at once, and a snippet may be as long as a book. So it gets a beginning, and
    // more only if the end of the last character is too near to the edge to be sure of it.
    qsizetype window = 8 * std::clamp<qsizetype>(count, 1, text.size() + 1);
    while (true) {
        const QStringView beginning = text.first(std::min(window, text.size()));
        QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, beginning);
        qsizetype end = 0;
        for (qsizetype taken = 0; taken < count && end < beginning.size(); ++taken)
            end = finder.toNextBoundary();
        // One unit after the boundary may be half a character, so there must be two.
        if (beginning.size() == text.size() || end + 1 < beginning.size())
            return text.first(end);
        window *= 2;
    }
}

QString cutText(QStringView text, qsizetype whole, qsizetype kept)
{
    if (firstUserPerceived(text, whole).size() == text.size())
        return text.toString();
    return firstUserPerceived(text, kept) % u"...";
}

} // namespace tarvin
