#pragma once

#include "platform/ports/InputTaps.h"

namespace tarvin {

class KeyFunnel;

/// What happens to a raw hardware value. Nothing can be consumed here; the path is often the first to tell of a press
/// and goes on firing where no tap could be had.
class HidRouting
{
public:
    explicit HidRouting(KeyFunnel& funnel);

    /// The callback of the manager: values that are neither a press nor a release are dropped.
    void handleHidValue(const HidValue& value);
    void handleHIDKey(std::uint32_t page, std::uint32_t usage, bool isDown);

private:
    KeyFunnel& m_funnel;
};

} // namespace tarvin
