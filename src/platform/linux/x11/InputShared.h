#pragma once

#include "platform/linux/x11/ModifierMasks.h"
#include "platform/linux/x11/PostLedger.h"
#include "platform/linux/x11/PublishedKeys.h"
#include "platform/linux/x11/XTypes.h"

#include <atomic>

namespace tarvin::x11 {

/// What the main thread tells the input thread about its wishes, and learns about the keyboard, without either waiting
/// for the other.
struct InputShared
{
    // Written by the main thread.
    PublishedKeysCell published;
    std::atomic<bool> isTapEnabled = false;
    std::atomic<bool> isRecording = false; ///< the tap lets go, so that a recorder gets the keys
    std::atomic<bool> hasGlobalMonitor = false;
    std::atomic<bool> isStudioActive = false;

    /// Whether keys are to be taken now.
    [[nodiscard]] bool isTapAtWork() const { return isTapEnabled && !isRecording; }

    // Written by the input thread.
    std::atomic<bool> isConnected = false;
    std::atomic<ModifierMasks> masks{ModifierMasks{}};
    static_assert(std::atomic<ModifierMasks>::is_always_lock_free);
    std::atomic<std::uint8_t> heldSides = 0; ///< see `sideBitOf`

    PressId lastPress = 0; ///< of the input thread alone; outlives a connection

    PostLedger ledger;
};

} // namespace tarvin::x11
