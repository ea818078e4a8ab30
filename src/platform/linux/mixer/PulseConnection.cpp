#include "platform/linux/mixer/PulseConnection.h"

#include <chrono>

namespace tarvin::mixer {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

namespace {

constexpr auto longestWait = 2s;
/// How soon a waiting notices that the program ends.
constexpr std::chrono::microseconds slice = 50ms;

constexpr const char* defaultSink = "@DEFAULT_SINK@";
constexpr const char* defaultSource = "@DEFAULT_SOURCE@";

/// The server tells one device and then, by `isLast`, the end of the list.
template <typename Info> void noteDevice(pa_context*, const Info* info, int isLast, void* device)
{
    if (isLast != 0 || !info)
        return;
    SoundDevice found{.channels = info->volume, .isMuted = info->mute != 0, .isMonitor = false};
    if constexpr (requires { info->monitor_of_sink; })
        found.isMonitor = info->monitor_of_sink != PA_INVALID_INDEX;
    *static_cast<std::optional<SoundDevice>*>(device) = found;
}

void noteSuccess(pa_context*, int success, void* isSuccess)
{
    *static_cast<bool*>(isSuccess) = success != 0;
}

} // namespace

static_assert(fullVolume == PA_VOLUME_NORM);

PulseConnection::PulseConnection(const PulseLibrary& library, std::string server, const std::atomic<bool>& isEnding)
    : m_library(library)
    , m_server(std::move(server))
    , m_isEnding(isEnding)
{ }

PulseConnection::~PulseConnection()
{
    disconnect();
}

bool PulseConnection::connect()
{
    // The loop stands still between two requests, so it does not know yet of an end in the meantime.
    if (m_context && workUntil([] { return true; }) && isReady())
        return true;
    disconnect();
    m_loop = m_library.mainloopNew();
    m_context = m_loop ? m_library.contextNew(m_library.mainloopGetApi(m_loop), "Tarvin") : nullptr;
    if (!m_context
        || m_library.contextConnect(
               m_context, m_server.empty() ? nullptr : m_server.c_str(), PA_CONTEXT_NOAUTOSPAWN, nullptr)
            < 0)
        return false;
    const auto isSettled = [this] {
        const pa_context_state_t state = m_library.contextGetState(m_context);
        return state == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state);
    };
    return workUntil(isSettled) && isReady();
}

std::optional<SoundDevice> PulseConnection::read(Direction direction)
{
    std::optional<SoundDevice> device;
    if (!isReady())
        return device;
    if (direction == Direction::output)
        finish(m_library.contextGetSinkInfoByName(m_context, defaultSink, &noteDevice<pa_sink_info>, &device));
    else
        finish(m_library.contextGetSourceInfoByName(m_context, defaultSource, &noteDevice<pa_source_info>, &device));
    return device;
}

bool PulseConnection::setVolume(Direction direction, const SoundDevice& device, VolumeUnits loudest)
{
    pa_cvolume channels = device.channels;
    if (!isReady() || !m_library.cvolumeScale(&channels, loudest))
        return false;
    bool isDone = false;
    const bool hasEnded = finish(direction == Direction::output
            ? m_library.contextSetSinkVolumeByName(m_context, defaultSink, &channels, &noteSuccess, &isDone)
            : m_library.contextSetSourceVolumeByName(m_context, defaultSource, &channels, &noteSuccess, &isDone));
    return hasEnded && isDone;
}

bool PulseConnection::setMuted(Direction direction, bool isMuted)
{
    if (!isReady())
        return false;
    bool isDone = false;
    const bool hasEnded = finish(direction == Direction::output
            ? m_library.contextSetSinkMuteByName(m_context, defaultSink, isMuted ? 1 : 0, &noteSuccess, &isDone)
            : m_library.contextSetSourceMuteByName(m_context, defaultSource, isMuted ? 1 : 0, &noteSuccess, &isDone));
    return hasEnded && isDone;
}

bool PulseConnection::finish(pa_operation* operation)
{
    if (!operation)
        return false;
    const bool hasEnded =
        workUntil([&] { return m_library.operationGetState(operation) != PA_OPERATION_RUNNING || !isReady(); });
    const bool isDone = m_library.operationGetState(operation) == PA_OPERATION_DONE;
    // Its handler writes to the caller's frame, which is about to go.
    if (!isDone)
        m_library.operationCancel(operation);
    m_library.operationUnref(operation);
    return hasEnded && isDone;
}

bool PulseConnection::workUntil(const std::function<bool()>& condition)
{
    const auto end = Clock::now() + longestWait;
    // What has come already is always looked at.
    bool isFirst = true;
    do {
        const int wait = isFirst ? 0 : static_cast<int>(slice.count());
        isFirst = false;
        if (m_library.mainloopPrepare(m_loop, wait) < 0 || m_library.mainloopPoll(m_loop) < 0
            || m_library.mainloopDispatch(m_loop) < 0)
            return false;
        if (condition())
            return true;
    } while (Clock::now() < end && !m_isEnding);
    return false;
}

bool PulseConnection::isReady() const
{
    return m_context && m_library.contextGetState(m_context) == PA_CONTEXT_READY;
}

void PulseConnection::disconnect()
{
    if (m_context) {
        m_library.contextDisconnect(m_context);
        m_library.contextUnref(m_context);
    }
    if (m_loop)
        m_library.mainloopFree(m_loop);
    m_context = nullptr;
    m_loop = nullptr;
}

} // namespace tarvin::mixer
