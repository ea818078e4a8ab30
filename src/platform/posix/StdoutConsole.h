#pragma once

#include "platform/ports/Console.h"

namespace tarvin::posix {

/// The standard output, in UTF-8, each line written out at once and whole.
class StdoutConsole : public Console
{
public:
    void printLine(const QString& line) override;
};

} // namespace tarvin::posix
