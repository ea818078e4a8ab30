#pragma once

#include "platform/ports/ApplicationFolders.h"
#include "studio/applications/InstalledApplication.h"

#include <QList>

#include <optional>

namespace tarvin {

/// What counts when a bundle has no name of its own: the file name without its suffix.
enum class EmptyNames : std::uint8_t {
    accepted, ///< a name that is there counts, even an empty one
    skipped,
};

/// How an application is called: its display name, its bundle's name, else that of the file.
[[nodiscard]] QString applicationName(const ApplicationBundle& bundle, EmptyNames emptyNames);

/// What the sheet for a new profile offers: the three folders that all users share, sorted by name in the user's
/// language. An application found twice is listed twice. For a background thread.
[[nodiscard]] QList<InstalledApplication> applicationsForProfiles(const ApplicationFolders& folders);

/// What the card for opening an application offers: all four folders, each application once, from the first folder
/// that has it, sorted likewise. For a background thread.
[[nodiscard]] QList<InstalledApplication> applicationsToOpen(const ApplicationFolders& folders);

/// The application that the user pointed at, absent without a bundle identifier.
[[nodiscard]] std::optional<InstalledApplication> applicationAt(const ApplicationFolders& folders, const QString& path);

} // namespace tarvin
