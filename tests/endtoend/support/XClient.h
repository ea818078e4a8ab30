#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace tarvin::endtoend {

struct XFree
{
    void operator()(void* memory) const noexcept { std::free(memory); }
};
template <typename Type> using XOwned = std::unique_ptr<Type, XFree>;

/// A connection to a server under test.
class XClient
{
public:
    explicit XClient(const std::string& display);
    ~XClient() { xcb_disconnect(m_connection); }
    XClient(const XClient&) = delete;
    XClient& operator=(const XClient&) = delete;
    XClient(XClient&&) = delete;
    XClient& operator=(XClient&&) = delete;

    [[nodiscard]] xcb_connection_t* get() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    /// Returns when the server has done everything asked for.
    void sync() const;
    [[nodiscard]] xcb_atom_t atom(const std::string& name) const;
    /// The number of the input device of that name; 0 if there is none.
    [[nodiscard]] std::uint16_t deviceNamed(const std::string& name) const;
    /// The keycodes that are down on any keyboard.
    [[nodiscard]] std::vector<int> downKeys() const;

private:
    xcb_connection_t* m_connection;
    xcb_window_t m_root = 0;
};

} // namespace tarvin::endtoend
