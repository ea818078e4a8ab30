#pragma once

#include "platform/linux/mixer/VolumeSteps.h"
#include "platform/linux/pulse/PulseLibrary.h"

#include <atomic>
#include <functional>
#include <optional>
#include <string>

namespace tarvin::mixer {

using pulse::PulseLibrary;

/// The default output, or the default input.
enum class Direction { output, input };

/// One sound device as the server tells it.
struct SoundDevice
{
    pa_cvolume channels{};
    bool isMuted = false;
    bool isMonitor = false; ///< an input that hears what an output plays, and no microphone
};

/// A connection to the sound server, made at the first request and made again after it broke. Each call waits for the
/// server's answer, two seconds at most. One thread.
class PulseConnection
{
public:
    /// @param server as the library names servers; empty for the session's own
    /// @param isEnding ends a waiting early when it becomes true
    PulseConnection(const PulseLibrary& library, std::string server, const std::atomic<bool>& isEnding);
    ~PulseConnection();
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;

    /// @return whether the server answers
    [[nodiscard]] bool connect();
    /// The default device of the direction; nothing where there is none or the connection broke.
    [[nodiscard]] std::optional<SoundDevice> read(Direction direction);
    /// Keeps the balance of the channels.
    /// @return whether the server took it
    [[nodiscard]] bool setVolume(Direction direction, const SoundDevice& device, VolumeUnits loudest);
    [[nodiscard]] bool setMuted(Direction direction, bool isMuted);

private:
    /// Waits until the operation has ended. Releases it.
    /// @return whether it ended as it should
    bool finish(pa_operation* operation);
    /// Lets the library work until the condition holds. @return whether it held in time
    bool workUntil(const std::function<bool()>& condition);
    [[nodiscard]] bool isReady() const;
    void disconnect();

    const PulseLibrary& m_library;
    const std::string m_server;
    const std::atomic<bool>& m_isEnding;
    pa_mainloop* m_loop = nullptr;
    pa_context* m_context = nullptr;
};

} // namespace tarvin::mixer
