#include "platform/macos/MacSounds.h"

#include "platform/macos/TextBridge.h"

#import <AppKit/AppKit.h>
#import <AudioToolbox/AudioToolbox.h>

namespace tarvin::macos {

MacSounds::~MacSounds()
{
    for (const SoundId sound : m_created)
        (void)AudioServicesDisposeSystemSoundID(sound);
}

std::optional<SoundId> MacSounds::create(const QString& path)
{
    NSString* const file = nsString(path);
    if (path.isEmpty() || ![NSFileManager.defaultManager fileExistsAtPath:file])
        return std::nullopt;
    NSURL* const url = [NSURL fileURLWithPath:file];
    SystemSoundID sound = 0;
    if (AudioServicesCreateSystemSoundID((__bridge CFURLRef)url, &sound) != 0)
        return std::nullopt;
    m_created.push_back(sound);
    return sound;
}

void MacSounds::play(SoundId sound)
{
    AudioServicesPlaySystemSound(sound);
}

void MacHaptics::performAlignmentTap()
{
    [NSHapticFeedbackManager.defaultPerformer performFeedbackPattern:NSHapticFeedbackPatternAlignment
                                                     performanceTime:NSHapticFeedbackPerformanceTimeNow];
}

} // namespace tarvin::macos
