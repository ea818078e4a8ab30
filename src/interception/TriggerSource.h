#pragma once

#include "model/RawValueRows.h"
#include "platform/ports/InputEvent.h"

#include <QStringView>

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarvin {

/// The input path that reported a press, told apart by the kind of event that carried it.
enum class TriggerSource : std::uint8_t {
    eventTap,
    eventTapFlags,
    eventTapMedia,
    globalMonitor,
    globalMonitorFlags,
    globalMonitorMedia,
    localMonitor,
    localMonitorFlags,
    localMonitorMedia,
    ioHid,
};

struct TriggerSourceRow
{
    TriggerSource source;
    QStringView rawValue; ///< as the log shows it
};

inline constexpr auto triggerSourceRows = std::to_array<TriggerSourceRow>({
    {TriggerSource::eventTap, u"EventTap"},
    {TriggerSource::eventTapFlags, u"EventTap-Flags"},
    {TriggerSource::eventTapMedia, u"EventTap-Media"},
    {TriggerSource::globalMonitor, u"GlobalMonitor"},
    {TriggerSource::globalMonitorFlags, u"GlobalMonitor-Flags"},
    {TriggerSource::globalMonitorMedia, u"GlobalMonitor-Media"},
    {TriggerSource::localMonitor, u"LocalMonitor"},
    {TriggerSource::localMonitorFlags, u"LocalMonitor-Flags"},
    {TriggerSource::localMonitorMedia, u"LocalMonitor-Media"},
    {TriggerSource::ioHid, u"IOHID"},
});
static_assert(rowsStandInEnumerationOrder(triggerSourceRows, &TriggerSourceRow::source));
static_assert(rawValuesAreUnique(triggerSourceRows));

[[nodiscard]] constexpr QStringView rawValue(TriggerSource source) noexcept
{
    return triggerSourceRows[static_cast<std::size_t>(source)].rawValue;
}

/// The three sources of one path that carries events.
struct TriggerSources
{
    TriggerSource keys;
    TriggerSource flags;
    TriggerSource media;

    [[nodiscard]] constexpr TriggerSource of(InputEventType type) const noexcept
    {
        if (type == InputEventType::flagsChanged)
            return flags;
        return type == InputEventType::systemDefined ? media : keys;
    }
};

inline constexpr TriggerSources eventTapSources{
    TriggerSource::eventTap, TriggerSource::eventTapFlags, TriggerSource::eventTapMedia};
inline constexpr TriggerSources globalMonitorSources{
    TriggerSource::globalMonitor, TriggerSource::globalMonitorFlags, TriggerSource::globalMonitorMedia};
inline constexpr TriggerSources localMonitorSources{
    TriggerSource::localMonitor, TriggerSource::localMonitorFlags, TriggerSource::localMonitorMedia};

} // namespace tarvin
