#pragma once

#include "platform/ports/ProcessInfo.h"
#include "platform/ports/Workspace.h"

#include <QString>

#include <optional>

namespace tarvin {

/// The program's identifier, also where its bundle does not tell it.
[[nodiscard]] inline QString ownIdentifierOrDefault(const ProcessInfo& processInfo)
{
    return processInfo.bundleIdentifier().value_or(u"com.velmor.Tarvin"_qs);
}

/// An application's own identifier; nothing for no application, or one without identifier.
[[nodiscard]] inline std::optional<QString> identifierOf(const std::optional<RunningApplication>& application)
{
    return application ? application->bundleIdentifier() : std::nullopt;
}

} // namespace tarvin
