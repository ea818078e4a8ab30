#pragma once

#include "model/RecordJson.h"
#include "model/VocabularyJson.h"
#include "support/QtPrinters.h"

#include <ostream>

namespace tarvin {

// Values of the vocabulary show as their stored names, records as their stored form.

// A template of PrintTo would be as good as GoogleTest's own, so the vocabulary is streamed instead.
template <Vocabulary Enumeration> std::ostream& operator<<(std::ostream& stream, Enumeration value)
{
    return stream << '"' << rawValue(value).toUtf8().toStdString() << '"';
}

inline void PrintTo(const CustomShortcut& shortcut, std::ostream* stream)
{
    PrintTo(toJson(shortcut), stream);
}

inline void PrintTo(const ActionChainStep& step, std::ostream* stream)
{
    PrintTo(toJson(step), stream);
}

inline void PrintTo(const ConfiguredAction& record, std::ostream* stream)
{
    PrintTo(toJson(record), stream);
}

} // namespace tarvin
