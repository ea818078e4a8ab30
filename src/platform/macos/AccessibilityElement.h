#pragma once

#include "platform/macos/CfHandle.h"
#include "platform/ports/Geometry.h"
#include "platform/ports/Workspace.h"

#import <ApplicationServices/ApplicationServices.h>

#include <QString>

#include <optional>
#include <vector>

namespace tarvin::macos {

/// One element of another application, as the Accessibility interface shows it; owns its reference. Every reading is
/// nothing, and every writing false, where the element has gone, lacks the attribute, holds another kind of value, or
/// the program lacks the permission. Main thread only; each call may wait for the other application, for two seconds at
/// most.
class AccessibilityElement
{
public:
    [[nodiscard]] static AccessibilityElement ofApplication(ProcessIdentifier process);

    [[nodiscard]] std::optional<AccessibilityElement> element(const char* attribute) const;
    /// Empty also where there are none.
    [[nodiscard]] std::vector<AccessibilityElement> elements(const char* attribute) const;
    [[nodiscard]] std::optional<QString> text(const char* attribute) const;
    [[nodiscard]] std::optional<bool> truth(const char* attribute) const;
    [[nodiscard]] std::optional<Point> point(const char* attribute) const;
    [[nodiscard]] std::optional<Size> size(const char* attribute) const;

    bool setTruth(const char* attribute, bool value) const;
    bool setPoint(const char* attribute, Point point) const;
    bool setSize(const char* attribute, Size size) const;
    bool perform(const char* action) const;

private:
    explicit AccessibilityElement(CfHandle<AXUIElementRef> element);
    [[nodiscard]] CfHandle<CFTypeRef> copyValue(const char* attribute, CFTypeID kind) const;
    bool setValue(const char* attribute, CFTypeRef value) const;

    CfHandle<AXUIElementRef> m_element;
};

} // namespace tarvin::macos
