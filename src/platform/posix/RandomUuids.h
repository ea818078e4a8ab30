#pragma once

#include "platform/ports/UuidGenerator.h"

namespace tarvin::posix {

/// Random identifiers (version 4) from the system's generator.
class RandomUuids : public UuidGenerator
{
public:
    [[nodiscard]] QUuid next() override { return QUuid::createUuid(); }
};

} // namespace tarvin::posix
