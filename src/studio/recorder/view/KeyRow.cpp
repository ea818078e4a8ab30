#include "studio/recorder/view/KeyRow.h"

#include "studio/recorder/RecorderTexts.h"
#include "ui/OutlinedButton.h"
#include "ui/Pill.h"
#include "ui/Plates.h"
#include "ui/TextLine.h"

#include <QHBoxLayout>
#include <QPainter>

#include <algorithm>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::red;
using palette::white;

constexpr int insetX = 8;
constexpr int insetY = 5;
constexpr double radius = 6;
constexpr int spacing = 6;
constexpr double chipSpacing = 3;
constexpr int cellSide = 20;
constexpr double chipSide = 17;
constexpr double dotSize = 6;

constexpr TextStyle tagText{.size = 9, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr TextStyle pressText{.size = 11, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr TextStyle modifierText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr TextStyle keyText{.size = 11, .weight = TextWeight::bold, .face = TextFace::rounded};

constexpr ButtonLook cellLook(const Colour& symbol, const Colour& fill, const Colour& hoveredFill)
{
    constexpr double symbolSize = 10;
    return {.height = cellSide,
        .radius = 5,
        .inset = (cellSide - symbolSize * symbolBoxPerSize) / 2,
        .symbolSize = symbolSize,
        .spacing = 0,
        .text = {},
        .symbolColour = symbol,
        .textColour = white.at(0),
        .fill = fill,
        .hoveredFill = hoveredFill,
        .stroke = white.at(0)};
}

} // namespace

KeyRow::KeyRow(qsizetype index, QWidget* parent)
    : QWidget(parent)
    , m_index(index)
    , m_reRecord(new OutlinedButton(cellLook(white.at(0.6), white.at(0.06), white.at(0.12))))
    , m_remove(new OutlinedButton(cellLook(red.at(0.8), red.at(0.1), red.at(0.2))))
{
    setFixedHeight(cellSide + 2 * insetY);
    m_reRecord->setSymbol(Symbol(u"pencil"));
    m_reRecord->setTip(recorder_texts::reRecordTooltip.toString());
    m_remove->setSymbol(Symbol(u"trash"));
    m_remove->setTip(recorder_texts::removeTooltip.toString());
    connect(m_reRecord, &QAbstractButton::clicked, this, &KeyRow::reRecordWanted);
    connect(m_remove, &QAbstractButton::clicked, this, &KeyRow::removeWanted);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(insetX, insetY, insetX, insetY);
    row->setSpacing(spacing);
    row->addStretch();
    row->addWidget(m_reRecord);
    row->addWidget(m_remove);
}

void KeyRow::show(const CustomShortcut& shortcut, State state)
{
    m_shortcut = shortcut;
    m_state = state;
    QString name = recorder_texts::rowName(m_index, shortcut);
    m_reRecord->setAccessibleDescription(name);
    m_remove->setAccessibleDescription(name);
    if (state == State::recordingAnew)
        name = QStringLiteral("%1: %2").arg(recorder_texts::keyTag(m_index), recorder_texts::pressKey);
    setAccessibleName(name);
    QWidget::show();
    update();
}

void KeyRow::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = rect();
    const bool isRecording = m_state == State::recordingAnew;
    fillPlate(painter, box, radius, isRecording ? red.at(0.1) : white.at(0.05));
    strokePlate(painter, box, radius, 1, isRecording ? red : white.at(0.08));

    double left = insetX;
    const Pill tag{.text = recorder_texts::keyTag(m_index),
        .style = tagText,
        .textColour = mintTeal,
        .fill = mintTeal.at(0.15),
        .insetX = 5,
        .insetY = 2,
        .radius = 4};
    drawPill(painter, {left, box.center().y() - tag.size().height() / 2}, tag);
    left += tag.size().width() + spacing;

    if (isRecording) {
        fillPlate(painter, {left, box.center().y() - dotSize / 2, dotSize, dotSize}, dotSize / 2, red);
        left += dotSize + spacing;
        drawText(painter, {left, 0, box.width() - left, box.height()}, Qt::AlignLeft,
            recorder_texts::pressKey.toString(), pressText, red);
        return;
    }
    const QStringList chips = recorder_texts::modifierChips(m_shortcut);
    for (const QString& chip : chips) {
        const QRectF cell(left, box.center().y() - chipSide / 2, chipSide, chipSide);
        fillPlate(painter, cell, 4, white.at(0.12));
        drawText(painter, cell, Qt::AlignCenter, chip, modifierText, white.at(0.85));
        left += chipSide + chipSpacing;
    }
    Pill key{.text = recorder_texts::keyChip(m_shortcut),
        .style = keyText,
        .textColour = white,
        .fill = white.at(0.12),
        .insetX = 6,
        .insetY = 2,
        .radius = 4};
    const double room = m_reRecord->x() - spacing - left;
    key.text = elidedText(key.text, keyText, std::max(room - 2 * key.insetX, 0.0));
    drawPill(painter, {left, box.center().y() - key.size().height() / 2}, key);
}

} // namespace tarvin
