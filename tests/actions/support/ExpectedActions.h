#pragma once

#include "model/KeyAction.h"

#include <QStringList>

#include <vector>

namespace tarvin::test {

/// Whether the action waits for another application when the program itself is in front.
enum class Expectation { direct, prepared };

/// What an action does that comes with nothing but its name.
struct ExpectedAction
{
    KeyAction action;
    Expectation expectation;
    QStringList lines; ///< as a transcript shows them with another application in front
};

/// Every action, in the order of the vocabulary.
[[nodiscard]] const std::vector<ExpectedAction>& expectedActions();

/// The lines as they stand when everything happens later by @p milliseconds.
[[nodiscard]] QStringList delayed(const QStringList& lines, int milliseconds);

} // namespace tarvin::test
