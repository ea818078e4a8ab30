#pragma once

namespace tarvin {

class Permission;
class Scheduler;
class Scripts;

/// The user's permission to consume key events, and the ways to get it. Main thread only.
class AccessibilityHelper
{
public:
    AccessibilityHelper(Permission& permission, Scripts& scripts, Scheduler& scheduler);

    [[nodiscard]] bool isProcessTrusted() const;
    /// Lets the system ask the user, if the program is not trusted yet.
    void requestPermission();
    /// Asks like `requestPermission` and opens the settings on the page where the permission is given. Returns at
    /// once; a failure is not reported.
    void openAccessibilitySettings();

private:
    Permission& m_permission;
    Scripts& m_scripts;
    Scheduler& m_scheduler;
};

} // namespace tarvin
