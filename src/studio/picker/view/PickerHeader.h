#pragma once

#include "model/FKey.h"

#include <QString>
#include <QWidget>

#include <optional>

namespace tarvin {

class Chip;
class OutlinedButton;

/// The top of the pane: what it is, which key it edits, whether that key is paused, and the button that closes it.
class PickerHeader : public QWidget
{
    Q_OBJECT

public:
    PickerHeader(FKey key, QWidget* parent);

    /// @param words absent while no switch pauses the key
    void showPaused(std::optional<QStringView> words);
    [[nodiscard]] Chip& pausedChip() const { return *m_paused; }
    [[nodiscard]] OutlinedButton& closeButton() const { return *m_close; }

private:
    Chip* m_paused;
    OutlinedButton* m_close;
};

} // namespace tarvin
