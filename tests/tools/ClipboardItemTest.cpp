#include "tools/clipboard/ClipboardItemJson.h"

#include "support/QtPrinters.h"

#include <QJsonArray>

#include <gtest/gtest.h>

namespace tarvin {
namespace {

using namespace std::chrono_literals;

const QUuid someId(u"12345678-90ab-cdef-1234-567890abcdef"_qs);

QString previewOf(const QString& text)
{
    return ClipboardItem{.id = someId, .text = text, .timestamp = {}}.preview();
}

TEST(ClipboardItem, aTextOfSixtyCharactersIsItsOwnPreview)
{
    const QString sixty(60, u'x');
    EXPECT_EQ(previewOf(sixty), sixty);
}

TEST(ClipboardItem, thePreviewOfALongerTextIsCutToFiftySevenAndThreeDots)
{
    EXPECT_EQ(previewOf(QString(61, u'x')), QString(57, u'x') + u"..."_qs);
    EXPECT_EQ(previewOf(u"e\u0301"_qs.repeated(61)), u"e\u0301"_qs.repeated(57) + u"..."_qs);
    EXPECT_EQ(previewOf(u"e\u0301"_qs.repeated(60)), u"e\u0301"_qs.repeated(60));
}

TEST(ClipboardItem, thePreviewOfWhiteSpaceSaysSo)
{
    EXPECT_EQ(previewOf(u" \n\t "_qs), u"(Empty)"_qs);
    EXPECT_EQ(previewOf(QString()), u"(Empty)"_qs);
}

TEST(ClipboardItem, thePreviewIsTrimmedAndOnOneLine)
{
    EXPECT_EQ(previewOf(u"\n  one\n two\n\n"_qs), u"one  two"_qs);
    EXPECT_EQ(previewOf(u"one\r\ntwo"_qs), u"one\r two"_qs);
}

/// A line feed behind a carriage return is part of one character, the blank in its place is one of its own.
TEST(ClipboardItem, thePreviewIsMeasuredAfterItsLinesAreJoined)
{
    const QString thirtyLines = u"\r\n"_qs.repeated(30);
    EXPECT_EQ(previewOf(u'a' + thirtyLines + u'b'), u'a' + u"\r "_qs.repeated(28) + u"..."_qs);
}

TEST(ClipboardItem, itIsStoredWithFourFields)
{
    const ClipboardItem item{.id = someId,
        .text = u" a\n"_qs,
        .timestamp = std::chrono::sys_days(std::chrono::year(2001) / 1 / 2) + 500ms,
        .isPinned = true};
    EXPECT_EQ(toJson(item),
        (QJsonObject{{u"id"_qs, u"12345678-90AB-CDEF-1234-567890ABCDEF"_qs}, {u"text"_qs, u" a\n"_qs},
            {u"timestamp"_qs, 86400.5}, {u"isPinned"_qs, true}}));
    const auto read = clipboardItemsFromJson(QJsonArray{toJson(item)});
    EXPECT_EQ(std::get<QList<ClipboardItem>>(read), QList{item});
}

TEST(ClipboardItem, anElementThatLacksAFieldSpoilsTheWhole)
{
    const QJsonObject whole = toJson({.id = someId, .text = u"a"_qs, .timestamp = {}});
    for (const QString& name : whole.keys()) {
        QJsonObject lacking = whole;
        lacking.remove(name);
        const auto read = clipboardItemsFromJson(QJsonArray{whole, lacking});
        ASSERT_TRUE(std::holds_alternative<ClipboardItemsError>(read)) << name.toStdString();
        EXPECT_EQ(std::get<ClipboardItemsError>(read).text, u"entry 2 is not a clip"_qs);
    }
}

TEST(ClipboardItem, fieldsOfAnotherTypeSpoilTheWhole)
{
    const QJsonObject whole = toJson({.id = someId, .text = u"a"_qs, .timestamp = {}});
    const auto isRefused = [&whole](const QString& name, const QJsonValue& value) {
        QJsonObject wrong = whole;
        wrong.insert(name, value);
        return std::holds_alternative<ClipboardItemsError>(clipboardItemsFromJson(QJsonArray{wrong}));
    };
    EXPECT_FALSE(isRefused(u"text"_qs, u"b"_qs));
    EXPECT_TRUE(isRefused(u"text"_qs, 1));
    EXPECT_TRUE(isRefused(u"id"_qs, u"no identifier"_qs));
    EXPECT_TRUE(isRefused(u"timestamp"_qs, u"1"_qs));
    EXPECT_TRUE(isRefused(u"timestamp"_qs, 1e300));
    EXPECT_TRUE(isRefused(u"isPinned"_qs, 1));
    EXPECT_TRUE(std::holds_alternative<ClipboardItemsError>(clipboardItemsFromJson(QJsonObject())));
}

} // namespace
} // namespace tarvin
