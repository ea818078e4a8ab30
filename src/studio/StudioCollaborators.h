#pragma once

#include "model/FKey.h"

#include <functional>

class QWidget;

namespace tarvin {

class AccessibilityHelper;
class BackgroundModeManager;
class BatteryHelper;
class EventTapManager;
class FnKeyModeHelper;
class KeyProfile;
class KeyboardTactileEngine;

/// What the Studio shows and changes. All outlive the window.
struct StudioCollaborators
{
    KeyProfile& keyProfile;
    EventTapManager& eventTapManager;
    FnKeyModeHelper& fnKeyModeHelper;
    BatteryHelper& batteryHelper;
    KeyboardTactileEngine& tactileEngine;
    BackgroundModeManager& backgroundModeManager;
    AccessibilityHelper& accessibilityHelper;
    std::function<void()> openKeyboardSettings; ///< of the system
};

/// What opens from the Studio and is made elsewhere. Where one is missing its place stays empty.
struct StudioSurfaces
{
    using Close = std::function<void()>;

    /// The pane at the right for the key that is selected; the window owns it and gives it its height. Its width is
    /// that of its size hint. Made anew for each selection.
    std::function<QWidget*(FKey key, Close close)> makeActionPicker;
    std::function<void(QWidget& window)> showSettings;
    std::function<void(QWidget& window)> showAddApplication;
};

} // namespace tarvin
