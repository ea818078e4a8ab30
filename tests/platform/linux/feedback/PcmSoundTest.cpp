#include "platform/linux/feedback/PcmSound.h"

#include "platform/linux/feedback/ClickSound.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QtEndian>

#include <algorithm>
#include <cstdlib>

namespace tarvin::feedback {

namespace {

using testing::ElementsAre;

template <typename Number> QByteArray little(Number value)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

template <typename Number> QByteArray big(Number value)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray waveChunk(const char* name, const QByteArray& content)
{
    return name + little(quint32(content.size())) + content + QByteArray(content.size() % 2, '\0');
}

QByteArray wave(const QByteArray& chunks)
{
    return "RIFF" + little(quint32(chunks.size() + 4)) + "WAVE" + chunks;
}

QByteArray waveFormat(quint16 channels, quint32 rate, quint16 bits = 16, quint16 coding = 1)
{
    const auto frame = static_cast<quint16>(channels * bits / 8);
    return waveChunk(
        "fmt ", little(coding) + little(channels) + little(rate) + little(rate * frame) + little(frame) + little(bits));
}

const QByteArray threeSamples = little(qint16(1)) + little(qint16(-2)) + little(qint16(300));

QByteArray aiffChunk(const char* name, const QByteArray& content)
{
    return name + big(quint32(content.size())) + content + QByteArray(content.size() % 2, '\0');
}

/// 44100 as an extended float.
const QByteArray rate44100 = big(quint16(16383 + 15)) + big(quint64(44100) << 48);

QByteArray aiff(const char* kind, const QByteArray& compression, const QByteArray& samples, quint32 offset = 0)
{
    const QByteArray chunks =
        aiffChunk(
            "COMM", big(quint16(1)) + big(quint32(samples.size() / 2)) + big(quint16(16)) + rate44100 + compression)
        + aiffChunk("SSND", big(offset) + big(quint32(0)) + QByteArray(qsizetype(offset), 'x') + samples);
    return "FORM" + big(quint32(chunks.size() + 4)) + kind + chunks;
}

} // namespace

TEST(PcmSound, aWaveFileIsRead)
{
    const auto sound = decodeSound(wave(waveFormat(1, 22050) + waveChunk("data", threeSamples)));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->rate, 22050U);
    EXPECT_EQ(sound->channels, 1);
    EXPECT_THAT(sound->samples, ElementsAre(1, -2, 300));
}

TEST(PcmSound, chunksOfOtherKindsAreSteppedOverEvenWhenOfOddLength)
{
    const auto sound = decodeSound(wave(
        waveChunk("LIST", "abc") + waveFormat(1, 8000) + waveChunk("fact", "x") + waveChunk("data", threeSamples)));
    ASSERT_TRUE(sound);
    EXPECT_THAT(sound->samples, ElementsAre(1, -2, 300));
}

TEST(PcmSound, aHalfFrameAtTheEndIsDropped)
{
    const auto sound = decodeSound(wave(waveFormat(2, 44100) + waveChunk("data", threeSamples)));
    ASSERT_TRUE(sound);
    EXPECT_THAT(sound->samples, ElementsAre(1, -2));
}

TEST(PcmSound, anAiffFileIsRead)
{
    const QByteArray samples = big(qint16(1)) + big(qint16(-2)) + big(qint16(300));
    const auto sound = decodeSound(aiff("AIFF", {}, samples));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->rate, 44100U);
    EXPECT_THAT(sound->samples, ElementsAre(1, -2, 300));
    EXPECT_EQ(decodeSound(aiff("AIFF", {}, samples, 6)), sound);
    EXPECT_EQ(decodeSound(aiff("AIFC", "NONE", samples)), sound);
    EXPECT_EQ(decodeSound(aiff("AIFC", "twos", samples)), sound);
    EXPECT_EQ(decodeSound(aiff("AIFC", "sowt", threeSamples)), sound);
}

TEST(PcmSound, whatIsNoPlainSoundIsRefused)
{
    const QByteArray data = waveChunk("data", threeSamples);
    EXPECT_FALSE(decodeSound({}));
    EXPECT_FALSE(decodeSound("OggS and more that is no sound of ours"));
    EXPECT_FALSE(decodeSound(wave(data))); // no format
    EXPECT_FALSE(decodeSound(wave(waveFormat(1, 44100)))); // no samples
    EXPECT_FALSE(decodeSound(wave(waveFormat(1, 44100) + waveChunk("data", {}))));
    EXPECT_FALSE(decodeSound(wave(waveFormat(1, 44100, 24) + data)));
    EXPECT_FALSE(decodeSound(wave(waveFormat(1, 44100, 16, 3) + data)));
    EXPECT_FALSE(decodeSound(wave(waveFormat(0, 44100) + data)));
    EXPECT_FALSE(decodeSound(wave(waveFormat(6, 44100) + data)));
    EXPECT_FALSE(decodeSound(wave(waveFormat(1, 0) + data)));
    EXPECT_FALSE(decodeSound(wave(waveFormat(1, 4000000) + data)));
    EXPECT_FALSE(decodeSound(aiff("AIFC", "ima4", threeSamples)));
}

TEST(PcmSound, aCutFileIsRefusedWhereverItIsCut)
{
    const QByteArray whole = wave(waveFormat(1, 22050) + waveChunk("data", threeSamples));
    const QByteArray other = aiff("AIFC", "sowt", threeSamples);
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(decodeSound(whole.left(length))) << length;
    for (qsizetype length = 0; length < other.size(); ++length)
        EXPECT_FALSE(decodeSound(other.left(length))) << length;
}

TEST(PcmSound, aFileIsReadAndAMissingOneIsNot)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.wav")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(wave(waveFormat(1, 22050) + waveChunk("data", threeSamples)));
    file.close();
    EXPECT_TRUE(readSoundFile(file.fileName()));
    EXPECT_FALSE(readSoundFile(folder.filePath(QStringLiteral("b.wav"))));
    EXPECT_FALSE(readSoundFile(folder.path()));
}

TEST(ClickSound, itIsShortSoftAndBeginsAndEndsInSilence)
{
    const PcmSound click = clickSound();
    EXPECT_EQ(click.channels, 1);
    const double seconds = static_cast<double>(click.samples.size()) / click.rate;
    EXPECT_GT(seconds, 0.005);
    EXPECT_LT(seconds, 0.03);
    const auto loudest = std::ranges::max_element(click.samples, {}, [](int sample) { return std::abs(sample); });
    EXPECT_GT(std::abs(int{*loudest}), 4000);
    EXPECT_LT(std::abs(int{*loudest}), 16000);
    // The stroke comes first: nobody waits for it.
    EXPECT_LT(loudest - click.samples.begin(), static_cast<std::ptrdiff_t>(click.rate / 250));
    EXPECT_LT(std::abs(int{click.samples.front()}), 50);
    EXPECT_LT(std::abs(int{click.samples.back()}), 50);
    EXPECT_EQ(clickSound(), click);
}

} // namespace tarvin::feedback
