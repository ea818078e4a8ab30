#include "studio/recorder/view/RecordingBanner.h"

#include "studio/recorder/RecorderTexts.h"
#include "ui/OutlinedButton.h"
#include "ui/Plates.h"
#include "ui/TextBlock.h"
#include "ui/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>

namespace tarvin {

namespace {

using palette::red;

constexpr double radius = 7;
constexpr double symbolSize = 12;
constexpr TextStyle bannerText{.size = 11, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr ButtonLook doneLook{.height = 18,
    .radius = 5,
    .inset = 8,
    .symbolSize = 10,
    .spacing = 0,
    .text = {.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded},
    .symbolColour = palette::black,
    .textColour = palette::black,
    .fill = palette::mintTeal,
    .hoveredFill = {0.35, 1.0, 0.82},
    .stroke = palette::mintTeal.at(0)};

} // namespace

RecordingBanner::RecordingBanner(QWidget* parent)
    : QWidget(parent)
    , m_text(new TextBlock({}, bannerText, palette::white))
    , m_done(new OutlinedButton(doneLook))
{
    auto* const symbol = new TextLabel({}, bannerText, red);
    symbol->setSymbol(Symbol(u"record.circle.fill"), symbolSize, red);
    m_done->setText(recorder_texts::done.toString());
    connect(m_done, &QAbstractButton::clicked, this, &RecordingBanner::done);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(10, 6, 10, 6);
    row->setSpacing(7);
    row->addWidget(symbol);
    row->addWidget(m_text, 1);
    row->addWidget(m_done);
}

void RecordingBanner::setText(const QString& text)
{
    m_text->setText(text);
}

QAbstractButton& RecordingBanner::doneButton() const
{
    return *m_done;
}

void RecordingBanner::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillPlate(painter, rect(), radius, red.at(0.18));
    strokePlate(painter, rect(), radius, 1, red.at(0.6));
}

} // namespace tarvin
