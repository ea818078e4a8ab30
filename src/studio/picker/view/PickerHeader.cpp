#include "studio/picker/view/PickerHeader.h"

#include "studio/picker/PickerTexts.h"
#include "studio/picker/view/Chip.h"
#include "studio/picker/view/PickerMetrics.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/TextLabel.h"

#include <QHBoxLayout>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::orange;
using palette::white;

constexpr int spacing = 8;
constexpr TextStyle titleText{.size = 16, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr double closeSize = 10;
constexpr double closeCell = 24;
constexpr ButtonLook closeLook{.height = closeCell,
    .radius = 6,
    .inset = (closeCell - closeSize * symbolBoxPerSize) / 2,
    .symbolSize = closeSize,
    .spacing = 0,
    .text = {},
    .symbolColour = white.at(0.65),
    .textColour = white.at(0.65),
    .fill = white.at(0.08),
    .hoveredFill = white.at(0.14),
    .stroke = white.at(0)};

Pill pausedPill()
{
    return {.text = {},
        .style = {.size = 8.5, .weight = TextWeight::bold, .face = TextFace::rounded},
        .textColour = orange,
        .fill = orange.at(0.16),
        .insetX = 5,
        .insetY = 2.5,
        .radius = 4};
}

Pill keyPill(FKey key)
{
    return {.text = displayName(key).toString(),
        .style = {.size = 11, .weight = TextWeight::bold, .face = TextFace::rounded},
        .textColour = mintTeal,
        .fill = mintTeal.at(0.18),
        .insetX = 8,
        .insetY = 3,
        .radius = 6};
}

} // namespace

PickerHeader::PickerHeader(FKey key, QWidget* parent)
    : QWidget(parent)
    , m_paused(new Chip(pausedPill(), this))
    , m_close(new OutlinedButton(closeLook, this))
{
    m_paused->setSymbol(Symbol(u"pause.fill"), 7.5, 3);
    m_paused->setTip(pausedTooltip.toString());
    m_close->setSymbol(Symbol(u"xmark"));
    m_close->setTip(tr("Close"));
    auto* const keyChip = new Chip(keyPill(key), this);
    keyChip->setElided();
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(pickermetrics::sideInset, 0, pickermetrics::sideInset, 0);
    row->setSpacing(spacing);
    row->addWidget(new TextLabel(pickerTitle.toString(), titleText, white, this));
    row->addWidget(m_paused);
    row->addStretch();
    row->addWidget(keyChip);
    row->addWidget(m_close);
}

void PickerHeader::showPaused(std::optional<QStringView> words)
{
    m_paused->setVisible(words.has_value());
    if (words)
        m_paused->setText(words->toString());
}

} // namespace tarvin
