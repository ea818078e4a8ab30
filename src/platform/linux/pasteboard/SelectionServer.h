#pragma once

#include "platform/linux/pasteboard/SelectionAtoms.h"

#include <QByteArray>

#include <cstdlib>
#include <memory>
#include <vector>

#include <xcb/xcb.h>

namespace tarvin::pasteboard {

struct XFree
{
    void operator()(void* memory) const { std::free(memory); } // NOLINT(cppcoreguidelines-no-malloc)
};

/// A reply or an event of the server, freed with its owner.
template <typename Content> using XOwned = std::unique_ptr<Content, XFree>;

/// The value of a property of a window.
struct PropertyValue
{
    xcb_atom_t type = XCB_ATOM_NONE; ///< none where there is no such property
    std::uint8_t format = 0; ///< bits per element
    QByteArray bytes;

    /// The value as a list of numbers; empty for another format.
    [[nodiscard]] std::vector<std::uint32_t> numbers() const;
};

/// What becomes of a property once it has been read.
enum class AfterReading { keep, remove };

/// A connection to the X server for the clipboard alone, which tells of each change of the clipboard's owner. For the
/// thread of the selection.
class SelectionServer
{
public:
    /// @param display as in DISPLAY; empty for the environment's
    /// @return null where no server answers or it lacks the extension that tells of owners
    [[nodiscard]] static std::unique_ptr<SelectionServer> connect(const QByteArray& display);

    [[nodiscard]] xcb_connection_t* handle() const { return m_connection.get(); }
    [[nodiscard]] bool isBroken() const { return xcb_connection_has_error(handle()) != 0; }
    [[nodiscard]] int fileDescriptor() const { return xcb_get_file_descriptor(handle()); }
    [[nodiscard]] xcb_atom_t atom(SelectionAtom atom) const { return m_atoms[static_cast<std::size_t>(atom)]; }
    /// Ours, never shown; it owns the clipboard when we do.
    [[nodiscard]] xcb_window_t window() const { return m_window; }
    /// The type of the event that tells of a new owner.
    [[nodiscard]] std::uint8_t ownerChangeEvent() const { return m_ownerChangeEvent; }

    /// A window of ours, never shown, whose properties we hear of.
    [[nodiscard]] xcb_window_t makeWindow() const;
    /// The whole value. Waits for the server, not for any application.
    /// @param most bytes are read of a value that is longer
    [[nodiscard]] PropertyValue property(
        xcb_window_t window, xcb_atom_t name, AfterReading afterReading, qsizetype most) const;

private:
    struct Disconnect
    {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    explicit SelectionServer(xcb_connection_t* connection)
        : m_connection(connection)
    { }
    void internAtoms();
    bool observeOwners();

    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    std::array<xcb_atom_t, selectionAtomCount> m_atoms{};
    xcb_window_t m_root = XCB_NONE;
    xcb_window_t m_window = XCB_NONE;
    std::uint8_t m_ownerChangeEvent = 0;
};

} // namespace tarvin::pasteboard
