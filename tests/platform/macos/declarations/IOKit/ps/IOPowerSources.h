#pragma once

#import <CoreFoundation/CoreFoundation.h>

extern "C" {
CFTypeRef IOPSCopyPowerSourcesInfo(void);
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef info);
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef info, CFTypeRef source);
}
