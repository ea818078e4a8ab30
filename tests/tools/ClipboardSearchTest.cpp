#include "tools/clipboard/ClipboardSearch.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace tarvin {
namespace {

QList<ClipboardItem> itemsOf(const QStringList& texts)
{
    QList<ClipboardItem> items;
    for (const QString& text : texts)
        items.append({.id = QUuid::createUuidV5(QUuid(), text), .text = text, .timestamp = {}});
    return items;
}

QStringList found(const QStringList& texts, const QString& searchText)
{
    QStringList hits;
    for (const ClipboardItem& item : ClipboardSearch().filteredItems(itemsOf(texts), searchText))
        hits << item.text;
    return hits;
}

TEST(ClipboardSearch, itFindsAPartOfATextWhateverItsCase)
{
    EXPECT_EQ(found({u"Hello World"_qs, u"other"_qs, u"HELLO"_qs}, u"hello"_qs),
        (QStringList{u"Hello World"_qs, u"HELLO"_qs}));
    EXPECT_EQ(found({u"ÀÉÎ straße"_qs, u"aei"_qs}, u"éî S"_qs), (QStringList{u"ÀÉÎ straße"_qs}));
    EXPECT_EQ(found({u"Привет"_qs}, u"ПРИВ"_qs), (QStringList{u"Привет"_qs}));
}

TEST(ClipboardSearch, anAccentInTwoPartsIsFoundAsOne)
{
    EXPECT_EQ(found({u"caf\u00e9"_qs}, u"fe\u0301"_qs), (QStringList{u"caf\u00e9"_qs}));
    EXPECT_EQ(found({u"cafe\u0301"_qs}, u"F\u00c9"_qs), (QStringList{u"cafe\u0301"_qs}));
}

TEST(ClipboardSearch, nothingButBlanksFindsAll)
{
    const QStringList all = {u"a"_qs, u"b c"_qs};
    EXPECT_EQ(found(all, QString()), all);
    EXPECT_EQ(found(all, u"  \t"_qs), all);
}

TEST(ClipboardSearch, aBlankBehindTheWordIsPartOfTheSearch)
{
    EXPECT_EQ(found({u"abc def"_qs, u"abc"_qs}, u"abc "_qs), (QStringList{u"abc def"_qs}));
}

TEST(ClipboardSearch, pinnedItemsKeepTheirPlace)
{
    QList<ClipboardItem> items = itemsOf({u"a1"_qs, u"b"_qs, u"a2"_qs});
    items[2].isPinned = true;
    ClipboardSearch search;
    const QList<ClipboardItem> hits = search.filteredItems(items, u"A"_qs);
    ASSERT_EQ(hits.size(), 2);
    EXPECT_EQ(hits[0].text, u"a1"_qs);
    EXPECT_EQ(hits[1].text, u"a2"_qs);
}

TEST(ClipboardSearch, itFollowsTheItems)
{
    ClipboardSearch search;
    EXPECT_EQ(search.filteredItems(itemsOf({u"one"_qs}), u"o"_qs).size(), 1);
    EXPECT_EQ(search.filteredItems(itemsOf({u"two"_qs, u"one"_qs}), u"o"_qs).size(), 2);
    EXPECT_EQ(search.filteredItems(itemsOf({u"two"_qs}), u"one"_qs).size(), 0);
}

} // namespace
} // namespace tarvin
