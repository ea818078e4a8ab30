#pragma once

#include <QString>
#include <QUuid>

#include <cstdint>

namespace tarvin {

/// One recorded key combination.
struct CustomShortcut
{
    QUuid id{}; ///< identity of this recording; two recordings of the same keys differ
    bool command = false;
    bool option = false;
    bool control = false;
    bool shift = false;
    std::uint16_t keyCode = 0; ///< virtual key code of the main key; 0 is a key too
    QString keyDisplay{}; ///< printable name of the main key, as the interface shows it

    bool operator==(const CustomShortcut&) const = default;

    /// Whether there is a key to play. Key code 0 is the A key, so it takes a name to tell it from a shortcut that was
    /// never recorded.
    [[nodiscard]] bool namesKey() const { return keyCode != 0 || !keyDisplay.isEmpty(); }

    /// The modifier signs in the order control, option, shift, command and then the key in upper
    /// case, parted by blanks; empty when there is nothing to show.
    [[nodiscard]] QString displayString() const;
};

} // namespace tarvin
