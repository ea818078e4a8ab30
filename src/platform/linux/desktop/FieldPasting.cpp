#include "platform/linux/desktop/FieldPasting.h"

#include "platform/ports/Pasteboard.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPointer>

#include <utility>

namespace tarvin::desktop {

namespace {

bool isEditable(const auto& field)
{
    return !field.isReadOnly() && field.isEnabled();
}

/// What the entries of the menu depend on.
struct Content
{
    bool isEmpty;
    bool hasSelection;
    bool canUndo;
    bool canRedo;
};

Content contentOf(const QLineEdit& field)
{
    return {.isEmpty = field.text().isEmpty(),
        .hasSelection = field.hasSelectedText(),
        .canUndo = field.isUndoAvailable(),
        .canRedo = field.isRedoAvailable()};
}

Content contentOf(const QPlainTextEdit& field)
{
    const QTextDocument& document = *field.document();
    return {.isEmpty = document.isEmpty(),
        .hasSelection = field.textCursor().hasSelection(),
        .canUndo = document.isUndoAvailable(),
        .canRedo = document.isRedoAvailable()};
}

void insert(QLineEdit& field, const QString& text)
{
    // Undoing takes back what was pasted, not what was typed before: a move of the cursor parts the two.
    if (const int position = field.cursorPosition(); !field.hasSelectedText()) {
        field.setCursorPosition(0);
        field.setCursorPosition(position);
    }
    field.insert(text);
}

void insert(QPlainTextEdit& field, const QString& text)
{
    field.insertPlainText(text);
    field.ensureCursorVisible();
}

/// The field, also for the viewport, where a press of the mouse on a plain text arrives; null for all else.
QPlainTextEdit* plainTextOf(QObject* object)
{
    if (auto* const field = qobject_cast<QPlainTextEdit*>(object))
        return field;
    auto* const around = qobject_cast<QPlainTextEdit*>(object->parent());
    return around && around->viewport() == object ? around : nullptr;
}

/// Calls `use` with the object as the field that it is.
/// @return false if it is none
template <typename Use> bool withField(QObject* object, const Use& use)
{
    if (auto* const line = qobject_cast<QLineEdit*>(object))
        use(*line);
    else if (auto* const text = plainTextOf(object))
        use(*text);
    else
        return false;
    return true;
}

template <typename Field, typename Paste> void fill(QMenu& menu, Field& field, const Paste& paste)
{
    const auto add = [&menu](const QString& title, QKeySequence::StandardKey key, bool isPossible, auto&&... call) {
        QAction* const action = menu.addAction(title, std::forward<decltype(call)>(call)...);
        action->setShortcut(key);
        action->setEnabled(isPossible);
    };
    const bool edits = isEditable(field);
    const Content content = contentOf(field);
    add(QStringLiteral("Undo"), QKeySequence::Undo, edits && content.canUndo, &field, &Field::undo);
    add(QStringLiteral("Redo"), QKeySequence::Redo, edits && content.canRedo, &field, &Field::redo);
    menu.addSeparator();
    add(QStringLiteral("Cut"), QKeySequence::Cut, edits && content.hasSelection, &field, &Field::cut);
    add(QStringLiteral("Copy"), QKeySequence::Copy, content.hasSelection, &field, &Field::copy);
    add(QStringLiteral("Paste"), QKeySequence::Paste, edits, &field, paste);
    menu.addSeparator();
    add(QStringLiteral("Select All"), QKeySequence::SelectAll, !content.isEmpty, &field, &Field::selectAll);
}

} // namespace

FieldPasting::FieldPasting(Pasteboard& pasteboard)
    : m_pasteboard(pasteboard)
{
    qApp->installEventFilter(this);
}

bool FieldPasting::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return static_cast<QKeyEvent*>(event)->matches(QKeySequence::Paste)
            && withField(watched, [this](auto& field) { pasteInto(field); });
    case QEvent::ContextMenu:
        return watched->isWidgetType()
            && showMenu(*static_cast<QWidget*>(watched), *static_cast<QContextMenuEvent*>(event));
    default:
        return false;
    }
}

std::unique_ptr<QMenu> FieldPasting::menuOf(QWidget& widget)
{
    std::unique_ptr<QMenu> menu;
    withField(&widget, [this, &menu](auto& field) {
        menu = std::make_unique<QMenu>(&field);
        fill(*menu, field, [this, &field] { pasteInto(field); });
    });
    return menu;
}

bool FieldPasting::showMenu(QWidget& widget, const QContextMenuEvent& event)
{
    QMenu* const menu = menuOf(widget).release(); // the field owns it
    if (!menu)
        return false;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event.globalPos());
    return true;
}

void FieldPasting::pasteInto(QWidget& widget)
{
    if (std::exchange(m_isUnderWay, true))
        return;
    m_pasteboard.readText(
        [self = QPointer(this), field = QPointer(&widget)](const std::optional<PasteboardText>& content) {
            if (self)
                self->m_isUnderWay = false;
            if (!field || !content)
                return;
            withField(field, [&content](auto& editor) {
                if (isEditable(editor))
                    insert(editor, content->text);
            });
        });
}

} // namespace tarvin::desktop
