#pragma once

#include <QFont>

#include <cstdint>

namespace tarvin {

enum class TextWeight : std::uint8_t { regular, medium, semibold, bold, heavy, black };
enum class TextFace : std::uint8_t { rounded, fixedWidth };

/// How a line of text is set. The size is in logical pixels.
struct TextStyle
{
    double size = 11;
    TextWeight weight = TextWeight::regular;
    TextFace face = TextFace::rounded;

    bool operator==(const TextStyle&) const = default;
};

/// The font of a style for the toolkit's own widgets, which round the size to whole pixels. What the program paints
/// itself it draws with `drawText`, which doesn't. The faces are built into the program and made known to the toolkit
/// at the first call, which needs an application object. Main thread only.
[[nodiscard]] QFont fontOf(const TextStyle& style);
/// The same face and weight in a large size, from which every size is scaled: without hinting all measures are in
/// proportion.
[[nodiscard]] const QFont& referenceFont(const TextStyle& style);
inline constexpr int referenceFontSize = 32;

} // namespace tarvin
