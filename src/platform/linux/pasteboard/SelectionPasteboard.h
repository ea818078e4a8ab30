#pragma once

#include "platform/ports/Pasteboard.h"
#include "platform/ports/Scheduler.h"

#include <QByteArray>

#include <memory>

namespace tarvin::pasteboard {

class SelectionThread;

/// The CLIPBOARD selection of an X session. Its thread starts with the first question, so that nothing is watched
/// before anybody wants to know.
///
/// A text that was read here stays on the clipboard when its application ends.
class SelectionPasteboard final : public Pasteboard
{
public:
    /// @param display as in DISPLAY; empty for the environment's
    explicit SelectionPasteboard(Scheduler& scheduler, QByteArray display = {});
    /// What is being read then is handed to nobody.
    ~SelectionPasteboard() override;
    SelectionPasteboard(const SelectionPasteboard&) = delete;
    SelectionPasteboard& operator=(const SelectionPasteboard&) = delete;

    [[nodiscard]] std::int64_t changeCount() const override;
    void readText(TextHandler handler) override;
    void setText(const PasteboardText& text) override;

private:
    [[nodiscard]] SelectionThread& thread() const;

    Scheduler& m_scheduler;
    const QByteArray m_display;
    std::shared_ptr<const bool> m_life = std::make_shared<const bool>(true); ///< gone before we are
    mutable std::unique_ptr<SelectionThread> m_thread;
};

} // namespace tarvin::pasteboard
