#pragma once

#include <xkbcommon/xkbcommon.h>

#include <memory>

namespace tarvin::x11 {

struct XkbContextDeleter
{
    void operator()(xkb_context* context) const noexcept { xkb_context_unref(context); }
};
struct XkbKeymapDeleter
{
    void operator()(xkb_keymap* keymap) const noexcept { xkb_keymap_unref(keymap); }
};
struct XkbStateDeleter
{
    void operator()(xkb_state* state) const noexcept { xkb_state_unref(state); }
};

using XkbContext = std::unique_ptr<xkb_context, XkbContextDeleter>;
using XkbKeymap = std::unique_ptr<xkb_keymap, XkbKeymapDeleter>;
using XkbState = std::unique_ptr<xkb_state, XkbStateDeleter>;

} // namespace tarvin::x11
