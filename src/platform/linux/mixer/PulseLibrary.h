#pragma once

#include <pulse/pulseaudio.h>

namespace tarvin::mixer {

/// The functions of the sound server's library, loaded at the first use: most sessions of the program never touch the
/// volume, and its dozen dependencies would cost every start.
struct PulseLibrary
{
    decltype(&pa_mainloop_new) mainloopNew = nullptr;
    decltype(&pa_mainloop_free) mainloopFree = nullptr;
    decltype(&pa_mainloop_get_api) mainloopGetApi = nullptr;
    decltype(&pa_mainloop_prepare) mainloopPrepare = nullptr;
    decltype(&pa_mainloop_poll) mainloopPoll = nullptr;
    decltype(&pa_mainloop_dispatch) mainloopDispatch = nullptr;
    decltype(&pa_context_new) contextNew = nullptr;
    decltype(&pa_context_connect) contextConnect = nullptr;
    decltype(&pa_context_disconnect) contextDisconnect = nullptr;
    decltype(&pa_context_unref) contextUnref = nullptr;
    decltype(&pa_context_get_state) contextGetState = nullptr;
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

    /// Any thread. Stays loaded to the end of the process.
    /// @return null where the library is not installed
    [[nodiscard]] static const PulseLibrary* load();
};

} // namespace tarvin::mixer
