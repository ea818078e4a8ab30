#pragma once

#include "platform/ports/Pasteboard.h"

namespace tarvin::macos {

/// The general pasteboard. The server of the system holds the content, so every reading is answered at once. Main
/// thread only.
class MacPasteboard final : public Pasteboard
{
public:
    [[nodiscard]] std::int64_t changeCount() const override;
    void readText(TextHandler handler) override;
    void setText(const PasteboardText& text) override;
};

} // namespace tarvin::macos
