#pragma once

#include <QStringView>

namespace tarvin::desktop {

/// The program's own identifier on this desktop: the name of its desktop entry without suffix, its name on the session
/// bus, and what the workspace calls the program when one of its windows is in front.
inline constexpr QStringView applicationId = u"com.velmor.Tarvin";

/// Where the program's object sits on the session bus: the identifier with slashes for dots.
inline constexpr QStringView applicationObjectPath = u"/com/velmor/Tarvin";

inline constexpr QStringView applicationName = u"Tarvin";

/// The scheme of the addresses that open the Studio.
inline constexpr QStringView urlScheme = u"tarvin";

} // namespace tarvin::desktop
