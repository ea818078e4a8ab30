#pragma once

#include "platform/ports/Script.h"

#include <QStringList>

#include <functional>

namespace tarvin::desktop {

/// The meaning of the scripts on a Linux desktop. A script that is the second road to something the first road has done
/// is silent and succeeds: keys are pressed by posting them, volume and players follow the system's own keys, power is
/// asked for as a command, the login item is the autostart entry.
class LinuxScripts : public Scripts
{
public:
    /// What other parts of the platform do for a script. Called in the background; a missing one stays silent.
    struct Means
    {
        /// @return nothing where it could not be done and the user has been told so
        std::function<std::optional<ScriptResult>()> toggleMicrophone;
        std::function<void()> activateFileManager;
    };

    /// @param pageCandidates where the page on granting access may lie, the first that exists is shown
    LinuxScripts(QStringList pageCandidates, Means means);

    /// The places of the page for a program at this path: installed, unpacked, or in its build folder.
    [[nodiscard]] static QStringList accessPageCandidates(const QString& executable);

    [[nodiscard]] std::optional<ScriptResult> run(const Script& script) override;

private:
    [[nodiscard]] ScriptResult openAccessPage() const;

    const QStringList m_pageCandidates;
    const Means m_means;
};

} // namespace tarvin::desktop
