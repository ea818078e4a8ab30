#pragma once

#include "studio/picker/PickerRow.h"
#include "ui/PaintedButton.h"
#include "ui/Pill.h"

#include <optional>

namespace tarvin {

/// Whether rows say what their action does. Those of a search do.
enum class RowDetail : std::uint8_t { titleOnly, withSubtitle };

/// One action in the picker's lists: a round mark, a symbol, a title and perhaps a badge. A radio button for assistive
/// technology; the plate under it is the entry's, because what opens under the row shares it.
class ActionRow : public PaintedButton
{
    Q_OBJECT

public:
    explicit ActionRow(QWidget* parent);

    void showAction(KeyAction action, const std::optional<Pill>& badge, RowDetail detail);
    /// @param share how far the row looks selected, from 0 to 1; a spring swings beyond
    void showSelection(bool isSelected, double share);
    [[nodiscard]] bool isSelected() const { return m_isSelected; }
    [[nodiscard]] KeyAction action() const { return m_action; }
    [[nodiscard]] const std::optional<Pill>& badge() const { return m_badge; }
    [[nodiscard]] RowDetail detail() const { return m_detail; }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A key that leads to another row was pressed here.
    void movePressed(Qt::Key key);
    void focused();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    void paintWords(QPainter& painter) const;

    KeyAction m_action = KeyAction::unassigned;
    std::optional<Pill> m_badge;
    QString m_subtitle; ///< as much of it as fits
    RowDetail m_detail = RowDetail::titleOnly;
    bool m_isSelected = false;
    double m_share = 0;
};

} // namespace tarvin
