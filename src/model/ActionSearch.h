#pragma once

#include "model/KeyAction.h"

#include <QList>
#include <QStringView>

namespace tarvin {

/// How well @p text, as the user typed it, finds @p action: 0 is not at all, and a title typed in full is 3000.
[[nodiscard]] int searchScore(KeyAction action, QStringView text);

struct ActionMatch
{
    KeyAction action = {};
    int score = 0;
    friend bool operator==(const ActionMatch&, const ActionMatch&) = default;
};

/// What the picker shows for @p text: of the actions that it offers those that are found, best first, equals in the
/// order of their titles in the user's language. Nothing for a blank text.
[[nodiscard]] QList<ActionMatch> searchActions(QStringView text);

} // namespace tarvin
