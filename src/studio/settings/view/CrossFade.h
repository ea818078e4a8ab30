#pragma once

#include "ui/AnimatedValue.h"
#include "ui/Colour.h"

#include <QPixmap>
#include <QWidget>

namespace tarvin {

/// A change of what is drawn somewhere: pictures of before and after that fade and move, over what is there already.
/// Goes by itself at the end.
class CrossFade : public QWidget
{
    Q_OBJECT

public:
    struct Change
    {
        QPixmap before; ///< null where there was nothing
        QPixmap after; ///< null where there is nothing any more
        QPoint way; ///< from where the new comes, relative to its place; the old goes the opposite way
        Colour ground; ///< behind both
    };

    /// What the widget shows, without a ground of its own.
    [[nodiscard]] static QPixmap pictureOf(QWidget& widget);
    /// Plays the change over that part of the widget.
    static void play(QWidget& over, const QRect& where, Change change, const Motion& motion);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    CrossFade(QWidget& over, Change change);

    const Change m_change;
    AnimatedValue m_progress; ///< from 0 to 1
};

} // namespace tarvin
