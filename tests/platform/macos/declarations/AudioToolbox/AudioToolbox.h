#pragma once

#import <CoreFoundation/CoreFoundation.h>

typedef uint32_t SystemSoundID;
typedef int32_t OSStatus;
typedef const struct __attribute__((objc_bridge(NSURL))) __CFURL* CFURLRef;

extern "C" {
OSStatus AudioServicesCreateSystemSoundID(CFURLRef file, SystemSoundID* sound);
OSStatus AudioServicesDisposeSystemSoundID(SystemSoundID sound);
void AudioServicesPlaySystemSound(SystemSoundID sound);
}
