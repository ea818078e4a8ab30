#include "actions/content/WebAssistant.h"

#include "actions/KeystrokeSynthesis.h"
#include "actions/content/WebAddress.h"
#include "platform/ports/Pasteboard.h"
#include "platform/ports/Scheduler.h"
#include "platform/ports/Workspace.h"

namespace tarvin {

namespace {

constexpr KeyCode copyKey = 8;

} // namespace

WebAssistant::WebAssistant(
    KeystrokeSynthesis& synthesis, Pasteboard& pasteboard, Workspace& workspace, Scheduler& scheduler)
    : m_synthesis(synthesis)
    , m_pasteboard(pasteboard)
    , m_workspace(workspace)
    , m_scheduler(scheduler)
{ }

void WebAssistant::triggerAIAssistant()
{
    m_synthesis.simulateKeyStroke(copyKey, EventFlags::command, KeystrokeOrigin::builtIn);
    m_scheduler.postAfter(copyDelay, [this] { ask(); });
}

void WebAssistant::ask()
{
    m_pasteboard.readText([&workspace = m_workspace](const std::optional<PasteboardText>& copied) {
        const bool isQuestion = copied && !copied->isSecret;
        workspace.openUrl(assistantAddress(isQuestion ? copied->text.trimmed() : QString()));
    });
}

} // namespace tarvin
