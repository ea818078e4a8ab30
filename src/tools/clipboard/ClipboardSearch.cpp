#include "tools/clipboard/ClipboardSearch.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tarvin {

namespace {

/// The text with its letters composed and their case gone, in UTF-8: half the size for most texts, and searched by the
/// fast routines of the C library. The encoding keeps characters apart, so a find in it is a find in the text.
QByteArray foldedForm(const QString& text)
{
    const bool isAscii = std::ranges::all_of(text, [](QChar character) { return character.unicode() < 0x80; });
    if (!isAscii)
        return text.normalized(QString::NormalizationForm_C).toCaseFolded().toUtf8();
    QByteArray folded = text.toLatin1();
    std::ranges::transform(folded, folded.begin(),
        [](char letter) { return static_cast<char>(letter >= 'A' && letter <= 'Z' ? letter + ('a' - 'A') : letter); });
    return folded;
}

bool contains(const QByteArray& text, const QByteArray& part)
{
    return std::string_view(text.constData(), static_cast<std::size_t>(text.size()))
               .find(std::string_view(part.constData(), static_cast<std::size_t>(part.size())))
        != std::string_view::npos;
}

} // namespace

QList<ClipboardItem> ClipboardSearch::filteredItems(const QList<ClipboardItem>& items, const QString& searchText)
{
    if (!hasVisibleText(searchText))
        return items;
    prepare(items);
    const QByteArray part = foldedForm(searchText);
    QList<ClipboardItem> found;
    std::ranges::copy_if(items, std::back_inserter(found),
        [&](const ClipboardItem& item) { return contains(m_folded.value(item.id), part); });
    return found;
}

void ClipboardSearch::prepare(const QList<ClipboardItem>& items)
{
    QHash<QUuid, QByteArray> folded;
    for (const ClipboardItem& item : items) {
        const auto kept = m_folded.constFind(item.id);
        folded.insert(item.id, kept != m_folded.cend() ? *kept : foldedForm(item.text));
    }
    m_folded = std::move(folded);
}

} // namespace tarvin
