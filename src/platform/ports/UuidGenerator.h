#pragma once

#include <QUuid>

namespace tarvin {

/// Where fresh identifiers come from.
class UuidGenerator
{
public:
    virtual ~UuidGenerator() = default;
    [[nodiscard]] virtual QUuid next() = 0;
};

} // namespace tarvin
