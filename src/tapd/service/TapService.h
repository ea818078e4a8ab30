#pragma once

#include "tapd/engine/TapEngine.h"
#include "tapd/protocol/FrameSocket.h"
#include "tapd/protocol/Frames.h"
#include "tapd/service/EventOutputs.h"
#include "tapd/service/Heartbeat.h"

#include <linux/input.h>

#include <optional>
#include <span>

namespace tarvin::tapd {

/// What the daemon does, apart from its devices: serves one application, decides by what it publishes, and stands in
/// for it when it fails. Time is given with each call, on the clock of the events.
///
/// The application hears of the customisable keys that it published and of the summon shortcut; of nothing else.
///
///     the application             what is taken
///     ----------------------------+-----------------------------------------------
///     absent                       nothing, and no keyboard is wanted
///     there and answering          what it published last
///     there and silent             nothing, until it is heard again
///     the way out was taken        nothing, and no keyboard is wanted, until it publishes keys knowing of it
class TapService
{
public:
    explicit TapService(EventOutputs& outputs)
        : m_outputs(outputs)
    { }

    /// A new application takes the place of the one before.
    void accept(FrameSocket socket, EventTime now);
    /// Its keys are as from the factory from now on.
    void dropApplication();
    [[nodiscard]] bool hasApplication() const { return m_socket.isOpen(); }
    /// To be watched for readability; negative without an application.
    [[nodiscard]] int applicationDescriptor() const { return m_socket.descriptor(); }
    /// Works off what the application has sent. One that sends rubbish is dropped.
    void readApplication(EventTime now);
    /// The same after a time in which nothing was read: what the application wanted typed meanwhile is not typed now.
    void readApplicationAfterPause(EventTime now);

    /// Whether keyboards are to be grabbed. Those that are grabbed while this is false are to be given back as soon as
    /// they are at rest.
    [[nodiscard]] bool wantsKeyboards() const;
    [[nodiscard]] KeyboardId attach(Output output) { return m_engine.attach(output); }
    void detach(KeyboardId keyboard);
    void handleEvents(KeyboardId keyboard, std::span<const input_event> events);
    [[nodiscard]] bool isOutOfStep(KeyboardId keyboard) const { return m_engine.isOutOfStep(keyboard); }
    void resynchronise(KeyboardId keyboard, const KeyBits& down, EventTime now);
    [[nodiscard]] KeyBits heldKeys(KeyboardId keyboard) const { return m_engine.heldKeys(keyboard); }
    [[nodiscard]] bool isAtRest(KeyboardId keyboard) const { return m_engine.isAtRest(keyboard); }

    /// When to call `tick`; empty while nothing is to happen by itself.
    [[nodiscard]] std::optional<EventTime> deadline(EventTime now) const;
    void tick(EventTime now);
    /// Whether every keyboard is to be given back at once, whatever is held. True once for each way out.
    [[nodiscard]] bool takeWayOut();

private:
    void handle(const Publish& publish, EventTime now);
    void handle(const Pong&, EventTime) { }
    void handle(const Post& post, EventTime now);
    void applyPublication(EventTime now);
    void send(const DaemonFrame& frame);
    void carryOut(Output output);

    EventOutputs& m_outputs;
    TapEngine m_engine;
    TapOutcome m_outcome;
    FrameSocket m_socket;
    TakenSet m_published; ///< by the application, whatever is made of it
    Heartbeat m_heartbeat;
    KeyBits m_posted; ///< the synthetic keys that are down
    std::uint32_t m_pings = 0;
    std::uint32_t m_wayOuts = 0;
    bool m_isSilent = false;
    bool m_isCatchingUp = false; ///< what is read was sent during a pause
    bool m_isOut = false;
    bool m_isReleaseDue = false;
};

} // namespace tarvin::tapd
