#include "platform/linux/pasteboard/SelectionServer.h"

#include <algorithm>
#include <cstring>

#include <xcb/xfixes.h>

namespace tarvin::pasteboard {

namespace {

/// How much of a property is asked for at once, in units of four bytes.
constexpr std::uint32_t wordsAtOnce = 1U << 20U;
constexpr qsizetype bytesOfWord = 4;

} // namespace

std::vector<std::uint32_t> PropertyValue::numbers() const
{
    if (format != 32)
        return {};
    std::vector<std::uint32_t> numbers(static_cast<std::size_t>(bytes.size()) / sizeof(std::uint32_t));
    std::memcpy(numbers.data(), bytes.constData(), numbers.size() * sizeof(std::uint32_t));
    return numbers;
}

std::unique_ptr<SelectionServer> SelectionServer::connect(const QByteArray& display)
{
    int screenNumber = 0;
    std::unique_ptr<SelectionServer> server(
        new SelectionServer(xcb_connect(display.isEmpty() ? nullptr : display.constData(), &screenNumber)));
    if (server->isBroken())
        return nullptr;
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(server->handle()));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber)
        xcb_screen_next(&screen);
    server->m_root = screen.data->root;
    server->internAtoms();
    server->m_window = server->makeWindow();
    if (!server->observeOwners())
        return nullptr;
    return server;
}

void SelectionServer::internAtoms()
{
    std::array<xcb_intern_atom_cookie_t, selectionAtomCount> cookies{};
    for (std::size_t i = 0; i < selectionAtomCount; ++i) {
        const std::string_view name = selectionAtomNames[i];
        cookies[i] = xcb_intern_atom(handle(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    }
    for (std::size_t i = 0; i < selectionAtomCount; ++i) {
        const XOwned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(handle(), cookies[i], nullptr));
        m_atoms[i] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
}

bool SelectionServer::observeOwners()
{
    const xcb_query_extension_reply_t* const extension = xcb_get_extension_data(handle(), &xcb_xfixes_id);
    if (!extension || extension->present == 0)
        return false;
    const XOwned<xcb_xfixes_query_version_reply_t> version(xcb_xfixes_query_version_reply(
        handle(), xcb_xfixes_query_version(handle(), XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION), nullptr));
    if (!version)
        return false;
    m_ownerChangeEvent = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    const xcb_void_cookie_t selected = xcb_xfixes_select_selection_input_checked(handle(), m_window,
        atom(SelectionAtom::clipboard),
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    // Waiting for the answer makes sure that no change from now on is missed.
    const XOwned<xcb_generic_error_t> error(xcb_request_check(handle(), selected));
    return !error;
}

xcb_window_t SelectionServer::makeWindow() const
{
    const xcb_window_t window = xcb_generate_id(handle());
    const std::uint32_t eventMask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(handle(), XCB_COPY_FROM_PARENT, window, m_root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
        XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &eventMask);
    return window;
}

PropertyValue SelectionServer::property(
    xcb_window_t window, xcb_atom_t name, AfterReading afterReading, qsizetype most) const
{
    PropertyValue value;
    while (value.bytes.size() < most) {
        const auto offset = static_cast<std::uint32_t>(value.bytes.size() / bytesOfWord);
        // The server removes the property only with its last piece.
        const std::uint8_t remove = afterReading == AfterReading::remove ? 1 : 0;
        const XOwned<xcb_get_property_reply_t> reply(xcb_get_property_reply(handle(),
            xcb_get_property(handle(), remove, window, name, XCB_GET_PROPERTY_TYPE_ANY, offset, wordsAtOnce), nullptr));
        if (!reply || reply->type == XCB_ATOM_NONE)
            break;
        value.type = reply->type;
        value.format = reply->format;
        value.bytes.append(
            static_cast<const char*>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get()));
        if (reply->bytes_after == 0)
            break;
    }
    return value;
}

} // namespace tarvin::pasteboard
