#include "platform/posix/InstanceLock.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace tarvin::posix {

InstanceLock::InstanceLock(const QString& path)
    // Closed in children, or a launched application would keep the lock after our end.
    : m_descriptor(open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600))
{
    if (m_descriptor < 0)
        return;
    if (flock(m_descriptor, LOCK_EX | LOCK_NB) == 0)
        m_state = State::held;
    else if (errno == EWOULDBLOCK)
        m_state = State::heldByAnother;
}

InstanceLock::~InstanceLock()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

} // namespace tarvin::posix
