#include "platform/linux/desktop/UrlOpener.h"

#include <QProcess>

#include <array>

namespace tarvin::desktop {

namespace {

struct OpenerRow
{
    QStringView program;
    QStringView subcommand; ///< empty if the address is the only argument
};

/// Tried in this order. The first knows every desktop's own tool; the second comes with GLib.
constexpr std::array openerRows{OpenerRow{u"xdg-open", {}}, OpenerRow{u"gio", u"open"}};

} // namespace

bool UrlOpener::open(const QString& url)
{
    for (const OpenerRow& row : openerRows) {
        QStringList arguments;
        if (!row.subcommand.isEmpty())
            arguments += row.subcommand.toString();
        arguments += url;
        QProcess process;
        process.setProgram(row.program.toString());
        process.setArguments(arguments);
        // What the tool prints is not ours to show.
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        if (process.startDetached())
            return true;
    }
    return false;
}

} // namespace tarvin::desktop
