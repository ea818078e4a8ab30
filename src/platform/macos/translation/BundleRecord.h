#pragma once

#include "platform/ports/ApplicationFolders.h"

#include <QStringView>

#include <optional>

namespace tarvin::macos {

/// What a bundle says of itself.
struct BundleRecord
{
    QString path;
    std::optional<QString> bundleIdentifier;
    std::optional<QString> displayName;
    std::optional<QString> bundleName;
};

/// The keys under which it says so.
inline constexpr const char* bundleDisplayNameKey = "CFBundleDisplayName";
inline constexpr const char* bundleNameKey = "CFBundleName";
inline constexpr const char* bundleIconKey = "CFBundleIconFile";

/// How the names of application bundles end, without the dot.
inline constexpr QStringView applicationSuffix = u"app";

/// Whether the path has the name of an application.
[[nodiscard]] bool isApplicationPath(const QString& path);

/// Where the system keeps applications. Without a slash at the end.
[[nodiscard]] QString applicationFolderPath(ApplicationFolder folder, const QString& homeDirectory);

/// The icon is that of the bundle itself.
[[nodiscard]] ApplicationBundle applicationBundleOf(const BundleRecord& record);

/// The file of a bundle's icon.
/// @param iconName as the bundle has it; the suffix may be left out there
[[nodiscard]] QString iconFilePath(const QString& bundlePath, const QString& iconName);

} // namespace tarvin::macos
