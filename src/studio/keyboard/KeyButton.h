#pragma once

#include <QAbstractButton>

namespace tarvin {

/// Whether a key of the drawing can be chosen.
enum class KeyButtonKind { live, plain };

/// The part of a drawn key that the user works with: it takes clicks, the pointer and the keyboard, and tells assistive
/// technology about the key. What is seen of it, the keyboard paints.
class KeyButton : public QAbstractButton
{
    Q_OBJECT

public:
    KeyButton(KeyButtonKind kind, QWidget* parent);

    [[nodiscard]] KeyButtonKind kind() const { return m_kind; }
    [[nodiscard]] bool isSelected() const { return m_isSelected; }
    /// Tells assistive technology of the choice.
    void setSelected(bool selected);

Q_SIGNALS:
    void hovered(bool isHovered);
    void focused(bool hasFocus);
    /// An arrow key of the keyboard was pressed here.
    void arrowPressed(Qt::Key key);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    KeyButtonKind m_kind;
    bool m_isSelected = false;
};

} // namespace tarvin
