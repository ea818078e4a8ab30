#pragma once

#include <QStringView>

// What stands in for a text that the user has not written yet. A deployment may want others.

namespace tarvin {

/// Opened where no web address is stored, and what the field for one begins with.
inline constexpr QStringView defaultWebAddress = u"https://github.com";
/// What the field for a snippet begins with: whom to ask about the program.
inline constexpr QStringView defaultSnippet = u"support@tarvin.example";

} // namespace tarvin
