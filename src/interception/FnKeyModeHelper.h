#pragma once

#include <QObject>

namespace tarvin {

class Console;
class FunctionKeySetting;

/// The system's setting that decides whether the top row sends F1 to F12 or its printed functions. Where the platform
/// has no such setting it reads as off and only the published flag follows. Calls block until the system has
/// answered. Main thread only.
class FnKeyModeHelper : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isDedicatedKeyMode READ isDedicatedKeyMode NOTIFY dedicatedKeyModeChanged)

public:
    /// Reads the state that the setting has now.
    FnKeyModeHelper(FunctionKeySetting& setting, Console& console);

    /// True when the top row sends plain function keys, as far as this object knows.
    [[nodiscard]] bool isDedicatedKeyMode() const { return m_isDedicatedKeyMode; }

    /// Asks the system; the published flag stays as it is. False also when the answer can't be had.
    [[nodiscard]] bool readCurrentState();
    /// Turning the mode off is the same as restoring the factory value.
    void setDedicatedKeyMode(bool dedicated);
    /// Writes the factory value, whatever failed on the way.
    void restoreAppleDefaults();

Q_SIGNALS:
    void dedicatedKeyModeChanged();

private:
    void setPublishedMode(bool dedicated);
    void writeThroughPreferences(bool dedicated);

    FunctionKeySetting& m_setting;
    Console& m_console;
    bool m_isDedicatedKeyMode = false;
};

} // namespace tarvin
