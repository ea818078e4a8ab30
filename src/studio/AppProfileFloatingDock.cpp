#include "studio/AppProfileFloatingDock.h"

#include "profiles/KeyProfile.h"
#include "studio/ProfilePill.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/Shadows.h"

#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace tarvin {

namespace {

constexpr Motion glideMotion = Motion::spring(0.3, 0.75);
constexpr int padding = 3;
constexpr int glowRoom = 10; // above and below, for the glow of the active pill
constexpr int spacing = 2;
constexpr int plusSpacing = 6;
constexpr double glowRadius = 5;
constexpr Colour clear = palette::white.at(0);
constexpr ButtonLook plusLook{.height = 26,
    .radius = 13,
    .inset = 8,
    .symbolSize = 10,
    .spacing = 0,
    .text = {},
    .symbolColour = palette::white.at(0.65),
    .textColour = clear,
    .fill = palette::white.at(0.05),
    .hoveredFill = palette::white.at(0.11),
    .stroke = clear};

} // namespace

AppProfileFloatingDock::AppProfileFloatingDock(KeyProfile& profile, QWidget* parent)
    : QWidget(parent)
    , m_profile(profile)
    , m_strip(new QWidget(this))
    , m_plus(new OutlinedButton(plusLook, this))
    , m_pillLeft(0, [this] { update(); })
    , m_pillWidth(0, [this] { update(); })
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Profiles"));
    m_plus->setSymbol(Symbol(u"plus"));
    m_plus->setTip(QStringLiteral("Add Application Profile..."));
    connect(m_plus, &QAbstractButton::clicked, this, &AppProfileFloatingDock::addRequested);
    connect(&profile, &KeyProfile::availableProfilesChanged, this, &AppProfileFloatingDock::makePills);
    connect(&profile, &KeyProfile::currentProfileChanged, this, &AppProfileFloatingDock::followCurrentProfile);
    makePills();
}

void AppProfileFloatingDock::makePills()
{
    // Later, because the click on a pill may have led here.
    for (ProfilePill* const pill : m_pills) {
        pill->hide();
        pill->deleteLater();
    }
    m_pills.clear();
    const QList<AppProfile>& profiles = m_profile.availableProfiles();
    for (const AppProfile& profile : profiles) {
        const QString name = m_pills.empty() ? QStringLiteral("MacBook Air & Pro") : profile.name;
        auto* const pill = new ProfilePill(
            profile, name, [this] { return activePill(); }, m_strip);
        pill->setCompact(m_isCompact);
        pill->setCurrent(profile == m_profile.currentProfile());
        connect(pill, &QAbstractButton::toggled, this, [this, pill](bool isCurrent) {
            if (isCurrent && pill->profile() != m_profile.currentProfile())
                m_profile.setCurrentProfile(pill->profile());
        });
        pill->setVisible(true);
        if (!m_pills.empty())
            setTabOrder(m_pills.back(), pill);
        m_pills.push_back(pill);
    }
    setTabOrder(m_pills.back(), m_plus);
    updateGeometry();
    layOut();
    glide(false);
}

ProfilePill* AppProfileFloatingDock::currentPill() const
{
    for (ProfilePill* const pill : m_pills) {
        if (pill->profile() == m_profile.currentProfile())
            return pill;
    }
    return nullptr;
}

void AppProfileFloatingDock::followCurrentProfile()
{
    for (ProfilePill* const pill : m_pills)
        pill->setCurrent(pill == currentPill());
    updateGeometry();
    layOut();
    scrollToCurrentPill();
    glide(isVisible());
}

void AppProfileFloatingDock::setCompact(bool compact)
{
    if (m_isCompact == compact)
        return;
    m_isCompact = compact;
    for (ProfilePill* const pill : m_pills)
        pill->setCompact(compact);
    updateGeometry();
    layOut();
    glide(false);
}

void AppProfileFloatingDock::setRoom(int width)
{
    if (m_room == width)
        return;
    m_room = width;
    updateGeometry();
}

int AppProfileFloatingDock::fullWidth() const
{
    int width = 2 * padding + plusSpacing + m_plus->sizeHint().width();
    for (const ProfilePill* const pill : m_pills)
        width += pill->sizeHint().width() + spacing;
    return width - spacing + 2 * glowRoom;
}

QSize AppProfileFloatingDock::sizeHint() const
{
    return {std::min(fullWidth(), m_room), ProfilePill::pillHeight + 2 * padding + 2 * glowRoom};
}

void AppProfileFloatingDock::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
    glide(false);
}

void AppProfileFloatingDock::layOut()
{
    const int left = glowRoom + padding;
    const QSize plus = m_plus->sizeHint();
    m_plus->setGeometry(QRect(QPoint(width() - left - plus.width(), left), plus));
    // Higher than the pills, so that the glow of the active one is not cut.
    m_strip->setGeometry(left, 0, m_plus->x() - plusSpacing - left, height());
    scrollTo(m_scroll);
}

void AppProfileFloatingDock::scrollTo(int offset)
{
    int length = -spacing;
    for (const ProfilePill* const pill : m_pills)
        length += pill->sizeHint().width() + spacing;
    m_scroll = std::clamp(offset, 0, std::max(0, length - m_strip->width()));
    int x = -m_scroll;
    for (ProfilePill* const pill : m_pills) {
        pill->setGeometry(QRect(QPoint(x, glowRoom + padding), pill->sizeHint()));
        x += pill->width() + spacing;
    }
    update();
}

void AppProfileFloatingDock::scrollToCurrentPill()
{
    const ProfilePill* const pill = currentPill();
    if (!pill)
        return;
    const QRect box = pill->geometry();
    if (box.left() < 0)
        scrollTo(m_scroll + box.left());
    else if (box.right() >= m_strip->width())
        scrollTo(m_scroll + box.right() + 1 - m_strip->width());
}

void AppProfileFloatingDock::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    const int before = m_scroll;
    scrollTo(m_scroll - (turned.y() != 0 ? turned.y() : turned.x()) / 4);
    if (m_scroll != before)
        glide(false);
}

void AppProfileFloatingDock::glide(bool isAnimated)
{
    const ProfilePill* const pill = currentPill();
    const QRect goal = pill ? pill->geometry() : QRect(); // in the strip
    if (isAnimated) {
        m_pillLeft.animateTo(goal.left(), glideMotion);
        m_pillWidth.animateTo(goal.width(), glideMotion);
    } else if (m_pillLeft.target() != goal.left() || m_pillWidth.target() != goal.width()) {
        m_pillLeft.jumpTo(goal.left());
        m_pillWidth.jumpTo(goal.width());
    }
}

QRectF AppProfileFloatingDock::activePill() const
{
    return {m_pillLeft.value(), glowRoom + padding, m_pillWidth.value(), ProfilePill::pillHeight};
}

void AppProfileFloatingDock::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QRectF box = QRectF(rect()).adjusted(glowRoom, glowRoom, -glowRoom, -glowRoom);
    fillPlate(painter, box, box.height() / 2, palette::buttonFill);
    strokePlate(painter, box, box.height() / 2, 1, palette::buttonStroke);
    const QRectF pill = activePill().translated(m_strip->pos());
    if (pill.width() <= 0)
        return;
    // The glow may leave the strip at its ends, but not much more than that.
    painter.setClipRect(m_strip->geometry().adjusted(-padding - glowRoom, 0, padding, 0));
    drawShadow(
        painter, pill, {.colour = palette::mintTeal.at(0.4), .sigma = glowRadius, .cornerRadius = pill.height() / 2});
    fillPlate(painter, pill, pill.height() / 2, palette::mintTeal);
}

} // namespace tarvin
