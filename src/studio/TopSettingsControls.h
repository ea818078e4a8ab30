#pragma once

#include "studio/StudioCollaborators.h"

#include <QWidget>

namespace tarvin {

class LabelledSwitch;

/// The row above the keyboard: what the colours mean, the switches of the two portions, settings and defaults.
class TopSettingsControls : public QWidget
{
    Q_OBJECT

public:
    static constexpr int rowHeight = 28;

    explicit TopSettingsControls(const StudioCollaborators& collaborators, QWidget* parent = nullptr);

    [[nodiscard]] LabelledSwitch& functionKeysToggle() const { return *m_functionKeys; }
    [[nodiscard]] LabelledSwitch& otherKeysToggle() const { return *m_otherKeys; }

Q_SIGNALS:
    void settingsRequested();

private:
    void followSwitches();
    void restoreDefaults();

    StudioCollaborators m_with;
    LabelledSwitch* m_functionKeys;
    LabelledSwitch* m_otherKeys;
};

} // namespace tarvin
