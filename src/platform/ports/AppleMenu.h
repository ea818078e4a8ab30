#pragma once

#include <QStringList>

#include <optional>

namespace tarvin {

/// The system's own menu at the left of the menu bar, as the desktop's file manager shows it. Main thread only.
class AppleMenu
{
public:
    virtual ~AppleMenu() = default;
    /// The titles of its items from top to bottom, an empty one for an item whose title can't be read; nothing where
    /// there is no such menu or a step on the way to it fails.
    [[nodiscard]] virtual std::optional<QStringList> itemTitles() const = 0;
    /// @param index of `itemTitles`, asked for in the same turn
    virtual void press(qsizetype index) = 0;
};

} // namespace tarvin
