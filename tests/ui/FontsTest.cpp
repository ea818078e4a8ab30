#include "ui/Fonts.h"

#include "ui/Palette.h"
#include "ui/TextLine.h"
#include "ui/support/Canvas.h"

#include "support/QtPrinters.h"

#include <QFontInfo>
#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace tarvin {

TEST(Fonts, theFacesAreTheOnesThatAreBuiltIn)
{
    EXPECT_EQ(QFontInfo(fontOf({.size = 11})).family(), QStringLiteral("Nunito"));
    EXPECT_EQ(QFontInfo(fontOf({.size = 11, .weight = {}, .face = TextFace::fixedWidth})).family(),
        QStringLiteral("JetBrains Mono"));
}

TEST(Fonts, everyWeightIsWiderThanTheOneBefore)
{
    double before = 0;
    for (const auto weight :
        {TextWeight::regular, TextWeight::medium, TextWeight::bold, TextWeight::heavy, TextWeight::black}) {
        const double width = textWidth(QStringLiteral("Clipboard History"), {.size = 12, .weight = weight});
        EXPECT_GT(width, before);
        before = width;
    }
}

TEST(Fonts, sizesMayHaveAFraction)
{
    EXPECT_NEAR(
        textWidth(QStringLiteral("Home"), {.size = 8.5}) / textWidth(QStringLiteral("Home"), {.size = 17}), 0.5, 0.002);
}

TEST(Fonts, aPairOfSignsInTheFixedWidthFaceStaysAPair)
{
    const TextStyle style{.size = 12, .weight = TextWeight::regular, .face = TextFace::fixedWidth};
    const test::Canvas together({40, 20}, [&](QPainter& painter) {
        drawText(painter, {0, 0, 40, 20}, Qt::AlignLeft, QStringLiteral("->"), style, palette::white);
    });
    const test::Canvas apart({40, 20}, [&](QPainter& painter) {
        const double width = textWidth(QStringLiteral("-"), style);
        drawText(painter, {0, 0, 40, 20}, Qt::AlignLeft, QStringLiteral("-"), style, palette::white);
        drawText(painter, {width, 0, 40, 20}, Qt::AlignLeft, QStringLiteral(">"), style, palette::white);
    });
    int differing = 0;
    for (int x = 0; x < 40; ++x) {
        for (int y = 0; y < 20; ++y)
            differing += std::abs(together.lightAt(x, y) - apart.lightAt(x, y)) > 0.25;
    }
    EXPECT_LT(differing, 6);
}

TEST(TextLine, textTooLongEndsInAnEllipsis)
{
    const TextStyle style{.size = 11};
    const QString text = QStringLiteral("Toggle system microphone input mute");
    EXPECT_EQ(elidedText(text, style, 1000), text);
    const QString shortened = elidedText(text, style, 100);
    EXPECT_TRUE(shortened.endsWith(u'…'));
    EXPECT_TRUE(text.startsWith(shortened.chopped(1)));
    EXPECT_LE(textWidth(shortened, style), 100);
    EXPECT_EQ(elidedText(text, style, 1), QString());
}

TEST(TextLine, theSignsOfModifierKeysAreDrawnAsSymbols)
{
    const TextStyle style{.size = 20};
    const test::Canvas canvas({60, 30}, [&](QPainter& painter) {
        drawText(painter, {0, 0, 60, 30}, Qt::AlignLeft, QStringLiteral("⌘"), style, palette::white);
    });
    double light = 0;
    for (int x = 0; x < 24; ++x) {
        for (int y = 0; y < 30; ++y)
            light += canvas.lightAt(x, y);
    }
    EXPECT_GT(light, 40);
    for (const QString& sign : {QStringLiteral("⌘"), QStringLiteral("⇪"), QStringLiteral("🌐")})
        EXPECT_NEAR(textWidth(sign, style), 21.6, 0.01) << sign.toStdString();
}

} // namespace tarvin
