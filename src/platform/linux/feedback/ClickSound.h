#pragma once

#include "platform/linux/feedback/PcmSound.h"

namespace tarvin::feedback {

/// The click of a key, computed: a short knock of two low tones under a breath of noise, 18 milliseconds long. The same
/// samples at every call.
[[nodiscard]] PcmSound clickSound();

} // namespace tarvin::feedback
