#pragma once

#include "platform/linux/services/Buses.h"
#include "platform/linux/x11/BuiltInKeystrokes.h"

#include <cstdint>
#include <span>
#include <variant>

namespace tarvin::functions {

/// A call on the session bus, perhaps with one text.
struct AskBus
{
    services::BusObject object;
    QStringView method;
    QStringView argument;
};

/// A property on the session bus that is true or false, to be the other.
struct FlipProperty
{
    services::BusObject object;
    QStringView property;
};

/// A stored setting that is true or false, to be the other, by the tool `gsettings`.
struct FlipSetting
{
    QStringView schema;
    QStringView key;
};

/// A program that does it, where it is installed.
struct RunProgram
{
    QStringView program;
    QStringView arguments; ///< between blanks
};

/// What every window manager is asked in the same way.
enum class ManagerWish : std::uint8_t { showDesktop, previousDesktop, nextDesktop, hideOtherApplications };

/// What the program has means of its own for.
enum class OwnMeans : std::uint8_t { lockScreen, forceQuitDialog };

using Road = std::variant<AskBus, FlipProperty, FlipSetting, RunProgram, ManagerWish, OwnMeans>;

/// By what a desktop is known: a name on the session bus, or a program that runs. Empty for any desktop.
struct Sign
{
    QStringView service;
    QStringView program;
};

/// One way to a function of the desktop.
struct FunctionRoad
{
    x11::DesktopFunction function;
    Sign sign;
    Road road;
};

/// All ways, the better ones of a function first. A function without a row is one that no desktop here has.
[[nodiscard]] std::span<const FunctionRoad> functionRoads() noexcept;

} // namespace tarvin::functions
