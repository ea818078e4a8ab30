#pragma once

#include "model/ConfiguredAction.h"
#include "model/FKey.h"

#include <QString>

#include <map>

namespace tarvin {

/// What one profile says about its keys; a key that behaves as the factory made it has no entry.
using KeyMappings = std::map<FKey, ConfiguredAction>;

/// Every profile's mappings under the profile's `id`.
using ProfileMappings = std::map<QString, KeyMappings>;

} // namespace tarvin
