#include "studio/picker/PickerTexts.h"

namespace tarvin {

QString resultCountText(qsizetype count)
{
    return QStringLiteral("%1 found").arg(count);
}

QString noResultsLine(const QString& typed)
{
    return QStringLiteral("No results match \"%1\".").arg(typed);
}

StatusBanner statusBanner(std::optional<QStringView> customTitle, bool isActive)
{
    if (!customTitle) {
        return {.tone = StatusBanner::Tone::factory,
            .title = QStringLiteral("Customizable Key (Default Apple Behavior)"),
            .detail = QStringLiteral("Choose any action below to customize (turns key Mint Teal)")};
    }
    return {.tone = isActive ? StatusBanner::Tone::customized : StatusBanner::Tone::paused,
        .title = QStringLiteral("Customized • %1").arg(*customTitle),
        .detail = isActive ? QStringLiteral("Keycap turns Mint Teal on keyboard studio")
                           : QStringLiteral("Portion paused in settings • Saved configuration preserved")};
}

} // namespace tarvin
