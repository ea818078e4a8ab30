#pragma once

#include "ui/PaintedButton.h"

namespace tarvin {

/// The heading of a section, which folds and unfolds it. Right and Left do too, as in every list with folds.
class PickerSectionHeader : public PaintedButton
{
    Q_OBJECT

public:
    /// What the stack of sections counts with; the button takes clicks a little around it.
    static constexpr int lineHeight = 13;
    static constexpr int reach = 6;

    explicit PickerSectionHeader(QWidget* parent);

    void setHeading(const QString& heading);
    void setExpanded(bool isExpanded);
    [[nodiscard]] bool isExpanded() const { return m_isExpanded; }

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// A key that leads to another row was pressed here.
    void movePressed(Qt::Key key);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool m_isExpanded = true;
};

} // namespace tarvin
