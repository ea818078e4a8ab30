#include "platform/linux/pasteboard/SelectionEngine.h"

#include "endtoend/support/XServer.h"
#include "platform/linux/pasteboard/support/ScriptedOwner.h"

#include <gtest/gtest.h>

#include <poll.h>

namespace tarvin::pasteboard {
namespace {

TEST(SelectionEngine, aCopyingAtTheMomentAReadingIsGivenUpIsNotLeftLying)
{
    if (const auto lack = endtoend::XServer::lack(endtoend::XServer::Kind::virtualFramebuffer))
        GTEST_SKIP() << *lack;
    const endtoend::XServer server;
    std::atomic<std::int64_t> changes = 0;
    SelectionEngine engine(SelectionServer::connect(QByteArray::fromStdString(server.display())), changes);
    const test::ScriptedOwner silent(server.display(), [](auto&, const auto&) {});

    std::optional<std::int64_t> before;
    engine.read([&](const std::optional<PasteboardText>& text) {
        EXPECT_EQ(text, std::nullopt);
        before = changes;
        silent.copyAgain();
    });
    // As the thread does it: until the socket has nothing more, and nothing is to be done at any time.
    auto next = engine.attend();
    pollfd socket{engine.fileDescriptor(), POLLIN, 0};
    const auto waitFor = [&next] {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now());
        return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
    };
    while (poll(&socket, 1, next ? waitFor() : 0) > 0 || next)
        next = engine.attend();
    ASSERT_TRUE(before);
    EXPECT_EQ(changes, *before + 1);
}

} // namespace
} // namespace tarvin::pasteboard
