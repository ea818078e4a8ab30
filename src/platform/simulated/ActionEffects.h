#pragma once

#include "platform/ports/Geometry.h"
#include "platform/ports/SystemCommands.h"
#include "platform/ports/SystemKeys.h"
#include "platform/ports/Workspace.h"

#include <QString>

#include <variant>

namespace tarvin::simulated {

// What actions do to the system, to applications and to their windows.

/// A system-defined event was posted to the session.
struct SystemKeyPosted
{
    SystemKey key = SystemKey::soundUp;
    SystemKeyMotion motion = SystemKeyMotion::down;
    bool dropped = false; ///< the system threw it away, for want of permission
    bool operator==(const SystemKeyPosted&) const = default;
};

struct LoginWindowAsked
{
    PowerEvent event = PowerEvent::shutDown;
    bool operator==(const LoginWindowAsked&) const = default;
};

struct AppleMenuPressed
{
    QString title;
    bool operator==(const AppleMenuPressed&) const = default;
};

using WindowAttributeValue = std::variant<bool, Point, Size>;

/// An attribute of another application's window was written.
struct WindowAttributeSet
{
    ProcessIdentifier process = 0;
    QString window; ///< its title
    QString attribute;
    WindowAttributeValue value;
    bool refused = false;
    bool operator==(const WindowAttributeSet&) const = default;
};

struct WindowButtonPressed
{
    ProcessIdentifier process = 0;
    QString window; ///< its title
    QString button;
    bool refused = false;
    bool operator==(const WindowButtonPressed&) const = default;
};

/// The application at the path was started, or brought forward.
struct ApplicationOpened
{
    QString path;
    bool operator==(const ApplicationOpened&) const = default;
};

/// Whatever stands at the path was opened, as by a double click.
struct PathOpened
{
    QString path;
    bool operator==(const PathOpened&) const = default;
};

struct ApplicationForceQuit
{
    ProcessIdentifier process = 0;
    QString name;
    bool accepted = false;
    bool operator==(const ApplicationForceQuit&) const = default;
};

struct ProcessKilled
{
    ProcessIdentifier process = 0;
    QString name;
    bool operator==(const ProcessKilled&) const = default;
};

} // namespace tarvin::simulated
