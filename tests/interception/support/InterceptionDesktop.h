#pragma once

#include "interception/EventTapManager.h"
#include "interception/RuntimeLog.h"
#include "interception/TriggerNotice.h"
#include "interception/support/Recorders.h"
#include "platform/simulated/SimulatedPlatform.h"
#include "profiles/KeyProfile.h"

#include <memory>
#include <string>
#include <string_view>

namespace tarvin::test {

/// The whole interception on a simulated desktop, with recorders in the place of what it feeds.
class InterceptionDesktop
{
public:
    InterceptionDesktop();

    /// Made at the first call, so that a test can prepare the platform before.
    EventTapManager& manager();
    void destroyManager() { m_manager.reset(); }

    /// Customises the key in the profile being edited, at first the one of all applications.
    void map(FKey key, KeyAction action);
    /// Opens the Studio's window and gives it the keyboard.
    void showStudio();
    void advance(std::chrono::milliseconds duration) { platform.scheduler().advance(duration); }

    /// Offers the event to the session tap.
    EventVerdict tap(const InputEvent& event);
    EventVerdict tap(TapLocation location, const InputEvent& event);
    void global(const InputEvent& event);
    EventVerdict local(const InputEvent& event);
    void hid(std::uint32_t page, std::uint32_t usage, std::int64_t value);

    /// Plays steps separated by '|' and tells which actions fired meanwhile, by their stored names with a blank
    /// between.
    ///
    ///     50ms        lets time pass
    ///     tap +F5     the key goes down at the session tap; further paths: hidtap, global, local, hid
    ///     tap ~F5     it repeats
    ///     tap -F5     it goes up; modifiers send flags-changed events
    ///     tap +media3 the media key of type 3
    std::string play(std::string_view steps);
    /// The verdicts of the last play, with a blank between; paths that can't consume have none.
    [[nodiscard]] std::string verdicts() const;

    /// The names of all actions fired so far, with a blank between.
    [[nodiscard]] std::string fired() const;
    /// The names of the keys held in the funnel, with a blank between.
    [[nodiscard]] std::string held();
    /// What the drawn keyboard was told so far; see `RecordedFeedback`.
    [[nodiscard]] std::string strokes() const;
    /// The lines of the log file so far, without the brackets that each begins with.
    [[nodiscard]] QStringList logLines();

    simulated::SimulatedPlatform platform;
    KeyProfile profile;
    TriggerNotice notice;
    RecordedActions actions;
    RecordedStudio studio;
    RecordedFeedback feedback;

private:
    void playStep(std::string_view step);
    void deliver(std::string_view path, const InputEvent& event);

    std::unique_ptr<RuntimeLog> m_log;
    std::unique_ptr<EventTapManager> m_manager;
    std::vector<EventVerdict> m_verdicts;
};

} // namespace tarvin::test
