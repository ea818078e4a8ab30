#pragma once

#include "platform/ports/Pasteboard.h"
#include "platform/simulated/EffectLog.h"

namespace tarvin::simulated {

class SimulatedScheduler;

/// The clipboard of the simulated desktop. What the program puts there is recorded; what other applications copy is
/// not.
class SimulatedPasteboard final : public Pasteboard
{
public:
    SimulatedPasteboard(EffectLog& log, SimulatedScheduler& scheduler);

    [[nodiscard]] std::int64_t changeCount() const override { return m_changeCount; }
    /// At once, unless the owner takes its time.
    void readText(TextHandler handler) override;
    void setText(const PasteboardText& text) override;

    /// Another application copies a text, equal text included.
    void copy(const PasteboardText& text);
    /// Another application copies something without a text form: an image, or files.
    void copyWithoutText();
    /// How long the applications that copy from now on take to hand over the content; what the program sets itself is
    /// there at once.
    void setAnswerDelay(VirtualTime delay) { m_answerDelay = delay; }

    [[nodiscard]] const std::optional<PasteboardText>& content() const { return m_content; }
    /// How often the content was asked for.
    [[nodiscard]] int readings() const { return m_readings; }

private:
    void replace(std::optional<PasteboardText> content, VirtualTime delay);

    EffectLog& m_log;
    SimulatedScheduler& m_scheduler;
    std::optional<PasteboardText> m_content;
    std::int64_t m_changeCount = 0;
    VirtualTime m_answerDelay{};
    VirtualTime m_delayOfContent{};
    int m_readings = 0;
};

} // namespace tarvin::simulated
