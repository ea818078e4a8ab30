#pragma once

#include <QStringList>

#include <optional>

namespace tarvin {

class AppleMenu;

/// The place of the first title that says one of the wanted ones: the same but for dots, blanks at the ends and case,
/// or beginning with it.
[[nodiscard]] std::optional<qsizetype> findMenuItem(const QStringList& titles, const QStringList& targetTitles);

/// Presses the item of the system menu that says one of the wanted titles; nothing where there is none. Main thread
/// only.
void triggerAppleMenuActionViaAccessibility(AppleMenu& menu, const QStringList& targetTitles);

} // namespace tarvin
