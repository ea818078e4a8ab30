#include "interception/StudioAnimation.h"

#include "interception/StudioPresence.h"
#include "platform/ports/AppShell.h"

namespace tarvin {

namespace {

/// A text that shares the characters, which are static: a keystroke allocates nothing.
QString sharedText(QStringView staticText)
{
    return QString::fromRawData(staticText.data(), staticText.size());
}

} // namespace

StudioAnimation::StudioAnimation(const AppShell& shell, const StudioPresence& studio, KeyFeedback& feedback)
    : m_shell(shell)
    , m_studio(studio)
    , m_feedback(feedback)
{ }

void StudioAnimation::press(QStringView keyId, PressSound sound)
{
    if (isWatched())
        m_feedback.triggerKeyPress(sharedText(keyId), sound);
}

void StudioAnimation::release(QStringView keyId)
{
    if (isWatched())
        m_feedback.releaseKey(sharedText(keyId));
}

bool StudioAnimation::isWatched() const
{
    return m_shell.isActive() && m_studio.isStudioWindowVisible();
}

} // namespace tarvin
