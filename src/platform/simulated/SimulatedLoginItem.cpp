#include "platform/simulated/SimulatedLoginItem.h"

namespace tarvin::simulated {

std::optional<QString> SimulatedLoginItem::change(bool enabled)
{
    m_log.expectMainThread(enabled ? "LoginItem::enable" : "LoginItem::disable");
    if (!m_refusal)
        m_enabled = enabled;
    m_log.record(LoginItemChanged{enabled, m_refusal});
    return m_refusal;
}

} // namespace tarvin::simulated
