#pragma once

#include "ui/AnimatedValue.h"

#include <QRadioButton>

namespace tarvin {

/// One of several choices in a card's body, of which those in one parent exclude each other. The arrow keys go from one
/// to the next and choose it.
class ChoiceRow : public QRadioButton
{
    Q_OBJECT

public:
    explicit ChoiceRow(const QString& text, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] bool hitButton(const QPoint& place) const override { return rect().contains(place); }

private:
    AnimatedValue m_chosen;
};

} // namespace tarvin
