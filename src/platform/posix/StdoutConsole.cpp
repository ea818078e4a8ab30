#include "platform/posix/StdoutConsole.h"

#include <cstdio>

namespace tarvin::posix {

void StdoutConsole::printLine(const QString& line)
{
    // One call for text and line end: the stream's own lock keeps the lines of several threads apart.
    const QByteArray text = line.toUtf8() + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stdout);
    std::fflush(stdout);
}

} // namespace tarvin::posix
