#include "model/UuidSource.h"

#include <algorithm>

namespace tarvin {

namespace {

constexpr QStringView form = u"hhhhhhhh-hhhh-hhhh-hhhh-hhhhhhhhhhhh";

bool isHexadecimalDigit(QChar character)
{
    return (character >= u'0' && character <= u'9') || (character >= u'a' && character <= u'f')
        || (character >= u'A' && character <= u'F');
}

bool fits(QChar character, QChar place)
{
    return place == u'h' ? isHexadecimalDigit(character) : character == place;
}

} // namespace

QString uuidText(const QUuid& id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

std::optional<QUuid> uuidFromText(QStringView text)
{
    // QUuid itself also reads braces, and the null identity for anything it does not understand.
    if (!std::equal(text.begin(), text.end(), form.begin(), form.end(), fits))
        return std::nullopt;
    return QUuid::fromString(text);
}

} // namespace tarvin
