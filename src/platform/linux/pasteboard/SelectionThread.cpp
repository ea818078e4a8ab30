#include "platform/linux/pasteboard/SelectionThread.h"

#include <algorithm>
#include <array>
#include <utility>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tarvin::pasteboard {

SelectionThread::SelectionThread(const QByteArray& display)
    : m_wakeDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    std::unique_ptr<SelectionServer> server = SelectionServer::connect(display);
    auto engine = server ? std::make_unique<SelectionEngine>(std::move(server), m_changeCount) : nullptr;
    m_thread = std::thread(&SelectionThread::run, this, std::move(engine));
    pthread_setname_np(m_thread.native_handle(), "x11-clipboard");
}

SelectionThread::~SelectionThread()
{
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnding = true;
    }
    wake();
    m_thread.join();
    close(m_wakeDescriptor);
}

void SelectionThread::read(SelectionEngine::Done done)
{
    enqueue([done = std::move(done)](SelectionEngine* engine) {
        if (engine)
            engine->read(done);
        else
            done(std::nullopt);
    });
}

void SelectionThread::set(const PasteboardText& content)
{
    ++m_changeCount;
    enqueue([content](SelectionEngine* engine) {
        if (engine)
            engine->set(content);
    });
}

void SelectionThread::enqueue(Task task)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    wake();
}

void SelectionThread::wake() const
{
    const std::uint64_t one = 1;
    // Fails only when the counter is full, and then the thread is awake anyway.
    [[maybe_unused]] const ssize_t written = write(m_wakeDescriptor, &one, sizeof one);
}

bool SelectionThread::runTasks(SelectionEngine* engine)
{
    std::vector<Task> tasks;
    {
        const std::scoped_lock lock(m_mutex);
        if (m_isEnding)
            return false;
        tasks.swap(m_tasks);
    }
    for (const Task& task : tasks)
        task(engine);
    return true;
}

void SelectionThread::run(std::unique_ptr<SelectionEngine> engine)
{
    constexpr int noTimeout = -1;
    while (true) {
        std::uint64_t wishes = 0;
        [[maybe_unused]] const ssize_t count = ::read(m_wakeDescriptor, &wishes, sizeof wishes);
        if (!runTasks(engine.get()))
            return;
        int timeout = noTimeout;
        if (engine) {
            const std::optional<Clock::time_point> next = engine->attend();
            // The server has gone, and with it the toolkit is about to end the program.
            if (engine->isBroken())
                engine.reset();
            else if (next)
                timeout = static_cast<int>(std::max<std::int64_t>(
                    0, std::chrono::ceil<std::chrono::milliseconds>(*next - Clock::now()).count()));
        }
        std::array<pollfd, 2> waiting{{
            {.fd = m_wakeDescriptor, .events = POLLIN, .revents = 0},
            {.fd = engine ? engine->fileDescriptor() : -1, .events = POLLIN, .revents = 0},
        }};
        poll(waiting.data(), waiting.size(), timeout);
    }
}

} // namespace tarvin::pasteboard
