#include "tapd/protocol/Frames.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace tarvin::tapd::test {

namespace {

std::vector<ApplicationFrame> applicationFrames()
{
    return {Publish{}, Publish{.keys = allKeys, .takesSummon = true, .wayOutsSeen = 0xFFFFFFFF},
        Publish{.keys = 0x10, .wayOutsSeen = 258}, Pong{.number = 0xDEADBEEF}, Post{.code = 30},
        Post{.code = 0x2FF, .motion = KeyMotion::press}};
}

std::vector<DaemonFrame> daemonFrames()
{
    return {Welcome{}, Welcome{.wayOuts = 7, .isOut = true}, KeyTaken{},
        KeyTaken{.key = 23, .code = 189, .motion = KeyMotion::repeat, .scan = 0x7006E},
        SummonTaken{.motion = KeyMotion::repeat}, Ping{.number = 12}, WayOut{.wayOuts = 3}};
}

std::vector<std::byte> bytesOf(const FrameBytes& frame)
{
    const auto bytes = frame.bytes();
    return {bytes.begin(), bytes.end()};
}

std::vector<std::byte> message(std::initializer_list<int> bytes)
{
    std::vector<std::byte> result;
    for (const int each : bytes)
        result.push_back(static_cast<std::byte>(each));
    return result;
}

/// Every frame there is, as bytes.
std::vector<std::vector<std::byte>> everyFrame()
{
    std::vector<std::vector<std::byte>> all;
    for (const auto& frame : applicationFrames())
        all.push_back(bytesOf(encode(frame)));
    for (const auto& frame : daemonFrames())
        all.push_back(bytesOf(encode(frame)));
    return all;
}

} // namespace

TEST(Frames, whatIsEncodedIsDecodedAgain)
{
    for (const ApplicationFrame& frame : applicationFrames()) {
        EXPECT_EQ(decodeApplicationFrame(encode(frame).bytes()), frame);
        EXPECT_FALSE(decodeDaemonFrame(encode(frame).bytes())) << "each side speaks its own frames";
    }
    for (const DaemonFrame& frame : daemonFrames()) {
        EXPECT_EQ(decodeDaemonFrame(encode(frame).bytes()), frame);
        EXPECT_FALSE(decodeApplicationFrame(encode(frame).bytes()));
    }
}

TEST(Frames, theBytesAreThoseOfTheDocumentedForm)
{
    EXPECT_EQ(bytesOf(encode(ApplicationFrame(Publish{.keys = 0x030201, .takesSummon = true, .wayOutsSeen = 5}))),
        message({1, 1, 9, 0, 1, 2, 3, 0, 1, 5, 0, 0, 0}));
    EXPECT_EQ(bytesOf(encode(DaemonFrame(KeyTaken{.key = 4, .code = 63, .motion = KeyMotion::press, .scan = 0x7003E}))),
        message({1, 66, 8, 0, 4, 63, 0, 1, 0x3E, 0, 7, 0}));
}

TEST(Frames, aFrameOfAnotherLengthIsNone)
{
    for (const auto& frame : everyFrame()) {
        for (std::size_t length = 0; length <= frame.size() + 2; ++length) {
            std::vector<std::byte> other = frame;
            other.resize(length);
            const bool isFrame = decodeApplicationFrame(other).has_value() || decodeDaemonFrame(other).has_value();
            EXPECT_EQ(isFrame, length == frame.size());
        }
    }
}

TEST(Frames, aFrameWhoseHeaderClaimsAnotherLengthIsNone)
{
    for (auto frame : everyFrame()) {
        frame[2] = static_cast<std::byte>(std::to_integer<int>(frame[2]) + 1);
        EXPECT_FALSE(decodeApplicationFrame(frame));
        EXPECT_FALSE(decodeDaemonFrame(frame));
    }
}

TEST(Frames, aFrameOfAnotherVersionIsNone)
{
    for (auto frame : everyFrame()) {
        frame[0] = std::byte{protocolVersion + 1};
        EXPECT_EQ(versionOf(frame), protocolVersion + 1);
        EXPECT_FALSE(decodeApplicationFrame(frame));
        EXPECT_FALSE(decodeDaemonFrame(frame));
    }
}

TEST(Frames, aFieldWithoutMeaningMakesNoFrame)
{
    EXPECT_FALSE(decodeApplicationFrame(message({1, 1, 9, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0}))) << "a 25th key";
    EXPECT_FALSE(decodeApplicationFrame(message({1, 1, 9, 0, 0, 0, 0, 0, 2, 0, 0, 0, 0}))) << "a flag of 2";
    EXPECT_FALSE(decodeApplicationFrame(message({1, 3, 3, 0, 30, 0, 2}))) << "a posted repeat";
    EXPECT_FALSE(decodeApplicationFrame(message({1, 3, 3, 0, 0, 3, 1}))) << "a code that no key has";
    EXPECT_FALSE(decodeDaemonFrame(message({1, 66, 8, 0, 24, 63, 0, 1, 0, 0, 0, 0}))) << "a 25th key";
    EXPECT_FALSE(decodeDaemonFrame(message({1, 67, 1, 0, 3}))) << "a fourth motion";
    EXPECT_FALSE(decodeApplicationFrame(message({1, 4, 0, 0}))) << "an unknown type";
}

/// Whatever bytes come, decoding ends, reads nothing beyond them (the address sanitizer looks), and what it takes for a
/// frame is one: encoded again it gives the same bytes.
TEST(Frames, noBytesWhateverTheyAreAreTakenForMoreThanTheyHold)
{
    constexpr int rounds = 200'000;
    const auto seeds = everyFrame();
    std::mt19937 random(20240601);
    int taken = 0;
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::byte> bytes = seeds[random() % seeds.size()];
        for (unsigned change = random() % 4; change > 0 && !bytes.empty(); --change) {
            switch (random() % 4) {
            case 0:
                bytes[random() % bytes.size()] = static_cast<std::byte>(random());
                break;
            case 1:
                bytes.resize(random() % (bytes.size() + 4));
                break;
            case 2:
                bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(random() % bytes.size()),
                    static_cast<std::byte>(random()));
                break;
            default:
                bytes[random() % bytes.size()] ^= static_cast<std::byte>(1U << random() % 8);
                break;
            }
        }
        bytes.shrink_to_fit();
        if (const auto frame = decodeApplicationFrame(bytes)) {
            EXPECT_EQ(bytesOf(encode(*frame)), bytes);
            ++taken;
        }
        if (const auto frame = decodeDaemonFrame(bytes)) {
            EXPECT_EQ(bytesOf(encode(*frame)), bytes);
            ++taken;
        }
    }
    EXPECT_GT(taken, rounds / 10) << "the input hardly ever was a frame, so little was tried";
    EXPECT_LT(taken, rounds) << "the input always was a frame";
}

} // namespace tarvin::tapd::test
