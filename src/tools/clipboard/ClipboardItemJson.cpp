#include "tools/clipboard/ClipboardItemJson.h"

#include <QJsonArray>

#include <chrono>
#include <optional>

namespace tarvin {

namespace {

namespace field {
constexpr QLatin1StringView id("id");
constexpr QLatin1StringView text("text");
constexpr QLatin1StringView timestamp("timestamp");
constexpr QLatin1StringView isPinned("isPinned");
} // namespace field

/// The stored form of an instant: seconds since 2001-01-01 00:00:00 UTC.
using StoredSeconds = std::chrono::duration<double>;

constexpr Scheduler::WallClock storedBegin()
{
    using namespace std::chrono;
    return sys_days(2001y / January / 1);
}

/// Beyond this no clock of the system can tell an instant.
constexpr StoredSeconds largestStored = std::chrono::hours(24 * 365 * 200);

std::optional<ClipboardItem> itemFrom(const QJsonValue& value)
{
    const QUuid id(value[field::id].toString());
    const QJsonValue text = value[field::text];
    const QJsonValue timestamp = value[field::timestamp];
    const QJsonValue isPinned = value[field::isPinned];
    const StoredSeconds seconds(timestamp.toDouble());
    if (id.isNull() || !text.isString() || !timestamp.isDouble() || !isPinned.isBool() || seconds > largestStored
        || seconds < -largestStored)
        return std::nullopt;
    return ClipboardItem{
        .id = id,
        .text = text.toString(),
        .timestamp = storedBegin() + std::chrono::duration_cast<Scheduler::WallClock::duration>(seconds),
        .isPinned = isPinned.toBool(),
    };
}

} // namespace

QJsonObject toJson(const ClipboardItem& item)
{
    return {
        {field::id, item.id.toString(QUuid::WithoutBraces).toUpper()},
        {field::text, item.text},
        {field::timestamp, StoredSeconds(item.timestamp - storedBegin()).count()},
        {field::isPinned, item.isPinned},
    };
}

std::variant<QList<ClipboardItem>, ClipboardItemsError> clipboardItemsFromJson(const QJsonValue& stored)
{
    if (!stored.isArray())
        return ClipboardItemsError{u"not a list"_qs};
    QList<ClipboardItem> items;
    const QJsonArray array = stored.toArray();
    for (qsizetype index = 0; index < array.size(); ++index) {
        std::optional<ClipboardItem> item = itemFrom(array[index]);
        if (!item)
            return ClipboardItemsError{u"entry %1 is not a clip"_qs.arg(index + 1)};
        items.append(*std::move(item));
    }
    return items;
}

} // namespace tarvin
