#include "tools/clipboard/view/ClipText.h"

#include "model/TextLength.h"

#include <QDateTime>

#include <chrono>

namespace tarvin {

namespace {

QString timeOf(QTime time, const QLocale& locale)
{
    // Where the session has no locale the short format has seconds, which no other has.
    return locale.language() == QLocale::C ? time.toString(u"HH:mm"_qs) : locale.toString(time, QLocale::ShortFormat);
}

} // namespace

ClipText ClipText::of(const ClipboardItem& item, const QLocale& locale)
{
    using namespace std::chrono;
    const auto sinceEpoch = duration_cast<milliseconds>(item.timestamp.time_since_epoch());
    const QDateTime captured = QDateTime::fromMSecsSinceEpoch(sinceEpoch.count());
    return {
        .preview = item.preview(),
        .length = u"%1 chars"_qs.arg(userPerceivedLength(item.text)),
        .time = timeOf(captured.time(), locale),
    };
}

} // namespace tarvin
