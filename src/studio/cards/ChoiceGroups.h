#pragma once

#include "studio/cards/KeyRecord.h"
#include "studio/cards/ParameterCard.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

namespace tarvin {

/// A group of radio rows in a card's body.
struct ChoiceGroup
{
    QString heading;
    QStringList rows;
    qsizetype selected = 0;
    /// Writes the row's choice, and with it the card's action. The record outlives the group.
    std::function<void(qsizetype row)> choose;
};

/// The groups of a card, as the record stands; none for a card that has no radio rows.
[[nodiscard]] QList<ChoiceGroup> choiceGroups(ParameterCard card, const KeyRecord& record);

} // namespace tarvin
