#include "studio/settings/view/PreservationBanner.h"

#include "studio/settings/SettingsTexts.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/TextBlock.h"
#include "ui/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr int padding = 12;
constexpr double radius = 10;
constexpr double symbolSize = 14;
constexpr TextStyle titleStyle{.size = 11, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle textStyle{.size = 10.5, .weight = TextWeight::regular, .face = TextFace::rounded};

} // namespace

PreservationBanner::PreservationBanner(QWidget* parent)
    : QWidget(parent)
{
    auto* const shield = new TextLabel({}, titleStyle, mintTeal);
    shield->setSymbol(Symbol(u"checkmark.shield.fill"), symbolSize, mintTeal);
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(3);
    texts->addWidget(new TextLabel(preservationTitle.toString(), titleStyle, white));
    texts->addWidget(new TextBlock(preservationText.toString(), textStyle, white.at(0.65)));
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(padding, padding, padding, padding);
    row->setSpacing(10);
    row->addWidget(shield, 0, Qt::AlignTop);
    row->addLayout(texts);
}

void PreservationBanner::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillContinuous(painter, rect(), radius, mintTeal.at(0.06));
    strokeContinuous(painter, rect(), radius, 1, mintTeal.at(0.25));
}

} // namespace tarvin
