#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace tarvin {

/// A plain text on its way through the clipboard.
struct PasteboardText
{
    QString text;
    /// Its source marks it as secret, as password managers do. Who puts it back keeps the mark.
    bool isSecret = false;
    friend bool operator==(const PasteboardText&, const PasteboardText&) = default;
};

/// The general clipboard. Main thread only.
class Pasteboard
{
public:
    using TextHandler = std::function<void(std::optional<PasteboardText>)>;

    virtual ~Pasteboard() = default;
    /// Grows with each change of the content, whoever made it, also by `setText` before it returns. Costs nothing.
    [[nodiscard]] virtual std::int64_t changeCount() const = 0;
    /// Hands over the content as plain text, or nothing if it has no such form. The handler runs once on the main
    /// thread: at once where the platform holds the content, else when the application that owns it has answered, or
    /// with nothing when it has been silent for too long. Reading does not change the content.
    virtual void readText(TextHandler handler) = 0;
    /// Replaces the whole content by the text. A reading that is under way still gets the old content, or nothing.
    virtual void setText(const PasteboardText& text) = 0;
};

} // namespace tarvin
