#pragma once

#include <QString>

namespace tarvin {

/// The standard output of the process.
class Console
{
public:
    virtual ~Console() = default;
    /// Prints one line and its end. Any thread.
    virtual void printLine(const QString& line) = 0;
};

} // namespace tarvin
