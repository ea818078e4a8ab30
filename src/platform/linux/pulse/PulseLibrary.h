#pragma once

#include <pulse/pulseaudio.h>

namespace tarvin::pulse {

/// The functions of the sound server's library, loaded at the first use: many sessions of the program never make a
/// sound or touch the volume, and its dozen dependencies would cost every start.
struct PulseLibrary
{
    decltype(&pa_mainloop_new) mainloopNew = nullptr;
    decltype(&pa_mainloop_free) mainloopFree = nullptr;
    decltype(&pa_mainloop_get_api) mainloopGetApi = nullptr;
    decltype(&pa_mainloop_prepare) mainloopPrepare = nullptr;
    decltype(&pa_mainloop_poll) mainloopPoll = nullptr;
    decltype(&pa_mainloop_dispatch) mainloopDispatch = nullptr;
    decltype(&pa_threaded_mainloop_new) threadedMainloopNew = nullptr;
    decltype(&pa_threaded_mainloop_free) threadedMainloopFree = nullptr;
    decltype(&pa_threaded_mainloop_start) threadedMainloopStart = nullptr;
    decltype(&pa_threaded_mainloop_stop) threadedMainloopStop = nullptr;
    decltype(&pa_threaded_mainloop_lock) threadedMainloopLock = nullptr;
    decltype(&pa_threaded_mainloop_unlock) threadedMainloopUnlock = nullptr;
    decltype(&pa_threaded_mainloop_get_api) threadedMainloopGetApi = nullptr;
    decltype(&pa_context_new) contextNew = nullptr;
    decltype(&pa_context_connect) contextConnect = nullptr;
    decltype(&pa_context_disconnect) contextDisconnect = nullptr;
    decltype(&pa_context_unref) contextUnref = nullptr;
    decltype(&pa_context_get_state) contextGetState = nullptr;
    decltype(&pa_context_set_state_callback) contextSetStateCallback = nullptr;
    decltype(&pa_context_errno) contextErrno = nullptr;
    decltype(&pa_context_play_sample) contextPlaySample = nullptr;
    decltype(&pa_context_get_sink_info_by_name) contextGetSinkInfoByName = nullptr;
    decltype(&pa_context_get_source_info_by_name) contextGetSourceInfoByName = nullptr;
    decltype(&pa_context_set_sink_volume_by_name) contextSetSinkVolumeByName = nullptr;
    decltype(&pa_context_set_sink_mute_by_name) contextSetSinkMuteByName = nullptr;
    decltype(&pa_context_set_source_volume_by_name) contextSetSourceVolumeByName = nullptr;
    decltype(&pa_context_set_source_mute_by_name) contextSetSourceMuteByName = nullptr;
    decltype(&pa_operation_get_state) operationGetState = nullptr;
    decltype(&pa_operation_cancel) operationCancel = nullptr;
    decltype(&pa_operation_unref) operationUnref = nullptr;
    decltype(&pa_cvolume_max) cvolumeMax = nullptr;
    decltype(&pa_cvolume_scale) cvolumeScale = nullptr;
    decltype(&pa_stream_new) streamNew = nullptr;
    decltype(&pa_stream_unref) streamUnref = nullptr;
    decltype(&pa_stream_connect_upload) streamConnectUpload = nullptr;
    decltype(&pa_stream_set_state_callback) streamSetStateCallback = nullptr;
    decltype(&pa_stream_get_state) streamGetState = nullptr;
    decltype(&pa_stream_write) streamWrite = nullptr;
    decltype(&pa_stream_finish_upload) streamFinishUpload = nullptr;
    decltype(&pa_strerror) strerror = nullptr;

    /// Any thread. Stays loaded to the end of the process.
    /// @return null where the library is not installed
    [[nodiscard]] static const PulseLibrary* load();
};

} // namespace tarvin::pulse
