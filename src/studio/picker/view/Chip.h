#pragma once

#include "ui/Pill.h"
#include "ui/Symbols.h"

#include <QWidget>

namespace tarvin {

class TextLabel;

/// A short text on a small plate, with a symbol before it if need be. As wide as it is; a text for assistive
/// technology.
class Chip : public QWidget
{
    Q_OBJECT

public:
    explicit Chip(const Pill& look, QWidget* parent);

    void setSymbol(Symbol symbol, double size, double spacing);
    void setText(const QString& text);
    /// Where there is less room than the text needs, it ends with an ellipsis.
    void setElided();
    /// Shown as the tooltip, and told to assistive technology.
    void setTip(const QString& tip);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] QSize around(const QSize& label) const;

    Pill m_look;
    TextLabel* m_label;
};

} // namespace tarvin
