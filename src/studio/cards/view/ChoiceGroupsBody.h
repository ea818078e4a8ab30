#pragma once

#include "studio/cards/KeyRecord.h"
#include "studio/cards/ParameterCard.h"

#include <QList>
#include <QWidget>

namespace tarvin {

class ChoiceRow;

/// The body of a card with groups of radio rows.
class ChoiceGroupsBody : public QWidget
{
    Q_OBJECT

public:
    ChoiceGroupsBody(ParameterCard card, const KeyRecord& record, QWidget* parent);

private:
    void refresh();
    void choose(qsizetype group, qsizetype row);

    ParameterCard m_card;
    KeyRecord m_record;
    QList<QList<ChoiceRow*>> m_rows; ///< of each group
    bool m_isRefreshing = false;
};

} // namespace tarvin
