#include "tapd/protocol/Frames.h"

#include <type_traits>

namespace tarvin::tapd {

namespace {

constexpr std::size_t bitsPerByte = 8;

/// The types as they stand in a header. Those of the daemon begin where the application's can't reach.
enum class FrameType : std::uint8_t {
    publish = 1,
    pong = 2,
    post = 3,
    welcome = 65,
    keyTaken = 66,
    summonTaken = 67,
    ping = 68,
    wayOut = 69,
};

/// The greatest key code that the kernel knows (KEY_MAX of <linux/input-event-codes.h>).
constexpr std::uint32_t largestKeyCode = 0x2FF;

/// Reads the fields of a frame one after the other. Once something was wrong it stays wrong.
class FieldReader
{
public:
    explicit FieldReader(std::span<const std::byte> fields)
        : m_fields(fields)
    { }

    std::uint32_t number(std::size_t size, std::uint32_t largest)
    {
        if (m_fields.size() < size) {
            m_isSound = false;
            return 0;
        }
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value |= std::to_integer<std::uint32_t>(m_fields[i]) << (bitsPerByte * i);
        m_fields = m_fields.subspan(size);
        m_isSound = m_isSound && value <= largest;
        return value;
    }
    std::uint32_t word() { return number(sizeof(std::uint32_t), UINT32_MAX); }
    bool flag() { return number(1, 1) == 1; }
    KeyMotion motion(KeyMotion last) { return static_cast<KeyMotion>(number(1, static_cast<std::uint32_t>(last))); }
    std::uint16_t code() { return static_cast<std::uint16_t>(number(sizeof(std::uint16_t), largestKeyCode)); }

    /// The frame, if all its fields were there and nothing is left.
    template <typename Result, typename Frame> std::optional<Result> finish(const Frame& frame) const
    {
        if (!m_isSound || !m_fields.empty())
            return std::nullopt;
        return Result(frame);
    }

private:
    std::span<const std::byte> m_fields;
    bool m_isSound = true;
};

/// The type and the fields of a message whose header is in order.
struct Message
{
    FrameType type;
    std::span<const std::byte> fields;
};

std::optional<Message> open(std::span<const std::byte> message)
{
    if (versionOf(message) != protocolVersion)
        return std::nullopt;
    const auto fields = message.subspan(FrameBytes::headerSize);
    const auto length =
        std::to_integer<std::size_t>(message[2]) | std::to_integer<std::size_t>(message[3]) << bitsPerByte;
    if (length != fields.size())
        return std::nullopt;
    return Message{static_cast<FrameType>(message[1]), fields};
}

FrameBytes finish(FrameBytes bytes, FrameType type)
{
    bytes.setHeader(static_cast<std::uint8_t>(type));
    return bytes;
}

} // namespace

void FrameBytes::append(std::uint32_t number, std::size_t size)
{
    constexpr std::uint32_t byteMask = 0xFF;
    for (std::size_t i = 0; i < size && m_size < m_bytes.size(); ++i)
        m_bytes[m_size++] = static_cast<std::byte>(number >> (bitsPerByte * i) & byteMask);
}

void FrameBytes::setHeader(std::uint8_t type)
{
    m_bytes[0] = std::byte{protocolVersion};
    m_bytes[1] = std::byte{type};
    m_bytes[2] = static_cast<std::byte>(m_size - headerSize);
    m_bytes[3] = std::byte{0};
}

FrameBytes encode(const ApplicationFrame& frame)
{
    return std::visit(
        [](const auto& each) {
            using Each = std::decay_t<decltype(each)>;
            FrameBytes bytes;
            if constexpr (std::is_same_v<Each, Publish>) {
                bytes.append(each.keys, sizeof each.keys);
                bytes.append(each.takesSummon ? 1 : 0, 1);
                bytes.append(each.wayOutsSeen, sizeof each.wayOutsSeen);
                return finish(bytes, FrameType::publish);
            } else if constexpr (std::is_same_v<Each, Pong>) {
                bytes.append(each.number, sizeof each.number);
                return finish(bytes, FrameType::pong);
            } else {
                bytes.append(each.code, sizeof each.code);
                bytes.append(static_cast<std::uint32_t>(each.motion), 1);
                return finish(bytes, FrameType::post);
            }
        },
        frame);
}

FrameBytes encode(const DaemonFrame& frame)
{
    return std::visit(
        [](const auto& each) {
            using Each = std::decay_t<decltype(each)>;
            FrameBytes bytes;
            if constexpr (std::is_same_v<Each, Welcome>) {
                bytes.append(each.wayOuts, sizeof each.wayOuts);
                bytes.append(each.isOut ? 1 : 0, 1);
                return finish(bytes, FrameType::welcome);
            } else if constexpr (std::is_same_v<Each, KeyTaken>) {
                bytes.append(each.key, sizeof each.key);
                bytes.append(each.code, sizeof each.code);
                bytes.append(static_cast<std::uint32_t>(each.motion), 1);
                bytes.append(each.scan, sizeof each.scan);
                return finish(bytes, FrameType::keyTaken);
            } else if constexpr (std::is_same_v<Each, SummonTaken>) {
                bytes.append(static_cast<std::uint32_t>(each.motion), 1);
                return finish(bytes, FrameType::summonTaken);
            } else if constexpr (std::is_same_v<Each, Ping>) {
                bytes.append(each.number, sizeof each.number);
                return finish(bytes, FrameType::ping);
            } else {
                bytes.append(each.wayOuts, sizeof each.wayOuts);
                return finish(bytes, FrameType::wayOut);
            }
        },
        frame);
}

std::optional<std::uint8_t> versionOf(std::span<const std::byte> message)
{
    if (message.size() < FrameBytes::headerSize)
        return std::nullopt;
    return std::to_integer<std::uint8_t>(message.front());
}

std::optional<ApplicationFrame> decodeApplicationFrame(std::span<const std::byte> message)
{
    const auto opened = open(message);
    if (!opened)
        return std::nullopt;
    FieldReader fields(opened->fields);
    switch (opened->type) {
    case FrameType::publish: {
        Publish publish;
        publish.keys = fields.number(sizeof publish.keys, allKeys);
        publish.takesSummon = fields.flag();
        publish.wayOutsSeen = fields.word();
        return fields.finish<ApplicationFrame>(publish);
    }
    case FrameType::pong: {
        const Pong pong{.number = fields.word()};
        return fields.finish<ApplicationFrame>(pong);
    }
    case FrameType::post: {
        Post post;
        post.code = fields.code();
        post.motion = fields.motion(KeyMotion::press);
        return fields.finish<ApplicationFrame>(post);
    }
    case FrameType::welcome:
    case FrameType::keyTaken:
    case FrameType::summonTaken:
    case FrameType::ping:
    case FrameType::wayOut:
        break;
    }
    return std::nullopt;
}

std::optional<DaemonFrame> decodeDaemonFrame(std::span<const std::byte> message)
{
    const auto opened = open(message);
    if (!opened)
        return std::nullopt;
    FieldReader fields(opened->fields);
    switch (opened->type) {
    case FrameType::welcome: {
        Welcome welcome;
        welcome.wayOuts = fields.word();
        welcome.isOut = fields.flag();
        return fields.finish<DaemonFrame>(welcome);
    }
    case FrameType::keyTaken: {
        KeyTaken taken;
        taken.key = static_cast<std::uint8_t>(fields.number(sizeof taken.key, keyCount - 1));
        taken.code = fields.code();
        taken.motion = fields.motion(KeyMotion::repeat);
        taken.scan = fields.word();
        return fields.finish<DaemonFrame>(taken);
    }
    case FrameType::summonTaken: {
        const SummonTaken taken{.motion = fields.motion(KeyMotion::repeat)};
        return fields.finish<DaemonFrame>(taken);
    }
    case FrameType::ping: {
        const Ping ping{.number = fields.word()};
        return fields.finish<DaemonFrame>(ping);
    }
    case FrameType::wayOut: {
        const WayOut wayOut{.wayOuts = fields.word()};
        return fields.finish<DaemonFrame>(wayOut);
    }
    case FrameType::publish:
    case FrameType::pong:
    case FrameType::post:
        break;
    }
    return std::nullopt;
}

} // namespace tarvin::tapd
