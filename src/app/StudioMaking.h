#pragma once

#include "app/StudioPicker.h"
#include "app/StudioSheets.h"

#include <functional>
#include <memory>

namespace tarvin {

class SharedObjects;
class StudioWindow;

/// What opens from the Studio. What is open goes with this object.
class StudioEditors
{
public:
    /// @param platform, objects outlive this
    StudioEditors(const Platform& platform, SharedObjects& objects)
        : m_picker(platform, objects)
        , m_sheets(platform, objects)
    { }

    /// Not to be called after this object has gone.
    [[nodiscard]] StudioSurfaces surfaces();

private:
    StudioPicker m_picker;
    StudioSheets m_sheets;
};

/// Makes the Studio, hidden, of the program's objects, which outlive it.
/// @param openKeyboardSettings shows the settings of the system
[[nodiscard]] std::unique_ptr<StudioWindow> makeStudioWindow(
    SharedObjects& objects, StudioSurfaces surfaces, std::function<void()> openKeyboardSettings);

} // namespace tarvin
