#include "platform/linux/windows/DisplayPower.h"

#include "endtoend/support/XServer.h"
#include "platform/linux/desktop/support/EnvironmentChange.h"

#include <thread>

namespace tarvin::windows {

using endtoend::EnvironmentChange;
using endtoend::XServer;

namespace {

bool switchOffOn(const QByteArray& display)
{
    const EnvironmentChange server("DISPLAY", display);
    bool isDone = false;
    std::thread([&] { isDone = switchDisplaysOff(); }).join();
    return isDone;
}

} // namespace

TEST(DisplayPower, aServerWithoutDisplaysSaysSo)
{
    if (const auto lack = XServer::lack(XServer::Kind::virtualFramebuffer))
        GTEST_SKIP() << *lack;
    const XServer server;
    EXPECT_FALSE(switchOffOn(QByteArray::fromStdString(server.display())));
    EXPECT_FALSE(switchOffOn(":999"));
}

} // namespace tarvin::windows
