#pragma once

#include "ui/OutlinedButton.h"

namespace tarvin {

/// As wide as it may be. After a press it turns into the confirmation of what it did, and back when that is over.
class ConfirmButton : public PaintedButton
{
    Q_OBJECT

public:
    enum class Says : std::uint8_t { offer, confirmation };

    /// How it goes from the offer to the confirmation and back.
    struct Motions
    {
        Motion confirming;
        Motion returning;
    };

    ConfirmButton(const ButtonLook& look, const Motions& motions, QWidget* parent = nullptr);

    void showText(const QString& text, Says says);
    [[nodiscard]] Says says() const { return m_says; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintContent(QPainter& painter, Symbol symbol, const QString& text) const;

    ButtonLook m_look;
    Motions m_motions;
    QString m_offer;
    QString m_confirmation; ///< the last one, which fades
    Says m_says = Says::offer;
    AnimatedValue m_share; ///< of the confirmation, from 0 to 1
};

} // namespace tarvin
