#include "studio/recorder/KeyDisplay.h"

#include <algorithm>

namespace tarvin {

static_assert(std::ranges::is_sorted(namedKeyRows, {}, &NamedKeyRow::keyCode));

QString formatKeyDisplay(const QString& character, std::uint16_t keyCode)
{
    const auto* const named = std::ranges::lower_bound(namedKeyRows, keyCode, {}, &NamedKeyRow::keyCode);
    if (named != namedKeyRows.end() && named->keyCode == keyCode)
        return named->name.toString();
    return character.isEmpty() ? QStringLiteral("Key(%1)").arg(keyCode) : character;
}

} // namespace tarvin
