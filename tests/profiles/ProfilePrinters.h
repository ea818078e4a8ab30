#pragma once

#include "model/ModelPrinters.h"
#include "profiles/AppProfile.h"

#include <ostream>

namespace tarvin {

inline void PrintTo(const AppProfile& profile, std::ostream* stream)
{
    PrintTo(toJson(profile), stream);
}

} // namespace tarvin
