#include "studio/picker/view/StatusBannerView.h"

#include "studio/picker/view/PickerMetrics.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"
#include "ui/TextLabel.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;
using Tone = StatusBanner::Tone;

constexpr double dotSide = 6;
constexpr double dotGlow = 2.5;
constexpr double dotLine = 1.2;
constexpr int dotSpacing = 10;
constexpr int lineSpacing = 1;
constexpr TextStyle titleText{.size = 11, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle detailText{.size = 9.5, .weight = TextWeight::regular, .face = TextFace::rounded};

/// How the strip looks in each tone.
struct BannerLook
{
    Colour fill;
    Colour rule;
    Colour title;
    Colour dot; ///< filled, or for the factory's tone its outline
};

constexpr BannerLook look(Tone tone)
{
    switch (tone) {
    case Tone::customized:
        return {mintTeal.at(0.08), mintTeal.at(0.25), mintTeal, mintTeal};
    case Tone::paused:
        return {palette::orange.at(0.08), palette::orange.at(0.25), palette::orange, palette::orange};
    case Tone::factory:
        return {mintTeal.at(0.04), mintTeal.at(0.15), white.at(0.85), mintTeal.at(0.85)};
    }
    return {};
}

} // namespace

StatusBannerView::StatusBannerView(QWidget* parent)
    : QWidget(parent)
    , m_title(new TextLabel({}, titleText, white, this))
    , m_detail(new TextLabel({}, detailText, white.at(0.6), this))
{
    auto* const lines = new QVBoxLayout(this);
    lines->setContentsMargins(pickermetrics::sideInset + static_cast<int>(dotSide) + dotSpacing, 0, 0, 1);
    lines->setSpacing(lineSpacing);
    lines->addStretch();
    lines->addWidget(m_title);
    lines->addWidget(m_detail);
    lines->addStretch();
}

void StatusBannerView::showBanner(const StatusBanner& banner)
{
    m_tone = banner.tone;
    m_title->setText(banner.title);
    m_title->setColour(look(m_tone).title);
    m_title->updateGeometry();
    m_detail->setText(banner.detail);
    m_detail->updateGeometry();
    update();
}

void StatusBannerView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const BannerLook looks = look(m_tone);
    painter.fillRect(rect(), looks.fill.toQColor());
    drawHairline(painter, 0, width(), height() - 1, looks.rule);
    const QRectF dot(pickermetrics::sideInset, (height() - 1 - dotSide) / 2.0, dotSide, dotSide);
    switch (m_tone) {
    case Tone::customized:
    case Tone::paused:
        drawShadow(painter, dot, {.colour = looks.dot.at(0.8), .sigma = dotGlow, .cornerRadius = dotSide / 2});
        fillPlate(painter, dot, dotSide / 2, looks.dot);
        break;
    case Tone::factory:
        strokePlate(painter, dot, dotSide / 2, dotLine, looks.dot);
        break;
    }
}

} // namespace tarvin
