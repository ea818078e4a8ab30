#include "studio/cards/view/ChoiceGroupsBody.h"

#include "studio/cards/ChoiceGroups.h"
#include "studio/cards/view/ChoiceRow.h"
#include "studio/cards/view/FollowRecord.h"
#include "ui/Palette.h"
#include "ui/TextLabel.h"

#include <QScopedValueRollback>
#include <QVBoxLayout>

namespace tarvin {

namespace {

constexpr TextStyle headingText{.size = 9.5, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr int groupSpacing = 8;
constexpr int headingSpacing = 2;

} // namespace

ChoiceGroupsBody::ChoiceGroupsBody(ParameterCard card, const KeyRecord& record, QWidget* parent)
    : QWidget(parent)
    , m_card(card)
    , m_record(record)
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 4, 0, 2);
    column->setSpacing(groupSpacing);
    const QList<ChoiceGroup> groups = choiceGroups(m_card, m_record);
    for (const ChoiceGroup& group : groups) {
        // Rows exclude each other within their parent.
        auto* const box = new QWidget;
        box->setAccessibleName(group.heading);
        auto* const rows = new QVBoxLayout(box);
        rows->setContentsMargins(0, 0, 0, 0);
        rows->setSpacing(headingSpacing);
        rows->addWidget(new TextLabel(group.heading, headingText, palette::white.at(0.45)));
        QList<ChoiceRow*> made;
        for (const QString& text : group.rows) {
            auto* const row = new ChoiceRow(text);
            // Not the click: assistive technology chooses without one.
            connect(row, &QAbstractButton::toggled, this,
                [this, place = m_rows.size(), number = made.size()](bool isChosen) {
                    if (isChosen && !m_isRefreshing)
                        choose(place, number);
                });
            rows->addWidget(row);
            made += row;
        }
        m_rows += made;
        column->addWidget(box);
    }
    followRecord(*this, m_record, &ChoiceGroupsBody::refresh);
}

void ChoiceGroupsBody::refresh()
{
    const QScopedValueRollback refreshing(m_isRefreshing, true);
    const QList<ChoiceGroup> groups = choiceGroups(m_card, m_record);
    for (qsizetype group = 0; group < groups.size(); ++group)
        m_rows[group][groups[group].selected]->setChecked(true);
}

void ChoiceGroupsBody::choose(qsizetype group, qsizetype row)
{
    choiceGroups(m_card, m_record)[group].choose(row);
}

} // namespace tarvin
