#include "platform/contracts/PasteboardContract.h"
#include "platform/linux/pasteboard/SelectionPasteboard.h"

#include "endtoend/support/MainQueue.h"
#include "endtoend/support/XServer.h"

namespace tarvin::contracts {

namespace {

class PasteboardOnX
{
public:
    static std::optional<std::string> lack()
    {
        return endtoend::XServer::lack(endtoend::XServer::Kind::virtualFramebuffer);
    }

    Pasteboard& pasteboard() { return m_pasteboard; }
    bool until(const std::function<bool()>& condition) { return m_queue.runUntil(condition); }

private:
    const std::unique_ptr<endtoend::XServer> m_server = lack() ? nullptr : std::make_unique<endtoend::XServer>();
    endtoend::MainQueue m_queue;
    pasteboard::SelectionPasteboard m_pasteboard{
        m_queue, m_server ? QByteArray::fromStdString(m_server->display()) : QByteArray()};
};

using Platforms = testing::Types<PasteboardOnX>;

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Linux, PasteboardContract, Platforms);

} // namespace tarvin::contracts
