#include "platform/linux/x11/InputConnection.h"
#include "platform/linux/x11/XcbXkb.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <vector>

#include <sys/uio.h>
#include <xcb/xcbext.h>

namespace tarvin::x11 {

namespace {

std::string nameOfAtom(xcb_connection_t* connection, xcb_atom_t atom)
{
    if (atom == XCB_ATOM_NONE)
        return {};
    const XcbOwned<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection, xcb_get_atom_name(connection, atom), nullptr));
    if (!reply)
        return {};
    return {xcb_get_atom_name_name(reply.get()), static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get()))};
}

/// A text as requests of the keyboard extension carry it: its length in one byte, and then itself.
void appendCounted(std::vector<char>& bytes, const std::string& text)
{
    constexpr std::size_t longest = 255;
    const std::size_t size = std::min(text.size(), longest);
    bytes.push_back(static_cast<char>(size));
    bytes.insert(bytes.end(), text.begin(), text.begin() + static_cast<std::ptrdiff_t>(size));
}

} // namespace

std::optional<KeymapNames> InputConnection::keymapNames(DeviceId device)
{
    constexpr std::uint32_t which = XCB_XKB_NAME_DETAIL_KEYCODES | XCB_XKB_NAME_DETAIL_SYMBOLS
        | XCB_XKB_NAME_DETAIL_TYPES | XCB_XKB_NAME_DETAIL_COMPAT;
    xcb_connection_t* const connection = m_connection.get();
    const XcbOwned<xcb_xkb_get_names_reply_t> reply(
        xcb_xkb_get_names_reply(connection, xcb_xkb_get_names(connection, device, which), nullptr));
    if (!reply)
        return std::nullopt;
    xcb_xkb_get_names_value_list_t atoms{};
    xcb_xkb_get_names_value_list_unpack(xcb_xkb_get_names_value_list(reply.get()), reply->nTypes, reply->indicators,
        reply->virtualMods, reply->groupNames, reply->nKeys, reply->nKeyAliases, reply->nRadioGroups, reply->which,
        &atoms);
    KeymapNames names{.keycodes = nameOfAtom(connection, atoms.keycodesName),
        .types = nameOfAtom(connection, atoms.typesName),
        .compatibility = nameOfAtom(connection, atoms.compatName),
        .symbols = nameOfAtom(connection, atoms.symbolsName)};
    if (names.keycodes.empty() || names.types.empty() || names.compatibility.empty() || names.symbols.empty())
        return std::nullopt;
    return names;
}

void InputConnection::loadKeymap(DeviceId device, const KeymapNames& names)
{
    constexpr std::uint16_t everything = 0xFF;
    constexpr std::uint16_t geometry = XCB_XKB_GBN_DETAIL_GEOMETRY;
    // The bindings leave the texts of this request out.
    std::vector<char> texts;
    appendCounted(texts, {}); // of a keymap as a whole
    for (const std::string* const name : {&names.keycodes, &names.types, &names.compatibility, &names.symbols})
        appendCounted(texts, *name);
    appendCounted(texts, {}); // of the geometry
    constexpr std::size_t unit = 4;
    texts.resize((texts.size() + unit - 1) / unit * unit);

    xcb_xkb_get_kbd_by_name_request_t request{};
    request.deviceSpec = device;
    request.need = everything & ~geometry;
    request.want = everything & ~geometry;
    request.load = 1;
    constexpr std::size_t reservedParts = 2; // for the library itself, before ours
    std::array<iovec, reservedParts + 2> parts{};
    parts[reservedParts] = {.iov_base = &request, .iov_len = sizeof request};
    parts[reservedParts + 1] = {.iov_base = texts.data(), .iov_len = texts.size()};
    const xcb_protocol_request_t protocol{
        .count = 2, .ext = &xcb_xkb_id, .opcode = XCB_XKB_GET_KBD_BY_NAME, .isvoid = 0};
    const xcb_xkb_get_kbd_by_name_cookie_t cookie{
        xcb_send_request(m_connection.get(), XCB_REQUEST_CHECKED, &parts[reservedParts], &protocol)};
    const XcbOwned<xcb_xkb_get_kbd_by_name_reply_t> reply(
        xcb_xkb_get_kbd_by_name_reply(m_connection.get(), cookie, nullptr));
}

} // namespace tarvin::x11
