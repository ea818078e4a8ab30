#include "platform/posix/ControlSocket.h"

#include "endtoend/support/Patience.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include <atomic>
#include <thread>

namespace tarvin::posix {

namespace {

using namespace std::chrono_literals;
using endtoend::eventually;

class ControlSocketTest : public testing::Test
{
protected:
    /// Answers every command by the same in brackets.
    void listen()
    {
        socket = std::make_unique<ControlSocket>(path, [this](const QByteArray& line, ControlCaller& caller) {
            commands.push_back(line);
            caller.send('(' + line + ")\n");
            caller.finish();
        });
        ASSERT_TRUE(socket->isListening());
    }
    /// Calls in a thread of its own, as another process does, while the event loop runs.
    [[nodiscard]] std::optional<QByteArray> call(const QByteArray& line)
    {
        std::optional<QByteArray> answer;
        std::atomic isDone{false};
        std::thread caller([&] {
            if (auto connection = ControlConnection::open(path); connection && connection->send(line))
                answer = connection->readLine(5s);
            isDone = true;
        });
        EXPECT_TRUE(eventually([&] { return isDone.load(); }));
        caller.join();
        return answer;
    }

    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("control"));
    std::unique_ptr<ControlSocket> socket;
    std::vector<QByteArray> commands;
};

} // namespace

TEST_F(ControlSocketTest, aCommandIsAnswered)
{
    listen();
    EXPECT_EQ(call("hello\n"), QByteArray("(hello)"));
    EXPECT_EQ(call("again\n"), QByteArray("(again)"));
    EXPECT_EQ(commands.size(), 2U);
}

TEST_F(ControlSocketTest, aCommandAndAnAnswerOfManyMegabytesComeThrough)
{
    listen();
    const QByteArray large(5 * 1024 * 1024, 'x');
    EXPECT_EQ(call(large + '\n'), '(' + large + ')');
}

TEST_F(ControlSocketTest, onlyTheUserMayConnect)
{
    listen();
    EXPECT_EQ(
        QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther),
        QFile::Permissions());
}

TEST_F(ControlSocketTest, whereNobodyListensThereIsNoConnection)
{
    EXPECT_FALSE(ControlConnection::open(path));
    listen();
    socket.reset();
    EXPECT_FALSE(ControlConnection::open(path));
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST_F(ControlSocketTest, whatACrashedProgramLeftThereIsReplaced)
{
    // The socket of a process that is gone: bound, but nobody listens.
    {
        const Descriptor dead(::socket(AF_UNIX, SOCK_STREAM, 0));
        const auto address = socketAddress(path);
        ASSERT_EQ(bind(dead.number(), reinterpret_cast<const sockaddr*>(&*address), sizeof(*address)), 0);
    }
    EXPECT_FALSE(ControlConnection::open(path));
    listen();
    EXPECT_EQ(call("hello\n"), QByteArray("(hello)"));
}

TEST_F(ControlSocketTest, aPathThatIsTooLongIsNoSocket)
{
    const ControlSocket unusable(QString(200, u'x'), [](const QByteArray&, ControlCaller&) {});
    EXPECT_FALSE(unusable.isListening());
    EXPECT_FALSE(ControlConnection::open(QString(200, u'x')));
}

TEST_F(ControlSocketTest, aCallerThatLeavesWithoutAWordHarmsNobody)
{
    listen();
    for (int i = 0; i < 5; ++i) {
        auto connection = ControlConnection::open(path);
        ASSERT_TRUE(connection);
        ASSERT_TRUE(connection->send("half a comm"));
    }
    EXPECT_EQ(call("hello\n"), QByteArray("(hello)"));
    EXPECT_EQ(commands.size(), 1U);
}

TEST_F(ControlSocketTest, aCallerThatListensGetsLinesUntilItLeaves)
{
    ControlCaller* watcher = nullptr;
    socket = std::make_unique<ControlSocket>(path, [&](const QByteArray&, ControlCaller& caller) {
        watcher = &caller;
        caller.setGoneHandler([&watcher] { watcher = nullptr; });
    });
    auto connection = ControlConnection::open(path);
    ASSERT_TRUE(connection && connection->send("watch\n"));
    ASSERT_TRUE(eventually([&] { return watcher != nullptr; }));
    watcher->send("one\n");
    watcher->send("two\n");
    EXPECT_EQ(connection->readLine(5s), QByteArray("one"));
    EXPECT_EQ(connection->readLine(5s), QByteArray("two"));
    EXPECT_EQ(connection->readLine(10ms), std::nullopt);
    connection.reset();
    EXPECT_TRUE(eventually([&] { return watcher == nullptr; }));
}

TEST_F(ControlSocketTest, theEndOfTheProgramEndsTheConversation)
{
    socket =
        std::make_unique<ControlSocket>(path, [](const QByteArray&, ControlCaller& caller) { caller.send("one\n"); });
    auto connection = ControlConnection::open(path);
    ASSERT_TRUE(connection && connection->send("watch\n"));
    ASSERT_TRUE(eventually([&] { return connection->readLine(1ms) == QByteArray("one"); }));
    socket.reset();
    EXPECT_EQ(connection->readLine(5s), std::nullopt);
}

} // namespace tarvin::posix
