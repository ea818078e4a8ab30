#pragma once

#include <QStringView>

namespace tarvin {

/// Whether two texts are the same to a reader: equal once every character is composed in the one canonical way. Case
/// counts. Takes no longer than to read both texts up to the first difference, but for long stretches of letters
/// beyond the Latin ones.
[[nodiscard]] bool areCanonicallyEquivalent(QStringView left, QStringView right);

} // namespace tarvin
