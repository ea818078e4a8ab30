#pragma once

#import <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace tarvin::macos {

/// Owns one reference to an object of the system, as functions with Create or Copy in their names hand it out. What a
/// function with Get in its name returns is not owned and does not belong here; `retained` takes a reference to it.
template <typename Ref> class CfHandle
{
public:
    CfHandle() = default;
    /// Takes over a reference; null is none.
    explicit CfHandle(Ref reference) noexcept
        : m_reference(reference)
    { }
    CfHandle(CfHandle&& other) noexcept
        : m_reference(std::exchange(other.m_reference, nullptr))
    { }
    CfHandle& operator=(CfHandle&& other) noexcept
    {
        std::swap(m_reference, other.m_reference);
        return *this;
    }
    CfHandle(const CfHandle&) = delete;
    CfHandle& operator=(const CfHandle&) = delete;
    ~CfHandle()
    {
        if (m_reference)
            CFRelease(m_reference);
    }

    /// Another reference to what somebody else owns.
    [[nodiscard]] static CfHandle retained(Ref reference)
    {
        return CfHandle(reference ? static_cast<Ref>(const_cast<void*>(CFRetain(reference))) : nullptr);
    }

    [[nodiscard]] Ref get() const noexcept { return m_reference; }
    [[nodiscard]] explicit operator bool() const noexcept { return m_reference != nullptr; }

private:
    Ref m_reference = nullptr;
};

} // namespace tarvin::macos
