#include "studio/BottomFooterBar.h"

#include "shell/BackgroundModeManager.h"
#include "shell/BatteryHelper.h"
#include "studio/StudioTexts.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/Plates.h"
#include "ui/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>

namespace tarvin {

namespace {

using palette::mintTeal;
using palette::white;

constexpr int inset = 20;
constexpr double buttonInset = 5; // the plates show only under the pointer

/// Text and symbol without a plate of their own.
ButtonLook bareLook(double symbolSize, double textSize, const Colour& symbol, const Colour& text)
{
    return {.height = 24,
        .radius = 6,
        .inset = buttonInset,
        .symbolSize = symbolSize,
        .spacing = 5,
        .text = {.size = textSize, .weight = TextWeight::medium, .face = TextFace::rounded},
        .symbolColour = symbol,
        .textColour = text,
        .fill = white.at(0),
        .hoveredFill = white.at(0.06),
        .stroke = white.at(0)};
}

} // namespace

BottomFooterBar::BottomFooterBar(const StudioCollaborators& collaborators, QWidget* parent)
    : QWidget(parent)
    , m_with(collaborators)
    , m_battery(
          new TextLabel({}, {.size = 11, .weight = TextWeight::medium, .face = TextFace::rounded}, white.at(0.75)))
    , m_background(new OutlinedButton(bareLook(10, 10, mintTeal, white.at(0.75))))
{
    setFixedHeight(barHeight);
    m_battery->setSpacing(5);
    auto* const antenna = new TextLabel({}, {.size = 10}, mintTeal.at(0.85));
    antenna->setSymbol(Symbol(u"antenna.radiowaves.left.and.right"), 10, mintTeal.at(0.85));
    m_background->setToolTip(QStringLiteral("Configure background execution and Dock behavior"));
    connect(m_background, &QAbstractButton::clicked, this, &BottomFooterBar::settingsRequested);
    auto* const keyboard = new OutlinedButton(bareLook(10, 10, white.at(0.55), white.at(0.55)));
    keyboard->setSymbol(Symbol(u"gearshape"));
    keyboard->setText(QStringLiteral("macOS Keyboard Settings"));
    connect(keyboard, &QAbstractButton::clicked, this, [this] { m_with.openKeyboardSettings(); });

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(inset, 1, inset - static_cast<int>(buttonInset), 0);
    row->setSpacing(0);
    row->addWidget(m_battery);
    row->addSpacing(13);
    row->addWidget(antenna);
    row->addSpacing(13 - static_cast<int>(buttonInset));
    row->addWidget(m_background);
    row->addStretch();
    row->addWidget(keyboard);

    const BatteryHelper& battery = m_with.batteryHelper;
    connect(&battery, &BatteryHelper::percentageChanged, this, &BottomFooterBar::followBattery);
    connect(&battery, &BatteryHelper::chargingChanged, this, &BottomFooterBar::followBattery);
    const BackgroundModeManager& background = m_with.backgroundModeManager;
    connect(&background, &BackgroundModeManager::startupDockModeChanged, this, &BottomFooterBar::followBackground);
    connect(&background, &BackgroundModeManager::behaviorChanged, this, &BottomFooterBar::followBackground);
    followBattery();
    followBackground();
}

void BottomFooterBar::followBattery()
{
    m_battery->setSymbol(Symbol::namedOrPlaceholder(m_with.batteryHelper.batteryIcon()), 14, white.at(0.75));
    m_battery->setText(QStringLiteral("%1%").arg(m_with.batteryHelper.percentage()));
    m_battery->updateGeometry();
}

void BottomFooterBar::followBackground()
{
    const BackgroundModeManager& background = m_with.backgroundModeManager;
    m_background->setSymbol(backgroundFooterSymbol(background.startupDockMode()));
    m_background->setText(backgroundFooterText(background.startupDockMode(), background.behavior()));
    m_background->updateGeometry();
}

void BottomFooterBar::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette::barBackground);
    drawHairline(painter, 0, width(), 0, palette::hairline);
}

} // namespace tarvin
