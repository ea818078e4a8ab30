#include "platform/linux/feedback/PcmSound.h"

#include <QFile>
#include <QtEndian>

#include <cmath>

namespace tarvin::feedback {

namespace {

constexpr std::uint32_t highestRate = 192000;
constexpr qsizetype chunkHeaderSize = 8;

enum class ByteOrder { little, big };

std::uint16_t number16(const QByteArray& bytes, qsizetype at, ByteOrder order)
{
    const char* place = bytes.constData() + at;
    return order == ByteOrder::little ? qFromLittleEndian<quint16>(place) : qFromBigEndian<quint16>(place);
}

std::uint32_t number32(const QByteArray& bytes, qsizetype at, ByteOrder order)
{
    const char* place = bytes.constData() + at;
    return order == ByteOrder::little ? qFromLittleEndian<quint32>(place) : qFromBigEndian<quint32>(place);
}

/// The content of the first chunk of that name; empty if there is none or it is cut.
QByteArray chunk(const QByteArray& content, const char* name, ByteOrder order)
{
    constexpr qsizetype firstChunk = 12; // behind the name of the form, its size and its kind
    for (qsizetype at = firstChunk; at + chunkHeaderSize <= content.size();) {
        const auto size = static_cast<qsizetype>(number32(content, at + 4, order));
        if (size > content.size() - at - chunkHeaderSize)
            return {};
        if (content.mid(at, 4) == name)
            return content.mid(at + chunkHeaderSize, size);
        at += chunkHeaderSize + size + size % 2; // chunks begin at even places
    }
    return {};
}

/// The rate of an AIFF file, an extended float of 80 bits; absent for what is no rate.
std::optional<std::uint32_t> extendedRate(const QByteArray& common)
{
    constexpr qsizetype place = 8;
    constexpr int bias = 16383;
    constexpr int mantissaBits = 63;
    const int exponent = number16(common, place, ByteOrder::big) & 0x7fff;
    const auto mantissa = qFromBigEndian<quint64>(common.constData() + place + 2);
    const double rate = std::ldexp(static_cast<double>(mantissa), exponent - bias - mantissaBits);
    if (!(rate >= 1.0 && rate <= highestRate))
        return std::nullopt;
    return static_cast<std::uint32_t>(rate);
}

std::optional<PcmSound> checked(std::uint16_t channels, std::uint32_t rate, const QByteArray& data, ByteOrder order)
{
    if (channels < 1 || channels > 2 || rate < 1 || rate > highestRate)
        return std::nullopt;
    PcmSound sound{.samples = {}, .rate = rate, .channels = static_cast<std::uint8_t>(channels)};
    const qsizetype frames = data.size() / (2 * channels);
    if (frames == 0)
        return std::nullopt;
    sound.samples.reserve(static_cast<std::size_t>(frames * channels));
    for (qsizetype i = 0; i < frames * channels; ++i)
        sound.samples.push_back(static_cast<std::int16_t>(number16(data, 2 * i, order)));
    return sound;
}

std::optional<PcmSound> decodeWave(const QByteArray& content)
{
    constexpr std::uint16_t pcm = 1;
    const QByteArray format = chunk(content, "fmt ", ByteOrder::little);
    if (format.size() < 16 || number16(format, 0, ByteOrder::little) != pcm
        || number16(format, 14, ByteOrder::little) != 16)
        return std::nullopt;
    return checked(number16(format, 2, ByteOrder::little), number32(format, 4, ByteOrder::little),
        chunk(content, "data", ByteOrder::little), ByteOrder::little);
}

std::optional<PcmSound> decodeAiff(const QByteArray& content, bool isCompressedForm)
{
    const QByteArray common = chunk(content, "COMM", ByteOrder::big);
    if (common.size() < 18 || number16(common, 6, ByteOrder::big) != 16)
        return std::nullopt;
    ByteOrder order = ByteOrder::big;
    if (isCompressedForm) {
        // The newer form names a compression, which may be none or only another byte order.
        const QByteArray compression = common.mid(18, 4);
        if (compression == "sowt")
            order = ByteOrder::little;
        else if (compression != "NONE" && compression != "twos")
            return std::nullopt;
    }
    const std::optional<std::uint32_t> rate = extendedRate(common);
    const QByteArray sound = chunk(content, "SSND", ByteOrder::big);
    constexpr qsizetype soundHeader = 8; // where the samples begin, and their blocks
    if (!rate || sound.size() < soundHeader)
        return std::nullopt;
    const auto offset = static_cast<qsizetype>(number32(sound, 0, ByteOrder::big));
    return checked(number16(common, 0, ByteOrder::big), *rate, sound.mid(soundHeader + offset), order);
}

} // namespace

std::optional<PcmSound> decodeSound(const QByteArray& content)
{
    const QByteArray form = content.left(4);
    const QByteArray kind = content.mid(8, 4);
    if (form == "RIFF" && kind == "WAVE")
        return decodeWave(content);
    if (form == "FORM" && (kind == "AIFF" || kind == "AIFC"))
        return decodeAiff(content, kind == "AIFC");
    return std::nullopt;
}

std::optional<PcmSound> readSoundFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return decodeSound(file.read(longestSoundFile));
}

} // namespace tarvin::feedback
