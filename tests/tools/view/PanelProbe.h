#pragma once

#include "tools/support/ClipboardDesktop.h"
#include "ui/PanelWindow.h"
#include "ui/support/Canvas.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

namespace tarvin::test {

/// The panel as it is painted, seen from the corner of its plate.
[[nodiscard]] inline Canvas pictureOf(PanelWindow& panel)
{
    if (!panel.isVisible())
        panel.fadeIn(std::chrono::milliseconds(0));
    QApplication::processEvents();
    return Canvas(panel.grab(panel.plate()).toImage().convertToFormat(QImage::Format_ARGB32));
}

/// The button that assistive technology knows by this name, among those that are shown.
[[nodiscard]] inline QAbstractButton* buttonNamed(const QWidget& panel, const QString& name)
{
    for (QAbstractButton* const button : panel.findChildren<QAbstractButton*>()) {
        const QString accessible = button->accessibleName().isEmpty() ? button->text() : button->accessibleName();
        if (accessible == name && button->isVisibleTo(&panel))
            return button;
    }
    return nullptr;
}

/// The texts that are shown, in the order of their making.
[[nodiscard]] inline QStringList textsOf(const QWidget& panel)
{
    QStringList texts;
    for (const QLabel* const label : panel.findChildren<QLabel*>()) {
        if (label->isVisibleTo(&panel))
            texts << label->text();
    }
    return texts;
}

/// Where a widget stands, from the corner of the plate.
[[nodiscard]] inline QRect placeOf(const PanelWindow& panel, const QWidget& widget)
{
    return {widget.mapTo(&panel, QPoint()) - panel.plate().topLeft(), widget.size()};
}

} // namespace tarvin::test
