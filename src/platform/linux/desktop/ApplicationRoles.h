#pragma once

#include <QString>
#include <QStringList>

#include <unordered_map>

namespace tarvin::desktop {

class DesktopEntryCatalog;
class MimeDefaults;

/// The terminal emulator's well-known identifier; terminals know other keystrokes for copy and paste.
inline constexpr QStringView terminalRole = u"com.apple.Terminal";

/// Which installed applications stand in for those with a well-known identifier: the default web browser for
/// "com.apple.Safari", any terminal emulator for "com.apple.Terminal" and so on; the table is in the source file.
class ApplicationRoles
{
public:
    ApplicationRoles() = default;
    /// @param browserVariable the value of the environment variable `BROWSER`, asked when no other default is set
    ApplicationRoles(const DesktopEntryCatalog& catalog, const MimeDefaults& defaults, const QString& browserVariable);

    /// The well-known identifiers of the roles that the application fills, in the order of the table.
    [[nodiscard]] QStringList wellKnownIdentifiersOf(const QString& id) const { return valueOf(m_identifiersOf, id); }

    /// The applications that fill a role, the one to launch first; empty for an unknown role.
    [[nodiscard]] QStringList applicationsFilling(const QString& wellKnownIdentifier) const
    {
        return valueOf(m_applicationsOf, wellKnownIdentifier);
    }

private:
    using Lists = std::unordered_map<QString, QStringList>;

    [[nodiscard]] static QStringList valueOf(const Lists& lists, const QString& key)
    {
        const auto found = lists.find(key);
        return found == lists.end() ? QStringList() : found->second;
    }

    Lists m_applicationsOf;
    Lists m_identifiersOf;
};

} // namespace tarvin::desktop
