#include "model/CanonicalEquivalence.h"

#include <QString>

#include <algorithm>

namespace tarvin {

namespace {

/// Characters below this one stand for themselves in every composed text, and none of them joins the one before it. So
/// a text may be cut in front of any of them, and the parts compared by themselves.
constexpr char16_t firstCombiningMark = 0x300;

bool isPlain(QChar character)
{
    return character.unicode() < firstCombiningMark;
}

/// Where the part that holds the position begins.
qsizetype partBegin(QStringView text, qsizetype position)
{
    while (position > 0 && (position >= text.size() || !isPlain(text[position])))
        --position;
    return position;
}

/// Where the part that begins before the position ends.
qsizetype partEnd(QStringView text, qsizetype position)
{
    while (position < text.size() && !isPlain(text[position]))
        ++position;
    return position;
}

QString composed(QStringView text)
{
    return text.toString().normalized(QString::NormalizationForm_C);
}

} // namespace

bool areCanonicallyEquivalent(QStringView left, QStringView right)
{
    while (true) {
        const auto [leftStop, rightStop] = std::ranges::mismatch(left, right);
        const qsizetype same = leftStop - left.begin();
        if (leftStop == left.end() && rightStop == right.end())
            return true;
        // The difference may belong to a letter that began before it, and that both texts write differently.
        const qsizetype begin = partBegin(left, same);
        const qsizetype leftEnd = partEnd(left, std::max(same, begin + 1));
        const qsizetype rightEnd = partEnd(right, std::max(same, begin + 1));
        if (composed(left.sliced(begin, std::min(leftEnd, left.size()) - begin))
            != composed(right.sliced(begin, std::min(rightEnd, right.size()) - begin)))
            return false;
        left = left.sliced(std::min(leftEnd, left.size()));
        right = right.sliced(std::min(rightEnd, right.size()));
    }
}

} // namespace tarvin
