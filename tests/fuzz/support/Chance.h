#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace tarvin::test {

/// Random choices that are the same in every run and on every machine.
class Chance
{
public:
    explicit Chance(std::uint64_t seed)
        : m_engine(seed)
    { }

    [[nodiscard]] std::uint64_t bits() { return m_engine(); }
    /// From 0 to @p limit, which is not reached.
    [[nodiscard]] std::uint64_t below(std::uint64_t limit) { return m_engine() % limit; }
    [[nodiscard]] bool percent(std::uint64_t share) { return below(100) < share; }
    template <typename Range> [[nodiscard]] auto oneOf(const Range& range)
    {
        return range[below(static_cast<std::uint64_t>(range.size()))];
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace tarvin::test
