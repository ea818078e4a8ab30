#pragma once

#include "app/simulate/FieldReader.h"
#include "app/simulate/Instruction.h"

#include <QStringList>

#include <span>

namespace tarvin::simulate {

/// When an instruction may stand: before the program starts, at any time, or once it runs; in the last case the program
/// is started first if it was not.
enum class Phase { stage, either, running };

/// One instruction of the scenario language.
struct InstructionRow
{
    QStringView name; ///< as "do" tells it
    Phase phase = Phase::either;
    Instruction (*read)(FieldReader&) = nullptr;
};

/// The rows of one subject.
[[nodiscard]] std::span<const InstructionRow> desktopInstructions();
[[nodiscard]] std::span<const InstructionRow> systemInstructions();
[[nodiscard]] std::span<const InstructionRow> inputInstructions();
[[nodiscard]] std::span<const InstructionRow> programInstructions();

/// Null for a name that no instruction has.
[[nodiscard]] const InstructionRow* findInstruction(QStringView name);
/// Every name, in the order of the rows.
[[nodiscard]] QStringList instructionNames();

} // namespace tarvin::simulate
