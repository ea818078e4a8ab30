#pragma once

#include "platform/ports/KeyRecording.h"

#include <utility>

namespace tarvin::simulated {

/// A keyboard for a recorder, played by a test.
class SimulatedKeyRecording final : public KeyRecording
{
public:
    [[nodiscard]] std::unique_ptr<KeyRecordingSession> start(KeyHandler onKey, EndHandler onEnd) override
    {
        if (m_isRefusing || m_session != nullptr)
            return nullptr;
        auto session = std::make_unique<Session>(*this, std::move(onKey), std::move(onEnd));
        m_session = session.get();
        ++m_startCount;
        return session;
    }

    /// @return what the recorder wants of the key; handed on if nobody records
    RecordingVerdict press(const PressedKey& key)
    {
        if (m_session == nullptr)
            return RecordingVerdict::handOn;
        // The handler may end the session it belongs to.
        const KeyHandler handler = m_session->onKey;
        return handler(key);
    }

    /// The desktop takes the keyboard back, as when another window comes forward.
    void takeBack()
    {
        if (m_session == nullptr)
            return;
        const EndHandler handler = m_session->onEnd;
        handler();
    }

    void setRefusing(bool refuses) { m_isRefusing = refuses; }
    [[nodiscard]] bool isRecording() const { return m_session != nullptr; }
    [[nodiscard]] int startCount() const { return m_startCount; }

private:
    struct Session final : KeyRecordingSession
    {
        Session(SimulatedKeyRecording& owner, KeyHandler keyHandler, EndHandler endHandler)
            : recording(owner)
            , onKey(std::move(keyHandler))
            , onEnd(std::move(endHandler))
        { }
        ~Session() override { recording.m_session = nullptr; }
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;
        Session(Session&&) = delete;
        Session& operator=(Session&&) = delete;

        SimulatedKeyRecording& recording;
        KeyHandler onKey;
        EndHandler onEnd;
    };

    Session* m_session = nullptr; ///< not owned
    bool m_isRefusing = false;
    int m_startCount = 0;
};

} // namespace tarvin::simulated
