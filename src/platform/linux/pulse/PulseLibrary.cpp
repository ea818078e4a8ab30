#include "platform/linux/pulse/PulseLibrary.h"

#include <QLibrary>

#include <optional>

namespace tarvin::pulse {

namespace {

constexpr int binaryVersion = 0;

class Loader
{
public:
    template <typename Function> void find(Function& function, const char* name)
    {
        function = reinterpret_cast<Function>(m_library.resolve(name));
        m_isComplete = m_isComplete && function != nullptr;
    }

    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    QLibrary m_library{QStringLiteral("pulse"), binaryVersion};
    bool m_isComplete = true;
};

std::optional<PulseLibrary> loadLibrary()
{
    Loader loader;
    PulseLibrary library;
    loader.find(library.mainloopNew, "pa_mainloop_new");
    loader.find(library.mainloopFree, "pa_mainloop_free");
    loader.find(library.mainloopGetApi, "pa_mainloop_get_api");
    loader.find(library.mainloopPrepare, "pa_mainloop_prepare");
    loader.find(library.mainloopPoll, "pa_mainloop_poll");
    loader.find(library.mainloopDispatch, "pa_mainloop_dispatch");
    loader.find(library.threadedMainloopNew, "pa_threaded_mainloop_new");
    loader.find(library.threadedMainloopFree, "pa_threaded_mainloop_free");
    loader.find(library.threadedMainloopStart, "pa_threaded_mainloop_start");
    loader.find(library.threadedMainloopStop, "pa_threaded_mainloop_stop");
    loader.find(library.threadedMainloopLock, "pa_threaded_mainloop_lock");
    loader.find(library.threadedMainloopUnlock, "pa_threaded_mainloop_unlock");
    loader.find(library.threadedMainloopGetApi, "pa_threaded_mainloop_get_api");
    loader.find(library.contextNew, "pa_context_new");
    loader.find(library.contextConnect, "pa_context_connect");
    loader.find(library.contextDisconnect, "pa_context_disconnect");
    loader.find(library.contextUnref, "pa_context_unref");
    loader.find(library.contextGetState, "pa_context_get_state");
    loader.find(library.contextSetStateCallback, "pa_context_set_state_callback");
    loader.find(library.contextErrno, "pa_context_errno");
    loader.find(library.contextPlaySample, "pa_context_play_sample");
    loader.find(library.contextGetSinkInfoByName, "pa_context_get_sink_info_by_name");
    loader.find(library.contextGetSourceInfoByName, "pa_context_get_source_info_by_name");
    loader.find(library.contextSetSinkVolumeByName, "pa_context_set_sink_volume_by_name");
    loader.find(library.contextSetSinkMuteByName, "pa_context_set_sink_mute_by_name");
    loader.find(library.contextSetSourceVolumeByName, "pa_context_set_source_volume_by_name");
    loader.find(library.contextSetSourceMuteByName, "pa_context_set_source_mute_by_name");
    loader.find(library.operationGetState, "pa_operation_get_state");
    loader.find(library.operationCancel, "pa_operation_cancel");
    loader.find(library.operationUnref, "pa_operation_unref");
    loader.find(library.cvolumeMax, "pa_cvolume_max");
    loader.find(library.cvolumeScale, "pa_cvolume_scale");
    loader.find(library.streamNew, "pa_stream_new");
    loader.find(library.streamUnref, "pa_stream_unref");
    loader.find(library.streamConnectUpload, "pa_stream_connect_upload");
    loader.find(library.streamSetStateCallback, "pa_stream_set_state_callback");
    loader.find(library.streamGetState, "pa_stream_get_state");
    loader.find(library.streamWrite, "pa_stream_write");
    loader.find(library.streamFinishUpload, "pa_stream_finish_upload");
    loader.find(library.strerror, "pa_strerror");
    return loader.isComplete() ? std::optional(library) : std::nullopt;
}

} // namespace

const PulseLibrary* PulseLibrary::load()
{
    static const std::optional<PulseLibrary> library = loadLibrary();
    return library ? &*library : nullptr;
}

} // namespace tarvin::pulse
