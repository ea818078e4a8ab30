#include "studio/TopHeaderBar.h"

#include "interception/EventTapManager.h"
#include "interception/FnKeyModeHelper.h"
#include "profiles/KeyProfile.h"
#include "shell/BackgroundModeManager.h"
#include "shell/KeyboardTactileEngine.h"
#include "studio/AppProfileFloatingDock.h"
#include "studio/LabelledSwitch.h"
#include "studio/StudioTexts.h"
#include "studio/TarvinLogoView.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Pill.h"
#include "ui/Plates.h"
#include "ui/SwitchControl.h"
#include "ui/TextLine.h"

#include <QEvent>
#include <QPainter>

#include <cmath>

namespace tarvin {

namespace {

constexpr int inset = 20;
constexpr int gap = 6;
constexpr double logoSize = 26;
constexpr double nameLeft = inset + logoSize + 9;
constexpr TextStyle nameStyle{.size = 14, .weight = TextWeight::bold, .face = TextFace::rounded};
constexpr double chipGap = 7;
const QString programName = QStringLiteral("Tarvin");

Pill studioChip()
{
    return {.text = QStringLiteral("STUDIO"),
        .style = {.size = 8, .weight = TextWeight::heavy},
        .textColour = palette::mintTeal,
        .fill = palette::mintTeal.at(0.15),
        .insetX = 4,
        .insetY = 1.5,
        .radius = 3.5,
        .letterSpacing = 0.6};
}

double leftGroupEnd()
{
    return nameLeft + textWidth(programName, nameStyle) + chipGap + studioChip().size().width();
}

} // namespace

TopHeaderBar::TopHeaderBar(const StudioCollaborators& collaborators, QWidget* parent)
    : QWidget(parent)
    , m_with(collaborators)
    , m_dock(new AppProfileFloatingDock(m_with.keyProfile, this))
    , m_settingsQuickButton(new OutlinedButton({}, this))
    , m_backgroundModeQuickButton(new OutlinedButton({}, this))
    , m_hookStatusToggle(new LabelledSwitch(QStringLiteral("Custom Keys"),
          {.size = 10, .weight = TextWeight::bold, .face = TextFace::rounded}, LabelledSwitch::plateHeight / 2.0, this))
    , m_backlightQuickButton(new OutlinedButton({}, this))
    , m_soundQuickButton(new OutlinedButton({}, this))
    , m_resetProfileButton(new OutlinedButton({}, this))
{
    setFixedHeight(barHeight);
    auto* const logo = new TarvinLogoView(logoSize, LogoGlow::shining, this);
    logo->resize(logo->sizeHint());
    logo->move(inset - logo->margin(), static_cast<int>((barHeight - logoSize) / 2) - logo->margin());
    logo->lower();
    addButtons();
    connect(m_dock, &AppProfileFloatingDock::addRequested, this, &TopHeaderBar::addApplicationRequested);

    const KeyProfile& profile = m_with.keyProfile;
    connect(&profile, &KeyProfile::interceptionEnabledChanged, this, &TopHeaderBar::followHook);
    connect(&m_with.eventTapManager, &EventTapManager::isRunningChanged, this, &TopHeaderBar::followHook);
    const BackgroundModeManager& background = m_with.backgroundModeManager;
    connect(&background, &BackgroundModeManager::startupDockModeChanged, this, &TopHeaderBar::followBackground);
    connect(&background, &BackgroundModeManager::behaviorChanged, this, &TopHeaderBar::followBackground);
    const KeyboardTactileEngine& engine = m_with.tactileEngine;
    connect(&engine, &KeyboardTactileEngine::backlightLevelChanged, this, &TopHeaderBar::followFeedback);
    connect(&engine, &KeyboardTactileEngine::soundEnabledChanged, this, &TopHeaderBar::followFeedback);
    connect(&profile, &KeyProfile::currentProfileChanged, this, &TopHeaderBar::followFeedback);
    connect(&profile, &KeyProfile::currentProfileChanged, this, &TopHeaderBar::layOut);
    connect(&profile, &KeyProfile::availableProfilesChanged, this, &TopHeaderBar::layOut);
    followHook();
    followBackground();
    followFeedback();
}

void TopHeaderBar::addButtons()
{
    m_settingsQuickButton->setSymbol(Symbol(u"gearshape.fill"));
    m_settingsQuickButton->setText(QStringLiteral("Settings"));
    m_settingsQuickButton->setTip(QStringLiteral("Open Tarvin Settings & Keyboard Flexibility..."));
    connect(m_settingsQuickButton, &QAbstractButton::clicked, this, &TopHeaderBar::settingsRequested);
    m_backgroundModeQuickButton->setText(QStringLiteral("Background"));
    connect(m_backgroundModeQuickButton, &QAbstractButton::clicked, this, &TopHeaderBar::settingsRequested);

    // Not at each click: assistive technology toggles without one. What the switch only follows is no wish of the user.
    connect(&m_hookStatusToggle->control(), &QAbstractButton::toggled, this, [this](bool isOn) {
        if (m_with.keyProfile.isInterceptionEnabled() == isOn)
            return;
        m_with.keyProfile.setInterceptionEnabled(isOn);
        if (!isOn)
            m_with.fnKeyModeHelper.restoreAppleDefaults();
    });

    ButtonLook look = m_backlightQuickButton->look();
    look.symbolColour = palette::mintTeal;
    look.symbolSize = 11.5;
    m_backlightQuickButton->setLook(look);
    m_backlightQuickButton->setSymbol(Symbol(u"light.recessed.fill"));
    connect(m_backlightQuickButton, &QAbstractButton::clicked, this, [this] { m_with.tactileEngine.cycleBacklight(); });
    for (OutlinedButton* const button : {m_soundQuickButton, m_resetProfileButton}) {
        ButtonLook bare = button->look();
        bare.inset = 8.7;
        button->setLook(bare);
    }
    connect(m_soundQuickButton, &QAbstractButton::clicked, this, [this] { m_with.tactileEngine.toggleSound(); });
    m_resetProfileButton->setSymbol(Symbol(u"arrow.counterclockwise"));
    connect(m_resetProfileButton, &QAbstractButton::clicked, this,
        [this] { m_with.keyProfile.resetCurrentProfileToDefaults(); });
}

void TopHeaderBar::followHook()
{
    const bool isOn = m_with.keyProfile.isInterceptionEnabled();
    const HookStatus status = hookStatus(isOn, m_with.eventTapManager.isRunning());
    m_hookStatusToggle->setLook({.label = status.label,
        .labelColour = status.labelColour,
        .fill = status.fill,
        .stroke = status.stroke,
        .dot = status.dot,
        .isDotShining = status.dot == palette::mintTeal});
    m_hookStatusToggle->setTip(status.tooltip);
    m_hookStatusToggle->control().setChecked(isOn);
    layOut();
}

void TopHeaderBar::followBackground()
{
    const BackgroundModeManager& background = m_with.backgroundModeManager;
    m_backgroundModeQuickButton->setSymbol(backgroundButtonSymbol(background.startupDockMode()));
    m_backgroundModeQuickButton->setTip(backgroundTooltip(background.startupDockMode(), background.behavior()));
    layOut();
}

void TopHeaderBar::followFeedback()
{
    const KeyboardTactileEngine& engine = m_with.tactileEngine;
    m_backlightQuickButton->setText(engine.backlightPercentText());
    m_backlightQuickButton->setTip(backlightTooltip(engine.backlightPercentText()));
    m_backlightQuickButton->setAccessibleName(m_backlightQuickButton->toolTip());
    m_backlightQuickButton->updateGeometry();
    m_soundQuickButton->setSymbol(soundSymbol(engine.isSoundEnabled()));
    m_soundQuickButton->setTip(soundTooltip(engine.isSoundEnabled()));
    m_resetProfileButton->setTip(resetTooltip(m_with.keyProfile.currentProfile().name));
    layOut();
}

void TopHeaderBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void TopHeaderBar::layOut()
{
    const bool isNarrow = width() < roomyWidth;
    m_settingsQuickButton->setCompact(isNarrow);
    m_backgroundModeQuickButton->setCompact(isNarrow);
    m_dock->setCompact(isNarrow);
    int right = width() - inset;
    for (QWidget* const widget :
        {static_cast<QWidget*>(m_resetProfileButton), static_cast<QWidget*>(m_soundQuickButton),
            static_cast<QWidget*>(m_backlightQuickButton), static_cast<QWidget*>(m_hookStatusToggle),
            static_cast<QWidget*>(m_backgroundModeQuickButton), static_cast<QWidget*>(m_settingsQuickButton)}) {
        const QSize size = widget->sizeHint();
        widget->setGeometry(QRect(QPoint(right - size.width(), (height() - size.height()) / 2), size));
        right -= size.width() + gap;
    }
    right += gap;
    const int room = right - static_cast<int>(std::ceil(leftGroupEnd()));
    if (!isNarrow && m_dock->fullWidth() > room)
        m_dock->setCompact(true);
    m_dock->setRoom(room);
    // Equal free space on both sides of the dock.
    const QSize size = m_dock->sizeHint();
    const int left = static_cast<int>((leftGroupEnd() + right - size.width()) / 2);
    m_dock->setGeometry(QRect(QPoint(left, (height() - size.height()) / 2), size));
}

void TopHeaderBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette::barBackground);
    drawHairline(painter, 0, width(), height() - 1, palette::hairline);
    const double nameWidth = textWidth(programName, nameStyle);
    drawText(painter, {nameLeft, 0, nameWidth, static_cast<double>(height())}, Qt::AlignLeft, programName, nameStyle,
        palette::white);
    const Pill chip = studioChip();
    drawPill(painter, {nameLeft + nameWidth + chipGap, (height() - chip.size().height()) / 2}, chip);
}

} // namespace tarvin
