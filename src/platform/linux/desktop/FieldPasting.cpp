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

bool isEditable(const QLineEdit& field)
{
    return !field.isReadOnly() && field.isEnabled();
}

bool isEditable(const QPlainTextEdit& field)
{
    return !field.isReadOnly() && field.isEnabled();
}

bool hasSelection(const QLineEdit& field)
{
    return field.hasSelectedText();
}

bool hasSelection(const QPlainTextEdit& field)
{
    return field.textCursor().hasSelection();
}

bool isEmpty(const QLineEdit& field)
{
    return field.text().isEmpty();
}

bool isEmpty(const QPlainTextEdit& field)
{
    return field.document()->isEmpty();
}

bool canUndo(const QLineEdit& field)
{
    return field.isUndoAvailable();
}

bool canUndo(const QPlainTextEdit& field)
{
    return field.document()->isUndoAvailable();
}

bool canRedo(const QLineEdit& field)
{
    return field.isRedoAvailable();
}

bool canRedo(const QPlainTextEdit& field)
{
    return field.document()->isRedoAvailable();
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

/// Calls `use` with the widget as the field that it is; a press of the mouse on a plain text reaches its viewport.
/// @return false if it is none
template <typename Use> bool withField(QObject* object, const Use& use)
{
    if (auto* const line = qobject_cast<QLineEdit*>(object)) {
        use(*line);
        return true;
    }
    auto* text = qobject_cast<QPlainTextEdit*>(object);
    if (!text && object->parent()) {
        text = qobject_cast<QPlainTextEdit*>(object->parent());
        if (text && text->viewport() != object)
            text = nullptr;
    }
    if (text)
        use(*text);
    return text != nullptr;
}

template <typename Field, typename Paste> void fill(QMenu& menu, Field& field, const Paste& paste)
{
    const auto add = [&menu](const QString& title, QKeySequence::StandardKey key, bool isPossible, auto&&... call) {
        QAction* const action = menu.addAction(title, std::forward<decltype(call)>(call)...);
        action->setShortcut(key);
        action->setEnabled(isPossible);
    };
    const bool edits = isEditable(field);
    add(QStringLiteral("Undo"), QKeySequence::Undo, edits && canUndo(field), &field, &Field::undo);
    add(QStringLiteral("Redo"), QKeySequence::Redo, edits && canRedo(field), &field, &Field::redo);
    menu.addSeparator();
    add(QStringLiteral("Cut"), QKeySequence::Cut, edits && hasSelection(field), &field, &Field::cut);
    add(QStringLiteral("Copy"), QKeySequence::Copy, hasSelection(field), &field, &Field::copy);
    add(QStringLiteral("Paste"), QKeySequence::Paste, edits, &field, paste);
    menu.addSeparator();
    add(QStringLiteral("Select All"), QKeySequence::SelectAll, !isEmpty(field), &field, &Field::selectAll);
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
        return withField(
            watched, [this, event](auto& field) { showMenu(field, *static_cast<QContextMenuEvent*>(event)); });
    default:
        return false;
    }
}

std::unique_ptr<QMenu> FieldPasting::menuOf(QWidget& widget)
{
    auto menu = std::make_unique<QMenu>(&widget);
    const bool isField =
        withField(&widget, [this, &menu](auto& field) { fill(*menu, field, [this, &field] { pasteInto(field); }); });
    return isField ? std::move(menu) : nullptr;
}

void FieldPasting::showMenu(QWidget& field, const QContextMenuEvent& event)
{
    QMenu* const menu = menuOf(field).release();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(event.globalPos());
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
