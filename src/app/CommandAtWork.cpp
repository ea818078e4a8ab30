#include "app/CommandAtWork.h"

#include "app/ControlPaths.h"
#include "platform/posix/InstanceLock.h"

#include <QDeadlineTimer>

#include <chrono>
#include <thread>

namespace tarvin {

using namespace std::chrono_literals;

namespace {

constexpr auto commandPatience = 3s;
constexpr auto pauseBetweenLooks = 5ms;

} // namespace

void waitForCommandAtWork()
{
    const QDeadlineTimer deadline(commandPatience);
    const QString path = ControlPaths::fromEnvironment().edit;
    while (posix::InstanceLock(path).state() == posix::InstanceLock::State::heldByAnother && !deadline.hasExpired())
        std::this_thread::sleep_for(pauseBetweenLooks);
}

} // namespace tarvin
