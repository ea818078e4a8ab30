#include "studio/TopSettingsControls.h"

#include "interception/FnKeyModeHelper.h"
#include "profiles/KeyProfile.h"
#include "studio/KeyLegend.h"
#include "studio/LabelledSwitch.h"
#include "ui/OutlinedButton.h"
#include "ui/Palette.h"
#include "ui/SwitchControl.h"

#include <QHBoxLayout>

namespace tarvin {

namespace {

constexpr int gap = 8;
constexpr TextStyle toggleText{.size = 10, .weight = TextWeight::medium, .face = TextFace::rounded};
constexpr double toggleRadius = 8;
const QString functionKeysLabel = QStringLiteral("F1–F12");
const QString otherKeysLabel = QStringLiteral("Other Keys");

LabelledSwitchLook toggleLook(const QString& label, Symbol symbol, bool isOn)
{
    using palette::mintTeal;
    using palette::white;
    return {.label = label,
        .labelColour = white.at(isOn ? 0.9 : 0.45),
        .fill = white.at(0.02),
        .stroke = isOn ? mintTeal.at(0.35) : white.at(0.08),
        .symbol = symbol,
        .symbolColour = isOn ? mintTeal : white.at(0.45)};
}

ButtonLook roomyLook()
{
    ButtonLook look;
    look.symbolColour = palette::white.at(0.7);
    look.textColour = palette::white.at(0.75);
    look.spacing = 7;
    look.inset = 10;
    return look;
}

} // namespace

TopSettingsControls::TopSettingsControls(const StudioCollaborators& collaborators, QWidget* parent)
    : QWidget(parent)
    , m_with(collaborators)
    , m_functionKeys(new LabelledSwitch(functionKeysLabel, toggleText, toggleRadius))
    , m_otherKeys(new LabelledSwitch(otherKeysLabel, toggleText, toggleRadius))
{
    setFixedHeight(rowHeight);
    auto* const settings = new OutlinedButton(roomyLook());
    settings->setSymbol(Symbol(u"slider.horizontal.3"));
    settings->setText(QStringLiteral("Settings"));
    settings->setTip(QStringLiteral("Open Tarvin Settings & Keyboard Flexibility..."));
    connect(settings, &QAbstractButton::clicked, this, &TopSettingsControls::settingsRequested);
    auto* const restore = new OutlinedButton(roomyLook());
    restore->setSymbol(Symbol(u"applelogo"));
    restore->setText(QStringLiteral("Restore Defaults"));
    restore->setTip(QStringLiteral("Restore physical MacBook keyboard to 100% Apple factory defaults"));
    connect(restore, &QAbstractButton::clicked, this, &TopSettingsControls::restoreDefaults);

    m_functionKeys->setTip(QStringLiteral(
        "Toggle Function Keys (F1–F12). When deactivated, Apple defaults (brightness, volume, etc.) run."));
    // Assistive technology toggles without a click; what the switches only follow is no wish of the user.
    connect(&m_functionKeys->control(), &QAbstractButton::toggled, this, [this](bool isOn) {
        if (m_with.keyProfile.isFunctionKeysEnabled() == isOn)
            return;
        m_with.keyProfile.setFunctionKeysEnabled(isOn);
        if (!isOn)
            m_with.fnKeyModeHelper.restoreAppleDefaults();
    });
    m_otherKeys->setTip(QStringLiteral("Toggle Rest of Custom Keys (Caps Lock, Right ⌥/⌘, Globe, §, F13–F19). When "
                                       "deactivated, native macOS behaviors run."));
    connect(&m_otherKeys->control(), &QAbstractButton::toggled, this,
        [this](bool isOn) { m_with.keyProfile.setOtherKeysEnabled(isOn); });

    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(gap);
    row->addWidget(new KeyLegend);
    row->addStretch();
    for (QWidget* const widget : {static_cast<QWidget*>(m_functionKeys), static_cast<QWidget*>(m_otherKeys),
             static_cast<QWidget*>(settings), static_cast<QWidget*>(restore)})
        row->addWidget(widget);

    const KeyProfile& profile = m_with.keyProfile;
    connect(&profile, &KeyProfile::functionKeysEnabledChanged, this, &TopSettingsControls::followSwitches);
    connect(&profile, &KeyProfile::otherKeysEnabledChanged, this, &TopSettingsControls::followSwitches);
    followSwitches();
}

void TopSettingsControls::followSwitches()
{
    const bool areFunctionKeysOn = m_with.keyProfile.isFunctionKeysEnabled();
    const bool areOtherKeysOn = m_with.keyProfile.isOtherKeysEnabled();
    m_functionKeys->setLook(toggleLook(functionKeysLabel, Symbol(u"f.cursive"), areFunctionKeysOn));
    m_functionKeys->control().setChecked(areFunctionKeysOn);
    m_otherKeys->setLook(toggleLook(otherKeysLabel, Symbol(u"command.square"), areOtherKeysOn));
    m_otherKeys->control().setChecked(areOtherKeysOn);
}

void TopSettingsControls::restoreDefaults()
{
    m_with.keyProfile.setInterceptionEnabled(false);
    m_with.fnKeyModeHelper.restoreAppleDefaults();
}

} // namespace tarvin
