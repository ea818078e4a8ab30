#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <cstdint>
#include <optional>

namespace tarvin {

/// Where applications are installed, in the order in which they are searched. A platform that keeps them all in one
/// place has them in the first.
enum class ApplicationFolder : std::uint8_t {
    applications, ///< for all users
    systemApplications, ///< that came with the system
    systemUtilities, ///< the system's tools
    userApplications, ///< the user's own
};

inline constexpr std::array allApplicationFolders = {ApplicationFolder::applications,
    ApplicationFolder::systemApplications, ApplicationFolder::systemUtilities, ApplicationFolder::userApplications};

/// One application as it lies there. Nothing is worked out: names may be missing or empty.
struct ApplicationBundle
{
    QString path;
    std::optional<QString> bundleIdentifier{};
    std::optional<QString> displayName{};
    std::optional<QString> bundleName{};
    QString icon{}; ///< in the platform's words: the name of a themed icon, or the path of what has the icon
    friend bool operator==(const ApplicationBundle&, const ApplicationBundle&) = default;
};

/// Where a file dialog for applications begins, and what it offers.
struct ApplicationBrowsing
{
    QString startFolder;
    QString suffix; ///< of the files, without the dot
    friend bool operator==(const ApplicationBrowsing&, const ApplicationBrowsing&) = default;
};

/// What is installed, read afresh at each call. May be called from any thread, and from several at once; slow.
class ApplicationFolders
{
public:
    virtual ~ApplicationFolders() = default;
    /// The folder's applications in its own order, those of subfolders not included. Empty for a folder that can't be
    /// read.
    [[nodiscard]] virtual QList<ApplicationBundle> contents(ApplicationFolder folder) const = 0;
    /// What the user pointed at; absent if it is no application.
    [[nodiscard]] virtual std::optional<ApplicationBundle> bundleAt(const QString& path) const = 0;
    /// The files that hold a picture of the icon, best first; some may be of a kind that the caller can't read.
    /// @param icon as a bundle names it
    /// @param pixels the side that is wanted
    [[nodiscard]] virtual QStringList pictureFiles(const QString& icon, int pixels) const = 0;
    [[nodiscard]] virtual ApplicationBrowsing browsing() const = 0;
};

} // namespace tarvin
