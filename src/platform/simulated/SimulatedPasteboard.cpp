#include "platform/simulated/SimulatedPasteboard.h"

#include "platform/simulated/SimulatedScheduler.h"

#include <utility>

namespace tarvin::simulated {

SimulatedPasteboard::SimulatedPasteboard(EffectLog& log, SimulatedScheduler& scheduler)
    : m_log(log)
    , m_scheduler(scheduler)
{ }

void SimulatedPasteboard::readText(TextHandler handler)
{
    m_log.expectMainThread("Pasteboard::readText");
    ++m_readings;
    if (m_delayOfContent == VirtualTime::zero()) {
        handler(m_content);
        return;
    }
    m_scheduler.callAfter(m_delayOfContent, [content = m_content, handler = std::move(handler)] { handler(content); });
}

void SimulatedPasteboard::setText(const PasteboardText& text)
{
    m_log.expectMainThread("Pasteboard::setText");
    replace(text, VirtualTime::zero());
    m_log.record(PasteboardSet{text});
}

void SimulatedPasteboard::copy(const PasteboardText& text)
{
    replace(text, m_answerDelay);
}

void SimulatedPasteboard::copyWithoutText()
{
    replace(std::nullopt, m_answerDelay);
}

void SimulatedPasteboard::replace(std::optional<PasteboardText> content, VirtualTime delay)
{
    m_content = std::move(content);
    m_delayOfContent = delay;
    ++m_changeCount;
}

} // namespace tarvin::simulated
