#pragma once

#include "ui/PaintedButton.h"

namespace tarvin {

/// Tries the key's action. Turns into the confirmation of it for a while, softly.
class TestButton : public PaintedButton
{
    Q_OBJECT

public:
    static constexpr int buttonHeight = 24;

    explicit TestButton(QWidget* parent);

    /// @param isConfirmation whether the text says that the test was made
    void showText(const QString& text, bool isConfirmation);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_confirmation; ///< the last one, while it fades
    bool m_isConfirmation = false;
    AnimatedValue m_share; ///< how far the confirmation has come, from 0 to 1
};

} // namespace tarvin
