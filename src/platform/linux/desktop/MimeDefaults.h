#pragma once

#include <QString>
#include <QStringList>

#include <unordered_map>
#include <vector>

namespace tarvin::desktop {

/// Which applications the user, the desktop and the distribution chose for a content type or an address scheme, from
/// the group "Default Applications" of the `mimeapps.list` files.
class MimeDefaults
{
public:
    MimeDefaults() = default;
    /// @param files the contents of the files, highest precedence first
    explicit MimeDefaults(const std::vector<QByteArray>& files);

    /// The chosen entries' ids without suffix, best first; empty if nobody chose.
    [[nodiscard]] QStringList applicationsFor(const QString& contentType) const;

private:
    std::unordered_map<QString, QStringList> m_applications;
};

/// The paths where such files may lie, highest precedence first.
/// @param configDirectories,applicationDirectories as the base directory rules order them, the user's own first
/// @param currentDesktop the value of `XDG_CURRENT_DESKTOP`: names that are tried as prefix of the file name
[[nodiscard]] QStringList mimeAppsPaths(
    const QStringList& configDirectories, const QStringList& applicationDirectories, const QString& currentDesktop);

} // namespace tarvin::desktop
