#pragma once

namespace tarvin {

/// Tells assistive technology what the picker's own controls are: radio buttons in lists, and headings that fold. May
/// be called again; main thread only.
void installPickerAccessibility();

} // namespace tarvin
