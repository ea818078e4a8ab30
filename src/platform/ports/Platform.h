#pragma once

namespace tarvin {

class AppShell;
class AppleMenu;
class ApplicationChooser;
class ApplicationControl;
class ApplicationFolders;
class Console;
class DisplayBrightness;
class EventPoster;
class Files;
class FunctionKeySetting;
class Haptics;
class InputTaps;
class KeyRecording;
class LoginItem;
class LoginWindow;
class Pasteboard;
class Permission;
class Pointer;
class PowerSources;
class Preferences;
class ProcessInfo;
class Scheduler;
class Screens;
class Scripts;
class Sounds;
class SystemCommands;
class SystemKeys;
class UserEnvironment;
class UuidGenerator;
class WindowControl;
class Workspace;

/// Every port of one platform, for the composition root alone to hand on. The platform outlives all who use it.
struct Platform
{
    Scheduler& scheduler;
    InputTaps& inputTaps;
    EventPoster& eventPoster;
    Pointer& pointer;
    Permission& permission;
    Workspace& workspace;
    Preferences& preferences;
    Files& files;
    Console& console;
    ProcessInfo& processInfo;
    Scripts& scripts;
    LoginItem& loginItem;
    FunctionKeySetting& functionKeySetting;
    AppShell& appShell;
    Sounds& sounds;
    Haptics& haptics;
    PowerSources& powerSources;
    UuidGenerator& uuids;
    SystemKeys& systemKeys;
    DisplayBrightness& displayBrightness;
    SystemCommands& systemCommands;
    LoginWindow& loginWindow;
    AppleMenu& appleMenu;
    WindowControl& windowControl;
    Screens& screens;
    ApplicationControl& applicationControl;
    Pasteboard& pasteboard;
    UserEnvironment& userEnvironment;
    KeyRecording& keyRecording;
    ApplicationFolders& applicationFolders;
    ApplicationChooser& applicationChooser;
};

} // namespace tarvin
