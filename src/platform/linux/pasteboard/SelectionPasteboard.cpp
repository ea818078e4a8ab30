#include "platform/linux/pasteboard/SelectionPasteboard.h"

#include "platform/linux/pasteboard/SelectionThread.h"

#include <utility>

namespace tarvin::pasteboard {

SelectionPasteboard::SelectionPasteboard(Scheduler& scheduler, QByteArray display)
    : m_scheduler(scheduler)
    , m_display(std::move(display))
{ }

SelectionPasteboard::~SelectionPasteboard() = default;

std::int64_t SelectionPasteboard::changeCount() const
{
    return thread().changeCount();
}

void SelectionPasteboard::readText(TextHandler handler)
{
    thread().read([&scheduler = m_scheduler, life = std::weak_ptr(m_life), handler = std::move(handler)](
                      const std::optional<PasteboardText>& text) {
        scheduler.post([life, handler, text] {
            if (!life.expired())
                handler(text);
        });
    });
}

void SelectionPasteboard::setText(const PasteboardText& text)
{
    thread().set(text);
}

SelectionThread& SelectionPasteboard::thread() const
{
    if (!m_thread)
        m_thread = std::make_unique<SelectionThread>(m_display);
    return *m_thread;
}

} // namespace tarvin::pasteboard
