#pragma once

#include "model/FKey.h"
#include "model/KeyAction.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/InputEvent.h"
#include "platform/ports/Scheduler.h"
#include "platform/ports/Screens.h"
#include "platform/simulated/Effect.h"
#include "platform/simulated/SimulatedApplicationControl.h"
#include "platform/simulated/SimulatedFiles.h"
#include "platform/simulated/SimulatedWindowControl.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>
#include <vector>

namespace tarvin::simulate {

/// A text, null, or left as it is.
using NullableText = std::optional<std::optional<QString>>;

// What sets the stage. Until the program starts nobody is told of it.

/// The program as a process; fields that are absent keep their values.
struct DescribeProcess
{
    std::optional<QStringList> arguments{}; ///< after the executable
    std::optional<QString> name{};
    std::optional<QString> bundlePath{};
    NullableText bundleName{};
    NullableText bundleIdentifier{};
    std::optional<bool> loginItem{};
};
struct SetUptime
{
    double seconds = 0;
};
struct SetClock
{
    Scheduler::WallClock now{};
};
struct PutFile
{
    QString path; ///< relative to the program's own folder, or absolute
    QByteArray content;
};
struct RemoveFile
{
    QString path;
};
struct FailFile
{
    QString path;
    simulated::FileOperation operation{};
    std::optional<QString> error{}; ///< absent: succeeds again
    simulated::FailureSpan span{};
};
/// Enters a record into the mapping file.
struct MapKey
{
    QString profile;
    FKey key{};
    QJsonObject record{};
};
struct StoreSetting
{
    QString key;
    QJsonValue value{}; ///< null takes the setting away
};
struct SetPermission
{
    bool granted = true;
};
struct SetTapAvailable
{
    TapLocation location{};
    bool available = true;
};
struct SetGlobalMonitorAvailable
{
    bool available = true;
};
struct SetHidManagerOpens
{
    bool opens = true;
};
struct SetPostingPossible
{
    std::optional<KeyCode> keyCode{}; ///< absent: clicks
    bool possible = true;
};
struct AnswerScripts
{
    bool canBuild = true;
    std::optional<QString> error{};
    std::optional<QString> text{};
};
struct ArrangeFunctionKeyTool
{
    std::optional<bool> available{};
    std::optional<QString> stored{};
    NullableText launchError{};
};
struct ArrangeLoginItem
{
    std::optional<bool> enabled{};
    NullableText refusal{};
};
struct RunApplication
{
    std::optional<ProcessIdentifier> process{};
    QString name;
    QStringList bundleIdentifiers{};
    ActivationPolicy policy{};
    bool isHidden = false;
    bool isTerminated = false;
    bool inFront = false;
    NullableText executable{};
    std::optional<simulated::ForceQuitAnswer> forceQuit{};
};
struct InstallApplication
{
    simulated::InstalledApplication application{};
};
struct QuitApplication
{
    QString application; ///< identifier or name
};
enum class FrontAnnouncement { named, unnamed, never };
struct BringToFront
{
    std::optional<QString> application{}; ///< identifier or name; absent: none
    FrontAnnouncement announcement{};
};
struct ShowWindows
{
    std::vector<OnScreenWindow> windows{};
};
/// The windows that the program can read and move.
struct ShowAccessibleWindows
{
    std::vector<simulated::AccessibleWindow> windows{};
};
struct MovePointer
{
    Point position{};
};
struct ArrangeScreens
{
    std::vector<Screen> screens{};
    std::optional<std::size_t> main{}; ///< the place in the list; absent: the first
};
struct SetBrightness
{
    std::optional<double> brightness{}; ///< absent: the display does not tell
};
struct ArrangeAppleMenu
{
    std::optional<QStringList> titles{}; ///< absent: it can't be read
};
struct ArrangeSystemTools
{
    std::optional<QString> launchError{};
};
/// The user who is logged in; fields that are absent keep their values.
struct DescribeUser
{
    std::optional<QString> homeDirectory{};
    std::optional<std::chrono::seconds> utcOffset{};
};
/// Another application copies something.
struct FillClipboard
{
    std::optional<QString> text{}; ///< absent: it has no text form
    bool isSecret = false;
    simulated::VirtualTime answersAfter{}; ///< how long its owner takes to hand it over
};
struct SelectOutput
{
    std::optional<QStringList> kinds{}; ///< absent: all
};

// What happens while the program runs.

struct StartProgram
{ };
/// How a key reports its press.
enum class PressForm {
    plain, ///< as the key itself
    printed, ///< as the function that is printed on it
};
struct PressKey
{
    std::variant<FKey, KeyCode> key{};
    PressForm form{};
    EventFlags flags{};
    simulated::VirtualTime hold{};
};
struct DeliverEvent
{
    simulated::InputPath path{};
    InputEvent event{};
};
struct DeliverHidValue
{
    HidValue value{};
};
enum class DisableReason { timeout, userInput, silent };
struct DisableTap
{
    TapLocation location{};
    DisableReason reason{};
};
/// Through the dispatcher of records, as a key does.
struct ExecuteRecord
{
    QJsonObject record{};
};
/// Through the dispatcher of bare actions, as a step of a chain does.
struct ExecuteAction
{
    KeyAction action{};
};
struct FlipSwitches
{
    std::optional<bool> interception{};
    std::optional<bool> functionKeys{};
    std::optional<bool> otherKeys{};
};
struct EditProfile
{
    QString id;
};
struct AddProfile
{
    QString name;
    QString bundleIdentifier;
    QString icon;
};
struct EditKey
{
    FKey key{};
    QJsonObject record{};
};
struct ResetKey
{
    FKey key{};
};
/// The user clicks a row of the clipboard panel.
struct PasteClip
{
    qsizetype row = 1; ///< from 1, among the rows that the search leaves
    QString search{};
};
struct TypeNote
{
    QString text; ///< the whole note afterwards
};
struct ChooseRingItem
{
    QString title;
};
/// The user presses Esc or the button that closes.
struct ClosePanel
{
    QString title;
};
struct ReopenProgram
{ };
struct OpenUrls
{
    QStringList urls{};
};
struct CloseWindow
{
    QString title;
};
struct TerminateProgram
{ };
struct AdvanceTime
{
    simulated::VirtualTime by{};
};
struct EndRun
{ };

using Instruction = std::variant<DescribeProcess, SetUptime, SetClock, PutFile, RemoveFile, FailFile, MapKey,
    StoreSetting, SetPermission, SetTapAvailable, SetGlobalMonitorAvailable, SetHidManagerOpens, SetPostingPossible,
    AnswerScripts, ArrangeFunctionKeyTool, ArrangeLoginItem, RunApplication, QuitApplication, BringToFront, ShowWindows,
    InstallApplication, ShowAccessibleWindows, MovePointer, ArrangeScreens, SetBrightness, ArrangeAppleMenu,
    ArrangeSystemTools, DescribeUser, FillClipboard, SelectOutput, StartProgram, PressKey, DeliverEvent,
    DeliverHidValue, DisableTap, ExecuteRecord, ExecuteAction, FlipSwitches, EditProfile, AddProfile, EditKey, ResetKey,
    PasteClip, TypeNote, ChooseRingItem, ClosePanel, ReopenProgram, OpenUrls, CloseWindow, TerminateProgram,
    AdvanceTime, EndRun>;

/// One line of a scenario.
struct ScenarioLine
{
    int number = 0; ///< from 1
    simulated::VirtualTime at{};
    bool needsProgram = false; ///< the program is running by then
    Instruction instruction{};
};

} // namespace tarvin::simulate
