#include "platform/macos/MacPowerSources.h"

#include "platform/macos/CfHandle.h"
#include "platform/macos/TextBridge.h"
#include "platform/macos/translation/PowerRecord.h"

#import <IOKit/ps/IOPowerSources.h>

namespace tarvin::macos {

namespace {

NSNumber* numberIn(NSDictionary* description, const char* key)
{
    const id value = description[nsString(key)];
    return [value isKindOfClass:NSNumber.class] ? value : nil;
}

PowerRecord recordOf(NSDictionary* description)
{
    PowerRecord record;
    if (NSNumber* const capacity = numberIn(description, powerCapacityKey))
        record.currentCapacity = capacity.longLongValue;
    if (NSNumber* const charging = numberIn(description, powerChargingKey))
        record.isCharging = charging.boolValue;
    return record;
}

} // namespace

std::optional<std::vector<PowerSource>> MacPowerSources::read() const
{
    const CfHandle<CFTypeRef> info(IOPSCopyPowerSourcesInfo());
    if (!info)
        return std::nullopt;
    const CfHandle<CFArrayRef> list(IOPSCopyPowerSourcesList(info.get()));
    if (!list)
        return std::nullopt;
    std::vector<PowerSource> sources;
    for (CFIndex index = 0; index < CFArrayGetCount(list.get()); ++index) {
        // Neither the source nor its description is ours; both live as long as the list and the information.
        const CFDictionaryRef description =
            IOPSGetPowerSourceDescription(info.get(), CFArrayGetValueAtIndex(list.get(), index));
        if (description && CFGetTypeID(description) == CFDictionaryGetTypeID())
            sources.push_back(powerSourceOf(recordOf((__bridge NSDictionary*)description)));
    }
    return sources;
}

} // namespace tarvin::macos
