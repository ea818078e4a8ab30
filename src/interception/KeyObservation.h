#pragma once

#include "interception/TriggerSource.h"
#include "model/FKey.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace tarvin {

/// What became of one report of a physical press.
enum class KeyOutcome : std::uint8_t {
    paused, ///< the master switch or the switch of the key's portion is off
    notCustomised,
    alreadyFired, ///< another path was first, or the key is held
    fired,
};

/// One report of a press, for whoever watches the keyboard live.
struct KeyObservation
{
    FKey key = FKey::f1;
    TriggerSource source = TriggerSource::eventTap;
    KeyOutcome outcome = KeyOutcome::fired;
    std::optional<QString> profileId; ///< the profile whose record is in force
    std::optional<QString> title; ///< what the record does
};

using KeyObserver = std::function<void(const KeyObservation&)>;

} // namespace tarvin
