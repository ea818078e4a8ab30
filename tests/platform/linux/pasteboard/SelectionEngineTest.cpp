#include "platform/linux/pasteboard/SelectionEngine.h"

#include "endtoend/support/XServer.h"
#include "platform/linux/pasteboard/support/ScriptedOwner.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>

#include <poll.h>

namespace tarvin::pasteboard {
namespace {

class SelectionEngineTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (const auto lack = endtoend::XServer::lack(endtoend::XServer::Kind::virtualFramebuffer))
            GTEST_SKIP() << *lack;
        server = std::make_unique<endtoend::XServer>();
        engine = std::make_unique<SelectionEngine>(
            SelectionServer::connect(QByteArray::fromStdString(server->display())), changes);
    }

    /// As the thread does it: until the socket has nothing more, and nothing is to be done at any time.
    void attend() const
    {
        pollfd socket{engine->fileDescriptor(), POLLIN, 0};
        std::optional<Clock::time_point> next;
        do {
            next = engine->attend();
        } while (poll(&socket, 1, next ? millisecondsUntil(*next) : 0) > 0 || next);
    }

    std::unique_ptr<endtoend::XServer> server;
    std::atomic<std::int64_t> changes = 0;
    std::unique_ptr<SelectionEngine> engine;

private:
    static int millisecondsUntil(Clock::time_point moment)
    {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(moment - Clock::now());
        return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
    }
};

TEST_F(SelectionEngineTest, aCopyingAtTheMomentAReadingIsGivenUpIsNotLeftLying)
{
    const test::ScriptedOwner silent(server->display(), [](auto&, const auto&) {});
    std::optional<std::int64_t> before;
    engine->read([&](const std::optional<PasteboardText>& text) {
        EXPECT_EQ(text, std::nullopt);
        before = changes;
        silent.copyAgain();
    });
    attend();
    ASSERT_TRUE(before);
    EXPECT_EQ(changes, *before + 1);
}

TEST_F(SelectionEngineTest, anAnswerThatIsThereCountsHoweverLateItIsLookedAt)
{
    const test::ScriptedOwner prompt(server->display(), test::ownerOf("there"));
    std::optional<PasteboardText> got;
    engine->read([&got](const std::optional<PasteboardText>& text) { got = text; });
    ASSERT_TRUE(engine->attend()) << "asked, and not answered yet";
    // The machine was asleep, or the thread had other work.
    std::this_thread::sleep_for(SelectionReader::silence + std::chrono::milliseconds(100));
    attend();
    EXPECT_EQ(got, (PasteboardText{.text = QStringLiteral("there")}));
}

} // namespace
} // namespace tarvin::pasteboard
