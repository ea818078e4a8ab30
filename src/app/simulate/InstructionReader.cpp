#include "app/simulate/InstructionReader.h"

#include <array>

namespace tarvin::simulate {

namespace {

std::array<std::span<const InstructionRow>, 4> subjects()
{
    return {systemInstructions(), desktopInstructions(), inputInstructions(), programInstructions()};
}

} // namespace

const InstructionRow* findInstruction(QStringView name)
{
    for (const std::span<const InstructionRow> subject : subjects()) {
        for (const InstructionRow& row : subject) {
            if (row.name == name)
                return &row;
        }
    }
    return nullptr;
}

QStringList instructionNames()
{
    QStringList names;
    for (const std::span<const InstructionRow> subject : subjects()) {
        for (const InstructionRow& row : subject)
            names.append(row.name.toString());
    }
    return names;
}

} // namespace tarvin::simulate
