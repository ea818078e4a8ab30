#pragma once

#include <QStringList>

#include <initializer_list>

namespace tarvin::test {

/// The lines of a transcript as a test writes them, in UTF-8.
[[nodiscard]] inline QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList result;
    for (const char* text : texts)
        result << QString::fromUtf8(text);
    return result;
}

} // namespace tarvin::test
