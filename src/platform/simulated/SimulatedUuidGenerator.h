#pragma once

#include "platform/ports/UuidGenerator.h"

#include <cstdint>

namespace tarvin::simulated {

/// Identifiers that count up, so that two runs make the same ones.
class SimulatedUuidGenerator final : public UuidGenerator
{
public:
    [[nodiscard]] QUuid next() override;

private:
    std::uint64_t m_last = 0;
};

} // namespace tarvin::simulated
