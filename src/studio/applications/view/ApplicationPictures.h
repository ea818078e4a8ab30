#pragma once

#include "studio/applications/view/ApplicationIcons.h"

namespace tarvin {

class ApplicationFolders;

/// Reads the icons that the folders know the picture files of; what is no square stands in the middle of one.
/// @param folders outlive all readings
[[nodiscard]] ApplicationIcons::Read picturesOf(const ApplicationFolders& folders);

} // namespace tarvin
