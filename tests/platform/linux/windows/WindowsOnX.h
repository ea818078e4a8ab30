#pragma once

#include "platform/linux/desktop/QtScheduler.h"
#include "platform/linux/desktop/XConnection.h"
#include "platform/ports/Geometry.h"
#include "platform/posix/StdoutConsole.h"

#include "platform/linux/desktop/support/PrivateDesktop.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <ostream>

namespace tarvin {

inline void PrintTo(const Rect& rect, std::ostream* stream)
{
    *stream << rect.size.width << 'x' << rect.size.height << '+' << rect.origin.x << '+' << rect.origin.y;
}

} // namespace tarvin

namespace tarvin::windows {

using endtoend::ChildProcess;
using endtoend::eventually;
using endtoend::PrivateDesktop;

/// A desktop of its own, and real windows on it whose place the tool `xwininfo` tells.
class WindowsOnX : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = PrivateDesktop::lack())
            GTEST_SKIP() << *lack;
        desktop = std::make_unique<PrivateDesktop>(std::vector{PrivateDesktop::Part::windowManager});
        connection = std::make_unique<desktop::XConnection>(scheduler, console, desktop->display());
    }

    [[nodiscard]] std::unique_ptr<ChildProcess> show(const char* title, const char* kind = "") const
    {
        return desktop->showWindow({"client", "Client", title, kind});
    }

    /// Tells a client something, and returns when it has done it.
    static void tell(ChildProcess& client, const std::string& line)
    {
        client.writeLine(line);
        ASSERT_TRUE(endtoend::lineFrom(client, "done"));
    }

    /// The window with its frame, as the server has it, by a tool that knows nothing of this program.
    [[nodiscard]] Rect frameOf(const char* title) const
    {
        // The frame is the outermost window around the client's.
        static const QRegularExpression parent(QStringLiteral("Parent window id: (0x[0-9a-f]+)( \\(the root)?"));
        QString window = QString::number(desktop->windowTitled(title));
        for (;;) {
            const auto found = parent.match(desktop->ask({"xwininfo", "-tree", "-id", window.toStdString()}));
            if (!found.hasMatch() || !found.captured(2).isEmpty())
                break;
            window = found.captured(1);
        }
        const QString text = desktop->ask({"xwininfo", "-id", window.toStdString()});
        const auto number = [&](const char* name) {
            const QRegularExpression line(QString::fromLatin1(name) + QStringLiteral(": +(-?[0-9]+)"));
            return line.match(text).captured(1).toDouble();
        };
        return {.origin = {number("Absolute upper-left X"), number("Absolute upper-left Y")},
            .size = {number("Width"), number("Height")}};
    }

    std::unique_ptr<PrivateDesktop> desktop;
    posix::StdoutConsole console;
    desktop::QtScheduler scheduler;
    std::unique_ptr<desktop::XConnection> connection;
};

} // namespace tarvin::windows
