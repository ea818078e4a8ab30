#include "platform/macos/MacDisplayBrightness.h"

#include "platform/macos/translation/BrightnessReader.h"

#import <CoreGraphics/CoreGraphics.h>

#include <dlfcn.h>

namespace tarvin::macos {

namespace {

using Reader = int (*)(CGDirectDisplayID display, float* brightness);

/// Null where the system has none. The framework stays loaded: others of the process may have begun to use it.
Reader loadReader()
{
    void* const framework = dlopen(brightnessFramework, RTLD_LAZY);
    return framework ? reinterpret_cast<Reader>(dlsym(framework, brightnessFunction)) : nullptr;
}

} // namespace

std::optional<double> MacDisplayBrightness::current() const
{
    static const Reader reader = loadReader();
    if (!reader)
        return std::nullopt;
    float brightness = brightnessNotRead;
    // What it returns is not documented; what it wrote tells enough.
    (void)reader(CGMainDisplayID(), &brightness);
    return brightnessOf(brightness);
}

} // namespace tarvin::macos
