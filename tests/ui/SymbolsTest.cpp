#include "ui/Symbols.h"

#include "model/ActionChainStep.h"
#include "model/FKey.h"
#include "model/KeyAction.h"
#include "profiles/AppProfile.h"
#include "shell/BackgroundBehavior.h"
#include "shell/StartupDockMode.h"
#include "support/QtPrinters.h"
#include "ui/support/Canvas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvin {

using testing::IsEmpty;

TEST(Symbols, noNameInAnyTableLacksAGlyph)
{
    QStringList names;
    for (const FKeyRow& row : fKeyRows)
        names += row.defaultIcon.toString();
    for (const KeyAction action : allKeyActions)
        names += icon(action).toString();
    for (const auto& row : actionChainStepTypeRows)
        names += row.icon.toString();
    for (const auto& row : backgroundBehaviorRows)
        names += row.icon.toString();
    for (const auto& row : startupDockModeRows)
        names += row.icon.toString();
    const QList<AppProfile> presets = AppProfile::presets();
    for (const AppProfile& profile : presets)
        names += profile.iconName;
    ASSERT_GT(names.size(), 90);

    QStringList missing;
    for (const QString& name : names) {
        if (!Symbol::named(name))
            missing += name;
    }
    EXPECT_THAT(missing, IsEmpty());
}

TEST(Symbols, everyGlyphHasAnOutlineWithinItsBox)
{
    for (const SymbolRow& row : symbolRows) {
        const QRectF box = symbolPath(*Symbol::named(row.name)).boundingRect();
        EXPECT_GT(box.width() * box.height(), 2000) << row.name.toString().toStdString();
        EXPECT_TRUE(QRectF(-6, -6, 268, 268).contains(box)) << row.name.toString().toStdString();
    }
}

TEST(Symbols, aNameThatNobodyKnowsGivesThePlaceholder)
{
    EXPECT_EQ(Symbol::named(u"no.such.symbol"), std::nullopt);
    EXPECT_EQ(Symbol::namedOrPlaceholder(u"no.such.symbol"), Symbol(u"app.fill"));
    EXPECT_EQ(Symbol::namedOrPlaceholder(u"globe"), Symbol(u"globe"));
}

TEST(Symbols, aSymbolOfSizeTenFillsABoxOfTwelve)
{
    const test::Canvas canvas(
        {40, 40},
        [](QPainter& painter) {
            drawSymbol(painter, Symbol(u"app.fill"), {20, 20}, 20, QColor(Qt::white));
        },
        2);
    EXPECT_GT(canvas.lightAt(20, 20), 0.99);
    EXPECT_GT(canvas.lightAt(20 - 8, 20), 0.9) << "the square fills 184 of 256 parts of 24";
    EXPECT_LT(canvas.lightAt(20 - 9.5, 20), 0.1);
}

TEST(Symbols, whatIsCutOutShowsTheGround)
{
    const test::Canvas canvas({64, 64}, [](QPainter& painter) {
        drawSymbol(painter, Symbol(u"power.circle.fill"), {32, 32}, 50, QColor(Qt::white));
    });
    EXPECT_GT(canvas.lightAt(10, 32), 0.9) << "the disc";
    EXPECT_LT(canvas.lightAt(32, 24), 0.1) << "the stroke of the sign in it";
}

} // namespace tarvin
