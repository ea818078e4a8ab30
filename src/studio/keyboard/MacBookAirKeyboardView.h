#pragma once

#include "studio/keyboard/DrawnKey.h"
#include "studio/keyboard/KeyCalloutBubble.h"
#include "studio/keyboard/KeyboardGeometry.h"

#include <QWidget>

#include <optional>
#include <vector>

namespace tarvin {

class KeyButton;
class KeyProfile;
class KeyboardTactileEngine;

/// The drawn keyboard. Shows what every key does and which of them is being edited, and lets the user choose one.
///
/// The widget is larger than the keyboard by a margin, in which lie the shadow, the glows and the callout. Only what
/// changes is painted again, and nothing ticks while nothing moves.
class MacBookAirKeyboardView : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(std::optional<tarvin::FKey> selectedKey READ selectedKey WRITE setSelectedKey NOTIFY selectedKeyChanged)

public:
    /// Around the keyboard.
    static constexpr QMargins margins{28, 64, 28, 92};

    /// Both outlive the view.
    MacBookAirKeyboardView(const KeyProfile& profile, KeyboardTactileEngine& tactileEngine, QWidget* parent = nullptr);
    ~MacBookAirKeyboardView() override;

    [[nodiscard]] std::optional<FKey> selectedKey() const { return m_selectedKey; }
    void setSelectedKey(std::optional<FKey> key);
    /// Gives the keyboard to that key, which from now on is the one that Tab reaches.
    void focusKey(FKey key);
    [[nodiscard]] const std::optional<std::size_t>& hoveredKeycap() const { return m_hoveredKeycap; }
    [[nodiscard]] double containerWidth() const { return m_containerWidth; }
    /// In the container, that is, without the margins.
    [[nodiscard]] const KeyboardGeometry& geometryOfKeys() const { return m_geometry; }
    [[nodiscard]] const DrawnKey& drawnKey(std::size_t keycap) const { return m_keys[keycap]; }
    [[nodiscard]] KeyButton& button(std::size_t keycap) const { return *m_buttons[keycap]; }

    /// The height that the view takes at a width, margins included.
    [[nodiscard]] static int heightForViewWidth(int width);

Q_SIGNALS:
    void selectedKeyChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void addKeys();
    void layOut();
    void clickKey(std::size_t keycap);
    void hoverKey(std::size_t keycap, bool isHovered);
    void moveFocus(std::size_t from, Qt::Key arrow);
    void focusKeycap(std::size_t keycap);
    [[nodiscard]] KeycapState stateOf(std::size_t keycap) const;
    [[nodiscard]] Motion motionBetween(const KeycapState& from, const KeycapState& to) const;
    /// Brings every key's state in line; what differs moves there.
    void followStates();
    void followMappings();
    void followCallout();
    void updateKey(std::size_t keycap);
    [[nodiscard]] QRectF reachOf(std::size_t keycap) const;
    [[nodiscard]] std::optional<std::size_t> selectedKeycap() const;

    const KeyProfile& m_profile;
    KeyboardTactileEngine& m_tactileEngine;
    std::optional<FKey> m_selectedKey;
    std::optional<std::size_t> m_hoveredKeycap;
    std::optional<std::size_t> m_focusedKeycap;
    double m_containerWidth = initialContainerWidth;
    KeyboardGeometry m_geometry;
    std::vector<DrawnKey> m_keys;
    std::vector<KeyButton*> m_buttons; ///< owned by the widget

    std::optional<std::size_t> m_calloutKeycap; ///< stays while the callout fades
    KeyCalloutBubble m_callout;
    AnimatedValue m_calloutOpacity;
};

} // namespace tarvin
