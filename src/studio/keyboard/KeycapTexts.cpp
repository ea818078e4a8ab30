#include "studio/keyboard/KeycapTexts.h"

namespace tarvin {

namespace {

/// How a live key is named in its tooltip. Caps Lock goes without the sign of its display name.
QStringView tooltipName(FKey key)
{
    return key == FKey::capsLock ? QStringView(u"Caps Lock") : displayName(key);
}

QString liveKeyTooltip(FKey key, const KeycapMapping& mapping)
{
    const bool isFunctionKey = isFunctionRowKey(key);
    const QString name = tooltipName(key).toString();
    if (!mapping.isCustomized) {
        return name
            + (isFunctionKey ? QStringLiteral(" • Customizable Function Key (Click to customize • Turns Mint Teal)")
                             : QStringLiteral(" • Customizable Key (Click to customize • Turns Mint Teal)"));
    }
    if (mapping.isActive)
        return QStringLiteral("%1 • Customized: %2 (Mint Teal)").arg(name, mapping.actionTitle);
    return QStringLiteral("%1 • Custom (Paused): %2 — %3 keys deactivated")
        .arg(name, mapping.actionTitle, isFunctionKey ? QStringView(u"Function") : QStringView(u"Other"));
}

} // namespace

QString keycapTooltip(const Keycap& keycap, const KeycapMapping& mapping)
{
    switch (keycap.kind) {
    case KeycapKind::standard:
        return QStringLiteral("%1 • Standard typing key").arg(keycap.label);
    case KeycapKind::arrow:
        return QStringLiteral("Arrow key • Standard navigation key");
    case KeycapKind::spacebar:
    case KeycapKind::touchID:
        return {};
    case KeycapKind::heroFunction:
    case KeycapKind::capsLock:
    case KeycapKind::special:
        return liveKeyTooltip(*keycap.key, mapping);
    }
    Q_UNREACHABLE();
}

QString keycapSpokenText(const Keycap& keycap, const KeycapMapping& mapping)
{
    const QStringView name = keycap.spokenName.isEmpty() ? keycap.label : keycap.spokenName;
    if (!keycap.key)
        return name.toString();
    const QStringView state = !mapping.isCustomized ? u"customisable"
        : mapping.isActive                          ? u"customised"
                                                    : u"customised, paused";
    return QStringLiteral("%1, %2: %3").arg(name, state, mapping.actionTitle);
}

} // namespace tarvin
