#include "studio/settings/view/KeyboardFlexibilitySection.h"

#include "studio/settings/SettingsSheetModel.h"
#include "studio/settings/view/PreservationBanner.h"
#include "studio/settings/view/SettingsCard.h"

#include <QVBoxLayout>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::orange;
using palette::white;

constexpr int gap = 10;
constexpr int side = 20;
constexpr double masterSymbolSize = 20;
constexpr double portionSymbolSize = 19;

SettingsCardLook lookOf(const SwitchCardRow& row)
{
    return {.title = row.title.toString(),
        .description = row.description.toString(),
        .symbolSize = row.card == SwitchCard::master ? masterSymbolSize : portionSymbolSize};
}

Pill stateChip(SwitchCard card, const SwitchCardState& state)
{
    const bool isMaster = card == SwitchCard::master;
    return {.text = state.chip,
        .style = {.size = 8.5, .weight = isMaster ? TextWeight::black : TextWeight::heavy, .face = TextFace::rounded},
        .textColour = state.isActive ? mintTeal : white.at(isMaster ? 0.5 : 0.45),
        .fill = state.isActive ? mintTeal.at(0.15) : white.at(isMaster ? 0.08 : 0.06),
        .insetX = 5,
        .insetY = 1.5,
        .radius = 4};
}

Pill pausedByMasterChip()
{
    return {.text = masterOffChip.toString(),
        .style = {.size = 8, .weight = TextWeight::bold, .face = TextFace::rounded},
        .textColour = orange,
        .fill = orange.at(0.12),
        .insetX = 4,
        .insetY = 1,
        .radius = 3};
}

SettingsCardState shown(SwitchCard card, const SwitchCardState& state)
{
    QList<Pill> chips{stateChip(card, state)};
    if (state.hasMasterOffChip)
        chips += pausedByMasterChip();
    return {.symbol = Symbol::namedOrPlaceholder(state.icon),
        .isOn = state.isOn,
        .isActive = state.isActive,
        .isEnabled = state.isEnabled,
        .opacity = state.opacity,
        .chips = chips};
}

} // namespace

KeyboardFlexibilitySection::KeyboardFlexibilitySection(SettingsSheetModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(side, 9, side, 9);
    column->setSpacing(gap);
    for (const SwitchCardRow& row : switchCardRows) {
        auto* const card = new SettingsCard(lookOf(row));
        m_cards[static_cast<std::size_t>(row.card)] = card;
        connect(card, &SettingsCard::switched, this,
            [this, which = row.card](bool isOn) { m_model.setSwitch(which, isOn); });
        column->addWidget(card);
    }
    column->addWidget(new PreservationBanner);
    column->addStretch();
    connect(&m_model, &SettingsSheetModel::changed, this, &KeyboardFlexibilitySection::follow);
    follow();
}

void KeyboardFlexibilitySection::follow()
{
    for (const SwitchCardRow& row : switchCardRows)
        card(row.card).show(shown(row.card, m_model.switchCard(row.card)));
}

} // namespace tarvin
