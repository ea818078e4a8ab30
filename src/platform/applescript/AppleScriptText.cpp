#include "platform/applescript/AppleScriptText.h"

#include "platform/applescript/SystemScriptSources.h"
#include "platform/applescript/WindowScriptSources.h"

namespace tarvin {

namespace {

QString sourceOf(const OpenAccessibilityPage&)
{
    return QStringLiteral("tell application \"System Settings\" to quit\n"
                          "delay 0.2\n"
                          "do shell script \"open "
                          "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility\"");
}

QString sourceOf(const PressKeyByScript& press)
{
    QString source = QStringLiteral("tell application \"System Events\" to key code ");
    source += QString::number(press.keyCode);
    if (containsAll(press.flags, EventFlags::command))
        source += QStringLiteral(" using command down");
    return source;
}

QString sourceOf(const SetLoginItem& item)
{
    // Concatenation rather than arg(): a path may hold a percent sign followed by a digit.
    if (item.enabled) {
        return QStringLiteral("tell application \"System Events\"\n    if not (exists login item \"") + item.name
            + QStringLiteral("\") then\n        make new login item at end with properties {path:\"") + item.path
            + QStringLiteral("\", hidden:true}\n    end if\nend tell");
    }
    return QStringLiteral("tell application \"System Events\"\n    if exists login item \"") + item.name
        + QStringLiteral("\" then\n        delete login item \"") + item.name
        + QStringLiteral("\"\n    end if\nend tell");
}

} // namespace

QString appleScriptSource(const Script& script)
{
    return std::visit([](const auto& kind) { return sourceOf(kind); }, script);
}

} // namespace tarvin
