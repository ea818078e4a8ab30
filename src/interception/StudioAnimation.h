#pragma once

#include "interception/KeyFeedback.h"

#include <QStringView>

namespace tarvin {

class AppShell;
class StudioPresence;

/// Passes presses on to the drawn keyboard while the user can see it: the program is active and the Studio open.
class StudioAnimation
{
public:
    StudioAnimation(const AppShell& shell, const StudioPresence& studio, KeyFeedback& feedback);

    /// @param keyId lives as long as the program, as all identifiers of keycaps do
    void press(QStringView keyId, PressSound sound);
    void release(QStringView keyId);

private:
    [[nodiscard]] bool isWatched() const;

    const AppShell& m_shell;
    const StudioPresence& m_studio;
    KeyFeedback& m_feedback;
};

} // namespace tarvin
