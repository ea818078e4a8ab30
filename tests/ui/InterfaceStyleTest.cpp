#include "ui/InterfaceStyle.h"

#include "support/QtPrinters.h"
#include "ui/Fonts.h"
#include "ui/Palette.h"

#include <QMenu>

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvin {

namespace {

/// How bright the brightest point of an entry is, from 0 to 1: that of its letters.
double lightOfText(QMenu& menu, QAction* action)
{
    const QImage picture = menu.grab(menu.actionGeometry(action).adjusted(4, 2, -4, -2)).toImage();
    double light = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            light = std::max(light, static_cast<double>(picture.pixelColor(x, y).valueF()));
    return light;
}

} // namespace

TEST(InterfaceStyle, menusAreDarkAndSpeakInTheProgramsOwnLetters)
{
    QMenu menu;
    menu.addAction(QStringLiteral("Paste"));
    menu.ensurePolished();
    EXPECT_EQ(menu.font().family(), fontOf({.size = 12}).family());
    EXPECT_LT(menu.palette().color(QPalette::Base).lightnessF(), 0.25);
}

TEST(InterfaceStyle, whatAMenuCannotDoNowIsGrey)
{
    QMenu menu;
    QAction* const live = menu.addAction(QStringLiteral("Paste"));
    QAction* const dead = menu.addAction(QStringLiteral("Paste"));
    dead->setEnabled(false);
    EXPECT_GT(lightOfText(menu, live), 0.8);
    EXPECT_LT(lightOfText(menu, dead), 0.5);
}

} // namespace tarvin
