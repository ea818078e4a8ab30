#include "studio/keyboard/MacBookAirKeyboardView.h"

#include "profiles/KeyProfile.h"
#include "shell/KeyboardTactileEngine.h"
#include "studio/keyboard/ChassisPainter.h"
#include "studio/keyboard/KeyButton.h"
#include "studio/keyboard/KeyNavigation.h"
#include "studio/keyboard/KeycapTexts.h"
#include "ui/FocusRing.h"

#include <QPaintEvent>
#include <QPainter>

#include <cmath>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr Motion selectionMotion = Motion::spring(0.3, 0.75);
constexpr Motion pressMotion = Motion::easeInOut(50ms);
constexpr Motion releaseMotion = Motion::spring(0.25, 0.7);
constexpr Motion hoverMotion = Motion::easeInOut(150ms);
constexpr Motion switchMotion = Motion::easeInOut(200ms);
constexpr Motion backlightMotion = Motion::easeInOut(150ms);

/// The box with its edges on whole device pixels, so that rims are sharp.
QRectF snapped(const QRectF& box, double scale)
{
    const auto snap = [scale](double edge) { return std::round(edge * scale) / scale; };
    return {QPointF(snap(box.left()), snap(box.top())), QPointF(snap(box.right()), snap(box.bottom()))};
}

QPointF marginOffset()
{
    return {MacBookAirKeyboardView::margins.left(), MacBookAirKeyboardView::margins.top()};
}

} // namespace

MacBookAirKeyboardView::MacBookAirKeyboardView(
    const KeyProfile& profile, KeyboardTactileEngine& tactileEngine, QWidget* parent)
    : QWidget(parent)
    , m_profile(profile)
    , m_tactileEngine(tactileEngine)
    , m_geometry(keyboardGeometry(m_containerWidth))
    , m_calloutOpacity(0, [this] {
        if (m_calloutKeycap)
            update(m_callout.reach(m_geometry.keycaps[*m_calloutKeycap]).translated(marginOffset()).toAlignedRect());
    })
{
    setAccessibleName(tr("Keyboard"));
    addKeys();
    layOut();
    followMappings();
    for (const auto signal : {&KeyProfile::currentProfileChanged, &KeyProfile::profileMappingsChanged,
             &KeyProfile::interceptionEnabledChanged, &KeyProfile::functionKeysEnabledChanged,
             &KeyProfile::otherKeysEnabledChanged})
        connect(&profile, signal, this, &MacBookAirKeyboardView::followMappings);
    connect(&tactileEngine, &KeyboardTactileEngine::pressedKeyIdChanged, this, &MacBookAirKeyboardView::followStates);
    connect(&tactileEngine, &KeyboardTactileEngine::backlightLevelChanged, this, [this] {
        followStates();
        update();
    });
}

MacBookAirKeyboardView::~MacBookAirKeyboardView()
{
    // A visible widget takes the focus from its buttons while it goes, when the drawn keys have gone already.
    for (KeyButton* button : m_buttons)
        button->disconnect(this);
}

void MacBookAirKeyboardView::addKeys()
{
    m_keys.reserve(keycapCount);
    for (std::size_t index = 0; index < keycapCount; ++index) {
        m_keys.emplace_back(keycaps[index], [this, index] { updateKey(index); });
        auto* const button = new KeyButton(keycaps[index].key ? KeyButtonKind::live : KeyButtonKind::plain, this);
        m_buttons.push_back(button);
        connect(button, &QAbstractButton::clicked, this, [this, index] { clickKey(index); });
        connect(button, &KeyButton::hovered, this, [this, index](bool isHovered) { hoverKey(index, isHovered); });
        connect(button, &KeyButton::arrowPressed, this, [this, index](Qt::Key arrow) { moveFocus(index, arrow); });
        connect(button, &KeyButton::focused, this, [this, index](bool hasFocus) {
            m_focusedKeycap = hasFocus ? std::optional(index) : std::nullopt;
            updateKey(index);
        });
    }
    m_buttons[*keycapOf(FKey::f1)]->setFocusPolicy(Qt::TabFocus);
}

int MacBookAirKeyboardView::heightForViewWidth(int width)
{
    const double container = width - margins.left() - margins.right();
    return static_cast<int>(std::ceil(keyboardGeometry(container).chassis.height())) + margins.top() + margins.bottom();
}

void MacBookAirKeyboardView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const double width = followedContainerWidth(m_containerWidth, this->width() - margins.left() - margins.right());
    if (width == m_containerWidth)
        return;
    m_containerWidth = width;
    layOut();
}

void MacBookAirKeyboardView::layOut()
{
    m_geometry = keyboardGeometry(m_containerWidth);
    for (std::size_t index = 0; index < keycapCount; ++index)
        m_buttons[index]->setGeometry(m_geometry.keycaps[index].translated(marginOffset()).toRect());
    update();
}

void MacBookAirKeyboardView::clickKey(std::size_t keycap)
{
    m_tactileEngine.triggerKeyPress(keycaps[keycap].id.toString(), PressSound::audible);
    if (const auto key = keycaps[keycap].key)
        setSelectedKey(m_selectedKey == key ? std::nullopt : key);
}

void MacBookAirKeyboardView::hoverKey(std::size_t keycap, bool isHovered)
{
    m_hoveredKeycap = isHovered ? std::optional(keycap) : std::nullopt;
    followStates();
}

void MacBookAirKeyboardView::moveFocus(std::size_t from, Qt::Key arrow)
{
    focusKeycap(liveKeyTowards(m_geometry, from, arrow));
}

void MacBookAirKeyboardView::focusKey(FKey key)
{
    if (const auto keycap = keycapOf(key))
        focusKeycap(*keycap);
}

void MacBookAirKeyboardView::focusKeycap(std::size_t keycap)
{
    for (KeyButton* const button : m_buttons)
        button->setFocusPolicy(Qt::NoFocus);
    m_buttons[keycap]->setFocusPolicy(Qt::TabFocus);
    m_buttons[keycap]->setFocus(Qt::OtherFocusReason);
}

std::optional<std::size_t> MacBookAirKeyboardView::selectedKeycap() const
{
    return m_selectedKey ? keycapOf(*m_selectedKey) : std::nullopt;
}

void MacBookAirKeyboardView::setSelectedKey(std::optional<FKey> key)
{
    if (m_selectedKey == key)
        return;
    m_selectedKey = key;
    followStates();
    followCallout();
    Q_EMIT selectedKeyChanged();
}

KeycapState MacBookAirKeyboardView::stateOf(std::size_t keycap) const
{
    const Keycap& row = keycaps[keycap];
    const auto& pressed = m_tactileEngine.pressedKeyId();
    KeycapState state{.isHovered = m_hoveredKeycap == keycap,
        .isDepressed = pressed && isPressNamed(row, *pressed),
        .backlight = m_tactileEngine.backlightLevel()};
    if (row.key) {
        state.isSelected = m_selectedKey == row.key;
        state.isCustomized = m_profile.isCustomized(*row.key);
        state.isActive = m_profile.isInterceptionActive(*row.key);
    }
    return state;
}

Motion MacBookAirKeyboardView::motionBetween(const KeycapState& from, const KeycapState& to) const
{
    if (from.isSelected != to.isSelected)
        return selectionMotion;
    if (from.isDepressed != to.isDepressed)
        return to.isDepressed ? pressMotion : releaseMotion;
    if (from.isCustomized != to.isCustomized || from.isActive != to.isActive)
        return switchMotion;
    return from.isHovered != to.isHovered ? hoverMotion : backlightMotion;
}

void MacBookAirKeyboardView::followStates()
{
    for (std::size_t index = 0; index < keycapCount; ++index) {
        DrawnKey& key = m_keys[index];
        const KeycapState state = stateOf(index);
        if (state == key.state())
            continue;
        m_buttons[index]->setSelected(state.isSelected);
        if (isVisible())
            key.moveTo(state, motionBetween(key.state(), state));
        else
            key.jumpTo(state);
    }
}

void MacBookAirKeyboardView::followMappings()
{
    for (std::size_t index = 0; index < keycapCount; ++index) {
        const Keycap& row = keycaps[index];
        KeycapMapping mapping;
        if (row.key) {
            const KeyAction action = m_profile.actionConfig(*row.key).action;
            mapping = {.isCustomized = m_profile.isCustomized(*row.key),
                .isActive = m_profile.isInterceptionActive(*row.key),
                .actionTitle = title(action)};
            const KeycapContent content = mapping.isCustomized
                ? customisedContent(row, mapping.actionTitle, tarvin::icon(action))
                : plainContent(row);
            if (content != m_keys[index].content()) {
                m_keys[index].setContent(content);
                updateKey(index);
            }
        }
        m_buttons[index]->setToolTip(keycapTooltip(row, mapping));
        m_buttons[index]->setAccessibleName(keycapSpokenText(row, mapping));
    }
    followStates();
    followCallout();
}

void MacBookAirKeyboardView::followCallout()
{
    const auto keycap = selectedKeycap();
    const auto repaint = [this] {
        if (m_calloutKeycap)
            update(m_callout.reach(m_geometry.keycaps[*m_calloutKeycap]).translated(marginOffset()).toAlignedRect());
    };
    if (keycap) {
        KeyCalloutBubble callout{m_profile.actionConfig(*m_selectedKey).summaryLines()};
        if (m_calloutKeycap != keycap || m_callout.lines != callout.lines) {
            repaint();
            if (m_calloutKeycap != keycap)
                m_calloutOpacity.jumpTo(0);
            m_calloutKeycap = keycap;
            m_callout = std::move(callout);
            repaint();
        }
    }
    const double opacity = keycap ? 1 : 0;
    if (isVisible())
        m_calloutOpacity.animateTo(opacity, selectionMotion);
    else
        m_calloutOpacity.jumpTo(opacity);
}

QRectF MacBookAirKeyboardView::reachOf(std::size_t keycap) const
{
    const double reach = m_keys[keycap].reach();
    return m_geometry.keycaps[keycap].adjusted(-reach, -reach, reach, reach).translated(marginOffset());
}

void MacBookAirKeyboardView::updateKey(std::size_t keycap)
{
    update(reachOf(keycap).toAlignedRect());
}

void MacBookAirKeyboardView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.translate(marginOffset());
    paintChassis(painter, m_geometry, m_tactileEngine.backlightLevel());

    std::vector<std::size_t> shown;
    for (std::size_t index = 0; index < keycapCount; ++index) {
        if (event->region().intersects(reachOf(index).toAlignedRect()))
            shown.push_back(index);
    }
    const auto forEach = [&](bool isRaised, auto&& paint) {
        for (const std::size_t index : shown) {
            if ((stackingOrder(keycaps[index], m_keys[index].state()) > 1) == isRaised)
                paint(m_keys[index], snapped(m_geometry.keycaps[index], devicePixelRatioF()));
        }
    };
    // All shadows and glows before all keys, so that none falls on a neighbour; but a raised key shines over
    // everything.
    for (const bool isRaised : {false, true}) {
        forEach(isRaised,
            [&](const DrawnKey& key, const QRectF& box) { paintUnderKeyAtmosphere(painter, box, key.look()); });
        forEach(isRaised,
            [&](const DrawnKey& key, const QRectF& box) { paintKeyGlow(painter, key.keycap(), box, key.look()); });
        forEach(isRaised, [&](const DrawnKey& key, const QRectF& box) {
            paintKeycap(painter, key.keycap(), box, key.look(), key.content());
        });
    }
    if (m_focusedKeycap) {
        const QRectF box = m_geometry.keycaps[*m_focusedKeycap].adjusted(-3, -3, 3, 3);
        drawFocusRing(painter, box, keycapRadius(keycaps[*m_focusedKeycap]) + 3);
    }
    if (m_calloutKeycap && m_calloutOpacity.value() > 0)
        m_callout.paint(painter, m_geometry.keycaps[*m_calloutKeycap], m_calloutOpacity.value());
}

} // namespace tarvin
