#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvin::feedback {

/// A short uncompressed sound: 16-bit samples, the channels interleaved.
struct PcmSound
{
    std::vector<std::int16_t> samples;
    std::uint32_t rate = 0; ///< samples of one channel in a second
    std::uint8_t channels = 0;

    friend bool operator==(const PcmSound&, const PcmSound&) = default;
};

/// Longer files are no clicks, and their samples would fill the sound server's cache.
inline constexpr qint64 longestSoundFile = 4 * 1024 * 1024;

/// Reads the content of a WAVE or AIFF file with 16-bit samples.
/// @return nothing for any other content, a cut one included
[[nodiscard]] std::optional<PcmSound> decodeSound(const QByteArray& content);

/// The same of a file; nothing also where it can't be read.
[[nodiscard]] std::optional<PcmSound> readSoundFile(const QString& path);

} // namespace tarvin::feedback
