#pragma once

#include "ui/AnimatedValue.h"
#include "ui/Fonts.h"
#include "ui/Palette.h"
#include "ui/Pill.h"
#include "ui/Symbols.h"

#include <QList>
#include <QWidget>

namespace tarvin {

class SwitchControl;

/// The measures of a card with a switch, in logical pixels, and what never changes on it.
struct SettingsCardLook
{
    QString title;
    QString description;
    int padding = 14;
    int tileSize = 42;
    double symbolSize = 19;
    double titleSize = 13;
};

/// What a card shows at this moment.
struct SettingsCardState
{
    Symbol symbol = Symbol(u"bolt.fill");
    bool isOn = false; ///< the switch
    bool isActive = false; ///< drawn in the accent
    bool isEnabled = true;
    double opacity = 1;
    QList<Pill> chips{}; ///< behind the title
};

/// A card with a tile, a title with chips, a description and a switch. For assistive technology it is its switch, which
/// is called by the title and described by the rest.
class SettingsCard : public QWidget
{
    Q_OBJECT

public:
    static constexpr int cardWidth = 520;

    explicit SettingsCard(const SettingsCardLook& look, QWidget* parent = nullptr);

    void show(const SettingsCardState& state);
    using QWidget::show;
    [[nodiscard]] const SettingsCardState& state() const { return m_state; }
    [[nodiscard]] SwitchControl& control() const { return *m_control; }
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user turned the switch.
    void switched(bool isOn);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int textLeft() const;
    [[nodiscard]] double titleRowHeight() const;
    void paintTexts(QPainter& painter) const;

    const SettingsCardLook m_look;
    const QStringList m_lines; ///< of the description
    SettingsCardState m_state;
    AnimatedValue m_activity; ///< from 0 to 1, active
    SwitchControl* m_control;
};

} // namespace tarvin
