#pragma once

#include <QString>
#include <QStringList>

namespace tarvin::desktop {

/// Hands addresses and files to whatever handles them, by the tool that the session brings for it.
class UrlOpener
{
public:
    /// Starts the handler and returns without waiting for it. Takes milliseconds, so not for the main thread; may be
    /// called from any thread.
    /// @param url an address, or the path of a file
    /// @return false if no tool could be started
    [[nodiscard]] static bool open(const QString& url);
};

} // namespace tarvin::desktop
