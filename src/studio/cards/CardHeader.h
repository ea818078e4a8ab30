#pragma once

#include "studio/cards/KeyRecord.h"
#include "studio/cards/ParameterCard.h"

#include <QString>

namespace tarvin {

/// The small word at the end of a card's header; empty for none.
[[nodiscard]] QString badge(ParameterCard card, const ConfiguredAction& config);

/// What a click on a card's header does: chooses the action and, where its text is missing, gives it one to begin with.
void chooseCard(ParameterCard card, const KeyRecord& record);

} // namespace tarvin
