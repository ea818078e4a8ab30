#pragma once

#include <QString>

namespace tarvin {

/// An application that the user can choose.
struct InstalledApplication
{
    QString name; ///< as shown
    QString bundleIdentifier;
    QString path;
    QString icon; ///< see `ApplicationBundle`
    friend bool operator==(const InstalledApplication&, const InstalledApplication&) = default;
};

} // namespace tarvin
