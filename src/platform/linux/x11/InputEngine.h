#pragma once

#include "platform/linux/x11/GrabBook.h"
#include "platform/linux/x11/InputConnection.h"
#include "platform/linux/x11/InputShared.h"
#include "platform/linux/x11/KeyPosting.h"
#include "platform/linux/x11/PostedKeys.h"
#include "platform/linux/x11/PressRouter.h"
#include "platform/linux/x11/StrokePlayer.h"

#include <QString>

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace tarvin::x11 {

/// Takes what the input thread has for the main thread.
class InputOutbox
{
public:
    virtual ~InputOutbox() = default;
    virtual void deliver(const Delivery& delivery) = 0;
    virtual void log(const QString& line) = 0;
};

/// The work of the input thread while a server is there: reads the server's events, decides, and acts. Lives and dies
/// on that thread.
///
/// A posted keystroke has two roads. Where the tap daemon serves us, and the server has its device or stands in for a
/// Wayland session, keys are pressed on that device. Such a device can't lift what the user holds; a stroke that needs
/// it, and every stroke without the device, is faked at the server.
class InputEngine
{
public:
    InputEngine(std::unique_ptr<InputConnection> connection, InputShared& shared, InputOutbox& outbox);
    /// Leaves no key down that we put down.
    ~InputEngine();
    InputEngine(const InputEngine&) = delete;
    InputEngine& operator=(const InputEngine&) = delete;
    InputEngine(InputEngine&&) = delete;
    InputEngine& operator=(InputEngine&&) = delete;

    [[nodiscard]] bool isBroken() const { return m_connection->isBroken(); }
    [[nodiscard]] int fileDescriptor() const { return m_connection->fileDescriptor(); }
    /// Works off everything that the server has sent, and sends everything that is to be sent.
    void handleEvents();
    /// The same for everything that the server has done so far, whether it has said so or not.
    void settle();
    /// Makes the grabs follow what is published and whether the tap is enabled.
    void updateGrabs();
    void setKeyPosting(std::shared_ptr<KeyPosting> posting) { m_keyPosting = std::move(posting); }
    /// Asks again for what another program has.
    void retryGrabs() { carryOut(m_grabs.retries()); }
    [[nodiscard]] bool hasRefusedGrabs() const { return !m_grabs.retries().empty(); }

    /// The tap would have let the press pass.
    void repost(PressId press, Keycode keycode);
    void play(const Stroke& stroke);
    /// Presses or releases the secondary button, after moving the pointer there if it is elsewhere.
    void clickSecondary(RootPosition position, KeyState state);
    [[nodiscard]] std::optional<RootPosition> pointerPosition() { return m_connection->pointerPosition(); }

private:
    bool workOffEvents();
    void handle(const ServerEvent& event);
    void handle(const GrabbedKey& grabbed);
    void handle(const RawKey& raw, RequestSequence request);
    void handle(const KeyboardChange& change);
    void apply(const Effects& effects);
    void apply(const StrokePlayer::Fakes& fakes);
    void fake(FakeKey key, std::int64_t userData);
    /// The next event, whether or not it was read already while something else was waited for.
    [[nodiscard]] std::optional<ServerEvent> takeEvent();
    [[nodiscard]] std::optional<ServerEvent> readEvent();
    [[nodiscard]] bool isPostingPossible() const;
    /// @param down the keys that are down for the applications
    [[nodiscard]] bool canBePosted(
        const StrokePlayer::Fakes& fakes, KeycodeSet down, const KeycodeSet& heldByUser) const;
    void post(const StrokePlayer::Fakes& fakes);
    [[nodiscard]] bool post(FakeKey key, std::int64_t userData);
    void awaitPosted();
    void forgetPosted();
    void tapBlankKey();
    void carryOut(const GrabSteps& steps);
    void noteOutcome(PhysicalKey key, GrabOutcome outcome);
    void refreshKeymap();
    void adoptKeymap();
    void publishHeldSides();
    [[nodiscard]] std::vector<std::uint32_t> summonModifiers() const;
    [[nodiscard]] Situation situation() const;
    [[nodiscard]] bool isFakingDevice(DeviceId device);
    [[nodiscard]] bool isPostingDevice(DeviceId device);
    void tellWatcher(const RawKey& own, std::int64_t userData, const Situation& now);
    [[nodiscard]] KeycodeSet downKeys();
    [[nodiscard]] bool willBeGrabbed(PhysicalKey key) const;

    std::unique_ptr<InputConnection> m_connection;
    InputShared& m_shared;
    InputOutbox& m_outbox;
    PressRouter m_router;
    GrabBook m_grabs;
    StrokePlayer m_player;
    Keyboards m_keyboards;
    KeyboardMap m_keymap;
    KeyboardMap m_postingKeymap; ///< the same for what is posted through the device
    std::shared_ptr<KeyPosting> m_keyPosting; ///< null without a daemon
    PostedKeys m_posted;
    bool m_areFakesUnsettled = false; ///< the server may not have done what was faked last
    std::deque<ServerEvent> m_readEarly; ///< while something else was waited for
    ModifierState m_modifiers;
    std::vector<std::uint32_t> m_summonModifiers; ///< with which the summon grabs stand
    std::map<DeviceId, bool> m_fakingDevices;
    std::map<DeviceId, bool> m_postingDevices;
    std::map<Keycode, Keycode> m_fakedDown; ///< what we put down, and its keycode on the faking device
    bool m_isKeymapStale = true;
};

} // namespace tarvin::x11
