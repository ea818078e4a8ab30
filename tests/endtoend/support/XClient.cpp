#include "endtoend/support/XClient.h"

#include <xcb/xinput.h>

#include <stdexcept>
#include <string_view>

namespace tarvin::endtoend {

XClient::XClient(const std::string& display)
    : m_connection(xcb_connect(display.c_str(), nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0) {
        xcb_disconnect(m_connection);
        throw std::runtime_error("no connection to " + display);
    }
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    // A client that does not say which version it speaks is spoken to in the oldest.
    const XOwned<xcb_input_xi_query_version_reply_t> version(
        xcb_input_xi_query_version_reply(m_connection, xcb_input_xi_query_version(m_connection, 2, 2), nullptr));
}

void XClient::sync() const
{
    const XOwned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

xcb_atom_t XClient::atom(const std::string& name) const
{
    const XOwned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data()), nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::uint16_t XClient::deviceNamed(const std::string& name) const
{
    const XOwned<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
        m_connection, xcb_input_xi_query_device(m_connection, XCB_INPUT_DEVICE_ALL), nullptr));
    if (!reply)
        return 0;
    for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem > 0;
         xcb_input_xi_device_info_next(&info)) {
        const std::string_view found(xcb_input_xi_device_info_name(info.data),
            static_cast<std::size_t>(xcb_input_xi_device_info_name_length(info.data)));
        if (found == name)
            return info.data->deviceid;
    }
    return 0;
}

std::vector<int> XClient::downKeys() const
{
    const XOwned<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(m_connection, xcb_query_keymap(m_connection), nullptr));
    if (!reply)
        throw std::runtime_error("the server does not tell its keys");
    std::vector<int> down;
    constexpr std::size_t bitsPerByte = 8;
    for (std::size_t keycode = 0; keycode < sizeof reply->keys * bitsPerByte; ++keycode) {
        if ((reply->keys[keycode / bitsPerByte] >> (keycode % bitsPerByte) & 1U) != 0)
            down.push_back(static_cast<int>(keycode));
    }
    return down;
}

} // namespace tarvin::endtoend
