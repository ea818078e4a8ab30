#include "endtoend/support/Patience.h"

#include <QCoreApplication>

#include <thread>

namespace tarvin::endtoend {

bool eventually(const std::function<bool()>& condition, std::chrono::milliseconds limit)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline)
            return condition();
        if (QCoreApplication::instance() != nullptr)
            QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds{1});
    }
    return true;
}

} // namespace tarvin::endtoend
