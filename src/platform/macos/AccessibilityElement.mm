#include "platform/macos/AccessibilityElement.h"

#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/AccessibilityOutcome.h"

#include <utility>

namespace tarvin::macos {

static_assert(succeeded(kAXErrorSuccess));

namespace {

/// Reads a boxed structure. The value is borrowed.
template <typename Structure> std::optional<Structure> unboxed(CFTypeRef value, AXValueType type)
{
    Structure structure{};
    const bool isRead = value && AXValueGetValue(static_cast<AXValueRef>(value), type, &structure);
    return isRead ? std::optional(structure) : std::nullopt;
}

/// Bounds what a hung application can cost: every call waits for the other side, and nothing else happens meanwhile on
/// the thread that decides about keys. Long enough for a window on its way to the full screen, whose answer comes late.
void boundWaiting()
{
    constexpr float seconds = 2;
    const CfHandle everything(AXUIElementCreateSystemWide());
    if (everything)
        (void)AXUIElementSetMessagingTimeout(everything.get(), seconds);
}

} // namespace

AccessibilityElement::AccessibilityElement(CfHandle<AXUIElementRef> element)
    : m_element(std::move(element))
{ }

AccessibilityElement AccessibilityElement::ofApplication(ProcessIdentifier process)
{
    static const bool isBounded = (boundWaiting(), true);
    (void)isBounded;
    return AccessibilityElement(CfHandle(AXUIElementCreateApplication(process)));
}

std::optional<AccessibilityElement> AccessibilityElement::element(const char* attribute) const
{
    const CfHandle<CFTypeRef> value = copyValue(attribute, AXUIElementGetTypeID());
    if (!value)
        return std::nullopt;
    return AccessibilityElement(CfHandle<AXUIElementRef>::retained(static_cast<AXUIElementRef>(value.get())));
}

std::vector<AccessibilityElement> AccessibilityElement::elements(const char* attribute) const
{
    const CfHandle<CFTypeRef> value = copyValue(attribute, CFArrayGetTypeID());
    std::vector<AccessibilityElement> elements;
    if (!value)
        return elements;
    const auto array = static_cast<CFArrayRef>(value.get());
    for (CFIndex index = 0; index < CFArrayGetCount(array); ++index) {
        // The array keeps its own reference and goes at the end of this function.
        const CFTypeRef entry = CFArrayGetValueAtIndex(array, index);
        if (entry && CFGetTypeID(entry) == AXUIElementGetTypeID())
            elements.push_back(
                AccessibilityElement(CfHandle<AXUIElementRef>::retained(static_cast<AXUIElementRef>(entry))));
    }
    return elements;
}

std::optional<QString> AccessibilityElement::text(const char* attribute) const
{
    const CfHandle<CFTypeRef> value = copyValue(attribute, CFStringGetTypeID());
    return value ? optionalString((__bridge NSString*)static_cast<CFStringRef>(value.get())) : std::nullopt;
}

std::optional<bool> AccessibilityElement::truth(const char* attribute) const
{
    const CfHandle<CFTypeRef> value = copyValue(attribute, CFBooleanGetTypeID());
    if (!value)
        return std::nullopt;
    return CFBooleanGetValue(static_cast<CFBooleanRef>(value.get())) != 0;
}

std::optional<Point> AccessibilityElement::point(const char* attribute) const
{
    const CfHandle<CFTypeRef> value = copyValue(attribute, AXValueGetTypeID());
    const auto point = unboxed<CGPoint>(value.get(), kAXValueCGPointType);
    return point ? std::optional(Point{.x = point->x, .y = point->y}) : std::nullopt;
}

std::optional<Size> AccessibilityElement::size(const char* attribute) const
{
    const CfHandle<CFTypeRef> value = copyValue(attribute, AXValueGetTypeID());
    const auto size = unboxed<CGSize>(value.get(), kAXValueCGSizeType);
    return size ? std::optional(Size{.width = size->width, .height = size->height}) : std::nullopt;
}

bool AccessibilityElement::setTruth(const char* attribute, bool value) const
{
    return setValue(attribute, value ? kCFBooleanTrue : kCFBooleanFalse);
}

bool AccessibilityElement::setPoint(const char* attribute, Point point) const
{
    const CGPoint structure = CGPointMake(point.x, point.y);
    const CfHandle value(AXValueCreate(kAXValueCGPointType, &structure));
    return value && setValue(attribute, value.get());
}

bool AccessibilityElement::setSize(const char* attribute, Size size) const
{
    const CGSize structure = CGSizeMake(size.width, size.height);
    const CfHandle value(AXValueCreate(kAXValueCGSizeType, &structure));
    return value && setValue(attribute, value.get());
}

bool AccessibilityElement::perform(const char* action) const
{
    if (!m_element)
        return false;
    NSString* const name = nsString(action);
    return succeeded(AXUIElementPerformAction(m_element.get(), (__bridge CFStringRef)name));
}

CfHandle<CFTypeRef> AccessibilityElement::copyValue(const char* attribute, CFTypeID kind) const
{
    if (!m_element)
        return {};
    NSString* const name = nsString(attribute);
    CFTypeRef copied = nullptr;
    const AXError error = AXUIElementCopyAttributeValue(m_element.get(), (__bridge CFStringRef)name, &copied);
    CfHandle value(copied);
    const bool isUsable = succeeded(error) && value && CFGetTypeID(value.get()) == kind;
    return isUsable ? std::move(value) : CfHandle<CFTypeRef>();
}

bool AccessibilityElement::setValue(const char* attribute, CFTypeRef value) const
{
    if (!m_element)
        return false;
    NSString* const name = nsString(attribute);
    return succeeded(AXUIElementSetAttributeValue(m_element.get(), (__bridge CFStringRef)name, value));
}

} // namespace tarvin::macos
