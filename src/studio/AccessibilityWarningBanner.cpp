#include "studio/AccessibilityWarningBanner.h"

#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::orange;
using palette::white;

constexpr int bannerHeight = 46;
constexpr double radius = 9;
constexpr ButtonLook authorizeLook{.height = 25,
    .radius = 7,
    .inset = 12,
    .symbolSize = 10,
    .spacing = 5,
    .text = {.size = 11, .weight = TextWeight::bold, .face = TextFace::rounded},
    .symbolColour = palette::black,
    .textColour = palette::black.at(0.9),
    .fill = orange,
    .hoveredFill = {1.0, 0.72, 0.24},
    .stroke = orange.at(0)};

} // namespace

AccessibilityWarningBanner::AccessibilityWarningBanner(QWidget* parent)
    : QWidget(parent)
{
    setFixedHeight(bannerHeight);
    auto* const shield = new TextLabel({}, {.size = 17}, orange);
    shield->setSymbol(Symbol(u"exclamationmark.shield.fill"), 17, orange);
    auto* const title = new TextLabel(QStringLiteral("Accessibility Permission Required"),
        {.size = 11, .weight = TextWeight::bold, .face = TextFace::rounded}, white);
    auto* const line = new TextLabel(
        QStringLiteral("To intercept and remap physical hardware keys, Tarvin needs Accessibility authorization."),
        {.size = 10, .weight = TextWeight::regular, .face = TextFace::rounded}, white.at(0.7));
    auto* const authorize = new OutlinedButton(authorizeLook);
    authorize->setText(QStringLiteral("Authorize in System Settings"));
    connect(authorize, &QAbstractButton::clicked, this, &AccessibilityWarningBanner::authorizeRequested);

    auto* const texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addStretch();
    texts->addWidget(title);
    texts->addWidget(line);
    texts->addStretch();
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(14, 0, 12, 0);
    row->setSpacing(10);
    row->addWidget(shield);
    row->addLayout(texts);
    row->addStretch();
    row->addWidget(authorize);
}

void AccessibilityWarningBanner::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), radius, orange.at(0.12));
    strokePlate(painter, rect(), radius, 1, orange.at(0.25));
}

} // namespace tarvin
