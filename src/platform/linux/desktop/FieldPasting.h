#pragma once

#include <QObject>

#include <memory>

class QContextMenuEvent;
class QMenu;
class QWidget;

namespace tarvin {
class Pasteboard;
}

namespace tarvin::desktop {

/// Pastes into the program's own text fields. Qt would stop the whole program until the application that owns the
/// clipboard answers, up to five seconds for one that hangs, and does so already to show the menu of a field. Here the
/// field goes on, and the text comes when it comes; where it never does, nothing is pasted. Main thread only.
class FieldPasting final : public QObject
{
public:
    /// Watches all fields of the program for as long as it lives.
    /// @param pasteboard outlives the application's event loop
    explicit FieldPasting(Pasteboard& pasteboard);

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The menu of a field: what Qt's own has, with "Paste" always to be had where the field can be edited.
    /// @return null where the widget is no text field
    [[nodiscard]] std::unique_ptr<QMenu> menuOf(QWidget& widget);

private:
    void pasteInto(QWidget& widget);
    /// @return false where the widget is no text field
    bool showMenu(QWidget& widget, const QContextMenuEvent& event);

    Pasteboard& m_pasteboard;
    bool m_isUnderWay = false; ///< a held key asks an owner that hangs once and not time and again
};

} // namespace tarvin::desktop
