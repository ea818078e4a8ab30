#include "platform/simulated/SimulatedUuidGenerator.h"

namespace tarvin::simulated {

QUuid SimulatedUuidGenerator::next()
{
    ++m_last;
    // The version and variant digits of a random identifier; the count fills the last group.
    const auto octet = [this](unsigned shift) { return static_cast<uchar>((m_last >> shift) & 0xFF); };
    return QUuid(0, 0, 0x4000, 0x80, 0x00, octet(40), octet(32), octet(24), octet(16), octet(8), octet(0));
}

} // namespace tarvin::simulated
