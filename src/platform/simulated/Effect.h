#pragma once

#include "model/FKeySet.h"
#include "platform/ports/EventPoster.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/InputTaps.h"
#include "platform/ports/Pasteboard.h"
#include "platform/ports/Sounds.h"
#include "platform/ports/Workspace.h"
#include "platform/simulated/ActionEffects.h"

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>
#include <variant>

namespace tarvin::simulated {

/// Virtual time since the simulated desktop was made.
using VirtualTime = std::chrono::microseconds;

/// The ways by which an input event can reach the program.
enum class InputPath { hidTap, sessionTap, globalMonitor, localMonitor };

/// What became of an event on one path.
enum class EventOutcome {
    passed,
    consumed,
    observed, ///< by a path that cannot consume
    unseen, ///< nobody listened there: no tap, not enabled, no monitor
};

/// One event offered to one path, recorded after the handler's effects.
struct EventDelivered
{
    InputPath path = InputPath::sessionTap;
    InputEvent event;
    EventOutcome outcome = EventOutcome::passed;
};

/// One raw hardware value, offered to the HID manager.
struct HidValueDelivered
{
    HidValue value;
    EventOutcome outcome = EventOutcome::observed;
};

/// A key event that nothing took away arrived at the application in front, if there is one.
struct EventReceived
{
    std::optional<QString> application;
    InputEvent event;
};

enum class TapStep { created, refused, attached, detached, enabled, disabled, disabledBySystem, removed };
struct TapChanged
{
    TapLocation location = TapLocation::session;
    TapStep step = TapStep::created;
    bool operator==(const TapChanged&) const = default;
};

enum class MonitorStep { added, refused, removed };
struct MonitorChanged
{
    InputPath path = InputPath::globalMonitor;
    MonitorStep step = MonitorStep::added;
    bool operator==(const MonitorChanged&) const = default;
};

enum class HidManagerStep { opened, openFailed, closed };
struct HidManagerChanged
{
    HidManagerStep step = HidManagerStep::opened;
    bool operator==(const HidManagerChanged&) const = default;
};

struct ConsumedKeysPublished
{
    FKeySet keys;
    SummonShortcut summon = SummonShortcut::released;
    bool operator==(const ConsumedKeysPublished&) const = default;
};

struct KeyPosted
{
    KeyCode keyCode = 0;
    KeyState state = KeyState::down;
    EventFlags flags = EventFlags::none;
    std::int64_t userData = 0;
    TapLocation location = TapLocation::session;
    KeystrokeOrigin origin = KeystrokeOrigin::recorded;
    bool dropped = false; ///< the system threw it away, for want of permission
    bool operator==(const KeyPosted&) const = default;
};

struct ClickPosted
{
    Point position;
    KeyState state = KeyState::down;
    TapLocation location = TapLocation::session;
    bool dropped = false;
    bool operator==(const ClickPosted&) const = default;
};

struct PermissionPrompted
{
    bool operator==(const PermissionPrompted&) const = default;
};

struct ScriptRun
{
    QString source;
    std::optional<QString> error; ///< what the run answered, or why the script could not be built
    bool operator==(const ScriptRun&) const = default;
};

struct ToolLaunched
{
    QString tool;
    QStringList arguments;
    std::optional<QString> error; ///< why it did not start
    bool operator==(const ToolLaunched&) const = default;
};

/// The second write of a system-wide setting, beside the tool.
struct SystemPreferenceSet
{
    QString key;
    bool value = false;
    bool operator==(const SystemPreferenceSet&) const = default;
};

struct SystemPreferenceSynchronized
{
    bool operator==(const SystemPreferenceSynchronized&) const = default;
};

struct ChangeAnnounced
{
    QString name;
    bool operator==(const ChangeAnnounced&) const = default;
};

struct UrlOpened
{
    QString url;
    bool operator==(const UrlOpened&) const = default;
};

/// The program asked for another application to come forward.
struct ApplicationActivated
{
    ProcessIdentifier process = 0;
    QString name;
    bool operator==(const ApplicationActivated&) const = default;
};

/// Another application, or none that can be told, is in front now.
struct FrontApplicationChanged
{
    std::optional<QString> name;
    std::optional<QString> bundleIdentifier;
    bool operator==(const FrontApplicationChanged&) const = default;
};

enum class FileStep { directoryCreated, written, appended, writeFailed, appendFailed };
struct FileChanged
{
    FileStep step = FileStep::written;
    QString path;
    QByteArray content; ///< what was to be written or appended
    std::optional<QString> error;
    bool operator==(const FileChanged&) const = default;
};

struct SettingStored
{
    QString key;
    QJsonValue value{QJsonValue::Undefined}; ///< undefined after a removal
    bool operator==(const SettingStored&) const = default;
};

/// The program put a text on the clipboard.
struct PasteboardSet
{
    PasteboardText content;
    bool operator==(const PasteboardSet&) const = default;
};

struct ConsoleLine
{
    QString line;
    bool operator==(const ConsoleLine&) const = default;
};

struct LoginItemChanged
{
    bool enabled = false; ///< what was asked for
    std::optional<QString> refusal;
    bool operator==(const LoginItemChanged&) const = default;
};

struct ActivationPolicySet
{
    ActivationPolicy policy = ActivationPolicy::regular;
    bool operator==(const ActivationPolicySet&) const = default;
};

enum class OwnActivation { allWindows, ignoringOtherApps };
/// The program asked to come forward itself.
struct SelfActivated
{
    OwnActivation way = OwnActivation::allWindows;
    bool operator==(const SelfActivated&) const = default;
};

enum class WindowStep {
    created,
    setVisible,
    miniaturized,
    deminiaturized,
    madeKeyAndFront,
    orderedFrontRegardless,
    orderedOut
};
struct WindowChanged
{
    QString title;
    WindowStep step = WindowStep::created;
    bool operator==(const WindowChanged&) const = default;
};

/// A panel of the program was put at a place.
struct PanelPlaced
{
    QString title;
    Rect frame;
    bool operator==(const PanelPlaced&) const = default;
};

/// A panel of the program begins to come up or to vanish.
struct PanelFaded
{
    QString title;
    double alpha = 0; ///< where the fade ends
    std::chrono::milliseconds duration{};
    bool operator==(const PanelFaded&) const = default;
};

enum class ShellPatch { unhandledKeysSilenced, minimizeRequestsLetThrough };
struct ShellPatched
{
    ShellPatch patch = ShellPatch::unhandledKeysSilenced;
    bool operator==(const ShellPatched&) const = default;
};

struct Terminated
{
    bool operator==(const Terminated&) const = default;
};

struct SoundPlayed
{
    SoundId sound = 0;
    std::optional<QString> file; ///< absent for a sound of the system's own
    bool operator==(const SoundPlayed&) const = default;
};

/// One tap of the touchpad's motor.
struct HapticTapped
{
    bool operator==(const HapticTapped&) const = default;
};

/// The one-line notice of the last firing; recorded by whoever watches the program's published state.
struct NoticeChanged
{
    std::optional<QString> text; ///< absent: cleared
    bool operator==(const NoticeChanged&) const = default;
};

enum class KeycapStep { pressed, released };
/// The drawn keyboard shows a key as pressed, or no longer; recorded as `NoticeChanged`.
struct KeycapAnimated
{
    QString keyId;
    KeycapStep step = KeycapStep::pressed;
    bool operator==(const KeycapAnimated&) const = default;
};

/// Any other published state of the program; recorded as `NoticeChanged`.
struct StateChanged
{
    QString name;
    QJsonValue value;
    bool operator==(const StateChanged&) const = default;
};

/// A port was called against its own rules, for instance off the main thread. No run may contain one.
struct PortMisused
{
    QString call;
    QString rule;
    bool operator==(const PortMisused&) const = default;
};

/// Everything that can be seen from outside the program.
using EffectKind =
    std::variant<EventDelivered, HidValueDelivered, EventReceived, TapChanged, MonitorChanged, HidManagerChanged,
        ConsumedKeysPublished, KeyPosted, ClickPosted, PermissionPrompted, ScriptRun, ToolLaunched, SystemPreferenceSet,
        SystemPreferenceSynchronized, ChangeAnnounced, UrlOpened, ApplicationActivated, FrontApplicationChanged,
        FileChanged, SettingStored, PasteboardSet, ConsoleLine, LoginItemChanged, ActivationPolicySet, SelfActivated,
        WindowChanged, PanelPlaced, PanelFaded, ShellPatched, Terminated, SoundPlayed, HapticTapped, NoticeChanged,
        KeycapAnimated, StateChanged, SystemKeyPosted, LoginWindowAsked, AppleMenuPressed, WindowAttributeSet,
        WindowButtonPressed, ApplicationOpened, PathOpened, ApplicationForceQuit, ProcessKilled, PortMisused>;

struct Effect
{
    VirtualTime at{};
    EffectKind what;
};

} // namespace tarvin::simulated
