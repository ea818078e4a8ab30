#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <variant>

// What the tap daemon and the application say to each other over a local socket that keeps messages apart
// (SOCK_SEQPACKET). One message is one frame:
//
//     byte 0      version of the protocol
//     byte 1      type of the frame
//     bytes 2, 3  length of what follows, least significant byte first, as all numbers
//     from 4      the fields of the frame in the order of its structure
//
// The daemon speaks first, with `Welcome`. Whatever is not exactly a frame of this version ends the connection.

namespace tarvin::tapd {

inline constexpr std::uint8_t protocolVersion = 1;

/// Where the daemon listens unless told otherwise.
inline constexpr const char* defaultSocketPath = "/run/tarvin/tapd.sock";
/// The environment variable by which the application is sent elsewhere.
inline constexpr const char* socketPathVariable = "TARVIN_TAPD_SOCKET";

/// How many keys can be customised; bit n of a set of keys stands for the key of order n.
inline constexpr std::uint32_t keyCount = 24;
inline constexpr std::uint32_t allKeys = (std::uint32_t{1} << keyCount) - 1;

/// What a key did, with the numbers of the kernel's key events.
enum class KeyMotion : std::uint8_t { release = 0, press = 1, repeat = 2 };

// From the application.

/// What to take from now on. Takes the place of what was published before.
struct Publish
{
    std::uint32_t keys = 0; ///< the keys that are customised now
    bool takesSummon = false; ///< whether the summon shortcut is taken
    std::uint32_t wayOutsSeen = 0; ///< the count of the last `WayOut` or `Welcome` that was received
    friend bool operator==(const Publish&, const Publish&) = default;
};

/// The answer to `Ping`.
struct Pong
{
    std::uint32_t number = 0;
    friend bool operator==(const Pong&, const Pong&) = default;
};

/// A synthetic key event, posted through the device that is only for them.
struct Post
{
    std::uint16_t code = 0; ///< of <linux/input-event-codes.h>
    KeyMotion motion = KeyMotion::release; ///< no repeats
    friend bool operator==(const Post&, const Post&) = default;
};

using ApplicationFrame = std::variant<Publish, Pong, Post>;

// From the daemon.

/// The application is accepted. Nothing is taken yet.
struct Welcome
{
    std::uint32_t wayOuts = 0; ///< how often the way out was taken so far
    bool isOut = false; ///< whether the keyboards are still given back since the last time
    friend bool operator==(const Welcome&, const Welcome&) = default;
};

/// A customised key was taken.
struct KeyTaken
{
    std::uint8_t key = 0; ///< its order
    std::uint16_t code = 0; ///< which of the codes that mean this key
    KeyMotion motion = KeyMotion::press;
    std::uint32_t scan = 0; ///< HID page in the upper half, usage in the lower; 0 where the keyboard does not tell
    friend bool operator==(const KeyTaken&, const KeyTaken&) = default;
};

/// The summon shortcut was taken.
struct SummonTaken
{
    KeyMotion motion = KeyMotion::press; ///< no releases
    friend bool operator==(const SummonTaken&, const SummonTaken&) = default;
};

struct Ping
{
    std::uint32_t number = 0;
    friend bool operator==(const Ping&, const Ping&) = default;
};

/// The user took the way out. Nothing is taken any more until keys are published again by somebody who knows of it.
struct WayOut
{
    std::uint32_t wayOuts = 0; ///< how often so far
    friend bool operator==(const WayOut&, const WayOut&) = default;
};

using DaemonFrame = std::variant<Welcome, KeyTaken, SummonTaken, Ping, WayOut>;

/// The bytes of one frame.
class FrameBytes
{
public:
    static constexpr std::size_t headerSize = 4;
    static constexpr std::size_t largest = 16;

    [[nodiscard]] std::span<const std::byte> bytes() const { return {m_bytes.data(), m_size}; }
    void append(std::uint32_t number, std::size_t size);
    void setHeader(std::uint8_t type);

private:
    std::array<std::byte, largest> m_bytes{};
    std::size_t m_size = headerSize;
};

[[nodiscard]] FrameBytes encode(const ApplicationFrame& frame);
[[nodiscard]] FrameBytes encode(const DaemonFrame& frame);

/// Empty for whatever is not exactly one frame with meaningful fields.
[[nodiscard]] std::optional<ApplicationFrame> decodeApplicationFrame(std::span<const std::byte> message);
[[nodiscard]] std::optional<DaemonFrame> decodeDaemonFrame(std::span<const std::byte> message);

/// The version that a message claims; empty for one without a header.
[[nodiscard]] std::optional<std::uint8_t> versionOf(std::span<const std::byte> message);

} // namespace tarvin::tapd
