#pragma once

#include "model/FKeySet.h"
#include "platform/keycodes/KeyCodeTable.h"
#include "tapd/service/TapService.h"
#include "tapd/support/RecordedKeyboard.h"

#include <sys/socket.h>

#include <string>
#include <utility>
#include <vector>

namespace tarvin::tapd::test {

/// Devices that only remember what was written to them.
class RecordedOutputs final : public EventOutputs
{
public:
    void write(Output, std::span<const input_event> events) override { append(m_written, events); }
    void post(std::span<const input_event> events) override { append(m_posted, events); }

    [[nodiscard]] std::string takeWritten() { return inWords(std::exchange(m_written, {})); }
    [[nodiscard]] std::string takePosted() { return inWords(std::exchange(m_posted, {})); }

private:
    static void append(std::vector<input_event>& all, std::span<const input_event> events)
    {
        all.insert(all.end(), events.begin(), events.end());
    }

    std::vector<input_event> m_written;
    std::vector<input_event> m_posted;
};

/// The application's end of a connection, and every byte that ever came out of it.
class ApplicationEnd
{
public:
    explicit ApplicationEnd(FileDescriptor descriptor)
        : m_socket(std::move(descriptor))
    { }

    [[nodiscard]] bool send(std::span<const std::byte> bytes) { return m_socket.send(bytes); }
    bool send(const ApplicationFrame& frame) { return send(encode(frame).bytes()); }
    /// The frames that have come since the last call.
    [[nodiscard]] std::vector<DaemonFrame> receive()
    {
        std::vector<DaemonFrame> frames;
        for (;;) {
            const auto received = m_socket.receive();
            m_isClosed = m_isClosed || received == FrameSocket::Received::closed;
            if (received != FrameSocket::Received::message)
                return frames;
            const auto message = m_socket.message();
            m_bytes.insert(m_bytes.end(), message.begin(), message.end());
            if (const auto frame = decodeDaemonFrame(message))
                frames.push_back(*frame);
        }
    }
    /// Takes what has come, and tells whether the other end has closed.
    [[nodiscard]] bool isClosed()
    {
        static_cast<void>(receive());
        return m_isClosed;
    }
    [[nodiscard]] const std::vector<std::byte>& bytes() const { return m_bytes; }

private:
    FrameSocket m_socket;
    std::vector<std::byte> m_bytes;
    bool m_isClosed = false;
};

/// A service with one keyboard, without devices.
class ServiceBench
{
public:
    [[nodiscard]] ApplicationEnd connect()
    {
        std::array<int, 2> ends{-1, -1};
        EXPECT_EQ(::socketpair(AF_UNIX, SOCK_SEQPACKET | SOCK_NONBLOCK | SOCK_CLOEXEC, 0, ends.data()), 0);
        service.accept(FrameSocket(FileDescriptor(ends[0])), now());
        return ApplicationEnd(FileDescriptor(ends[1]));
    }
    void publish(ApplicationEnd& application, FKeySet keys, std::uint32_t wayOutsSeen = 0)
    {
        application.send(Publish{.keys = keys.bits(), .wayOutsSeen = wayOutsSeen});
        service.readApplication(now());
    }
    /// What the system sees of the words.
    std::string play(std::string_view words)
    {
        service.handleEvents(keyboard, recorded.record(words));
        return outputs.takeWritten();
    }
    /// Lets time pass as the daemon's loop does: nothing is done before it is due.
    void advance(EventTime time)
    {
        const EventTime end = now() + time;
        while (const auto deadline = service.deadline(now())) {
            if (*deadline > end)
                break;
            m_extra += std::max(*deadline - now(), EventTime(0));
            service.tick(now());
        }
        m_extra += end - now();
        service.tick(now());
    }
    [[nodiscard]] EventTime now() const { return recorded.now() + m_extra; }

    RecordedOutputs outputs;
    TapService service{outputs};
    KeyboardId keyboard = service.attach(Output::external);
    RecordedKeyboard recorded;

private:
    EventTime m_extra{0};
};

/// Frames in words: "welcome", "+f5 0x7003e", "+summon", "ping", "way out 1".
[[nodiscard]] inline std::string inWords(const std::vector<DaemonFrame>& frames)
{
    std::string words;
    const auto sign = [](KeyMotion motion) { return std::string(1, "-+~"[static_cast<int>(motion)]); };
    for (const DaemonFrame& frame : frames) {
        if (!words.empty())
            words += ", ";
        if (std::holds_alternative<Welcome>(frame))
            words += std::get<Welcome>(frame).isOut ? "welcome out" : "welcome";
        else if (const auto* const taken = std::get_if<KeyTaken>(&frame))
            words += sign(taken->motion) + nameOf(taken->code);
        else if (const auto* const summon = std::get_if<SummonTaken>(&frame))
            words += sign(summon->motion) + "summon";
        else if (std::holds_alternative<Ping>(frame))
            words += "ping";
        else
            words += "way out " + std::to_string(std::get<WayOut>(frame).wayOuts);
    }
    return words;
}

} // namespace tarvin::tapd::test
