#include "app/MachineDoctor.h"
#include "platform/macos/MacProcessInfo.h"

namespace tarvin {

Diagnosis diagnoseThisMachine(const QStringList& /*arguments*/)
{
    return diagnoseMac(factsOfTheProgram(macos::MacProcessInfo()));
}

} // namespace tarvin
