#pragma once

#include "shell/BackgroundBehavior.h"
#include "shell/StartupDockMode.h"
#include "ui/Colour.h"
#include "ui/Symbols.h"

#include <QList>
#include <QString>
#include <QStringView>

#include <optional>

namespace tarvin {

// What the Studio's bars say, as functions of what the managers publish.

/// One of the messages below the keyboard.
struct StatusMessage
{
    QString text;
    Colour textColour;
    Colour dot;
    double dotSize = 5;
    QString tooltip{};

    bool operator==(const StatusMessage&) const = default;
};

[[nodiscard]] StatusMessage profileMessage(qsizetype mappingCount, QStringView profileName);
[[nodiscard]] StatusMessage functionKeysMessage(int customizedCount, bool isEnabled);
[[nodiscard]] StatusMessage otherKeysMessage(int customizedCount, bool isEnabled);
[[nodiscard]] StatusMessage engineMessage(bool isRunning);

/// The switch of everything: what stands beside it, and how it shows.
struct HookStatus
{
    QString label;
    Colour labelColour;
    Colour dot;
    Colour fill;
    Colour stroke;
    QString tooltip;

    bool operator==(const HookStatus&) const = default;
};
[[nodiscard]] HookStatus hookStatus(bool isInterceptionEnabled, bool isEngineRunning);

/// How the program runs while the Studio is closed, as the header's tooltip and the footer put it.
[[nodiscard]] QString backgroundTooltip(StartupDockMode mode, BackgroundBehavior behavior);
[[nodiscard]] QString backgroundFooterText(StartupDockMode mode, BackgroundBehavior behavior);
[[nodiscard]] Symbol backgroundFooterSymbol(StartupDockMode mode);
[[nodiscard]] Symbol backgroundButtonSymbol(StartupDockMode mode);

[[nodiscard]] QString backlightTooltip(QStringView percentText);
[[nodiscard]] QString soundTooltip(bool isSoundEnabled);
[[nodiscard]] Symbol soundSymbol(bool isSoundEnabled);
[[nodiscard]] QString resetTooltip(QStringView profileName);

} // namespace tarvin
