#pragma once

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace tarvin::desktop {

/// What a start of the program asks of the instance that runs already.
struct InstanceRequest
{
    QStringList urls; ///< addresses to open; none means that the program itself is to come forward
    QByteArray startupId; ///< ties the window that comes up to the user's deed; empty if unknown

    friend bool operator==(const InstanceRequest&, const InstanceRequest&) = default;
};

/// The request of a command line. Arguments of the form `tarvin:…` are the addresses.
/// @param arguments the program first
/// @param startupId see `takeStartupId`
/// @return nothing for a start by the session at login, which asks nothing of an instance that runs
[[nodiscard]] std::optional<InstanceRequest> requestOfCommandLine(
    const QStringList& arguments, const QByteArray& startupId);

/// The id that the launcher put into the environment, taken out of it so that no child inherits it. To be called before
/// the application object is made, which takes it too.
[[nodiscard]] QByteArray takeStartupId();

/// One line of text and its end, for the socket between two instances.
[[nodiscard]] QByteArray toLine(const InstanceRequest& request);
/// @return nothing for a line that is no request
[[nodiscard]] std::optional<InstanceRequest> requestFromLine(const QByteArray& line);

} // namespace tarvin::desktop
