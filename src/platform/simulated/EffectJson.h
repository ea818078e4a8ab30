#pragma once

#include "platform/simulated/Effect.h"
#include "platform/simulated/JsonLine.h"

#include <QByteArray>
#include <QStringList>

#include <iosfwd>

namespace tarvin::simulated {

/// What the effect is called in scenarios and outputs.
[[nodiscard]] QStringView effectName(const EffectKind& what);
/// Every name, sorted.
[[nodiscard]] QStringList allEffectNames();

/// The beginning of a line: "at" in milliseconds and "effect".
[[nodiscard]] JsonLine startLine(VirtualTime at, QStringView effect);

/// The effect as one JSON object on one line: "at" in milliseconds of virtual time, "effect" with its kind, then its
/// fields in a fixed order.
[[nodiscard]] QByteArray toJsonLine(const Effect& effect);

/// Readable failures of comparisons.
void PrintTo(const Effect& effect, std::ostream* stream);

} // namespace tarvin::simulated
