#include "platform/linux/x11/InputThread.h"

#include <algorithm>
#include <array>
#include <utility>
#include <variant>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace tarvin::x11 {

namespace {

/// Between attempts to reach the server, and between those to get what another program has.
constexpr std::chrono::milliseconds attemptInterval{1000};
/// The server answers within microseconds; a hanging one must not hang the program.
constexpr std::chrono::milliseconds patience{500};

} // namespace

InputThread::InputThread(Scheduler& scheduler, QByteArray display, LogHandler log)
    : m_scheduler(scheduler)
    , m_display(std::move(display))
    , m_mainSide(std::make_shared<MainSide>(MainSide{.deliver = {}, .log = std::move(log)}))
    , m_weakMainSide(m_mainSide)
    , m_wakeDescriptor(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    std::promise<void> firstAttempt;
    const std::future<void> attempted = firstAttempt.get_future();
    m_thread = std::thread(&InputThread::run, this, std::move(firstAttempt));
    pthread_setname_np(m_thread.native_handle(), "x11-input");
    attempted.wait();
}

InputThread::~InputThread()
{
    m_mainSide.reset();
    {
        const std::scoped_lock lock(m_mutex);
        m_isEnding = true;
    }
    wake();
    m_thread.join();
    close(m_wakeDescriptor);
}

void InputThread::setDeliveryHandler(DeliveryHandler handler)
{
    m_mainSide->deliver = std::move(handler);
}

void InputThread::publish(const PublishedKeys& published)
{
    m_shared.published.store(published);
    enqueue([](InputEngine* engine) {
        if (engine != nullptr)
            engine->updateGrabs();
    });
}

void InputThread::setTapEnabled(bool enabled)
{
    m_shared.isTapEnabled = enabled;
    enqueue([](InputEngine* engine) {
        if (engine != nullptr)
            engine->updateGrabs();
    });
}

void InputThread::setRecording(bool recording)
{
    m_shared.isRecording = recording;
    enqueue([](InputEngine* engine) {
        if (engine != nullptr)
            engine->updateGrabs();
    });
}

void InputThread::setKeyPosting(std::shared_ptr<KeyPosting> posting)
{
    enqueue([this, posting = std::move(posting)](InputEngine* engine) {
        m_keyPosting = posting;
        if (engine != nullptr)
            engine->setKeyPosting(posting);
    });
}

void InputThread::repost(PressId press, Keycode keycode)
{
    enqueue([=](InputEngine* engine) {
        if (engine != nullptr)
            engine->repost(press, keycode);
    });
}

void InputThread::play(const Stroke& stroke)
{
    enqueue([=](InputEngine* engine) {
        if (engine != nullptr)
            engine->play(stroke);
    });
}

void InputThread::clickSecondary(RootPosition position, KeyState state)
{
    enqueue([=](InputEngine* engine) {
        if (engine != nullptr)
            engine->clickSecondary(position, state);
    });
}

std::optional<RootPosition> InputThread::pointerPosition()
{
    auto answer = std::make_shared<std::promise<std::optional<RootPosition>>>();
    std::future<std::optional<RootPosition>> answered = answer->get_future();
    enqueue([answer = std::move(answer)](InputEngine* engine) {
        answer->set_value(engine == nullptr ? std::nullopt : engine->pointerPosition());
    });
    if (answered.wait_for(patience) != std::future_status::ready)
        return std::nullopt;
    return answered.get();
}

void InputThread::settle()
{
    auto done = std::make_shared<std::promise<void>>();
    const std::future<void> settled = done->get_future();
    enqueue([done = std::move(done)](InputEngine* engine) {
        if (engine != nullptr)
            engine->settle();
        done->set_value();
    });
    settled.wait();
}

void InputThread::enqueue(Task task)
{
    {
        const std::scoped_lock lock(m_mutex);
        m_tasks.push_back(std::move(task));
    }
    wake();
}

void InputThread::wake() const
{
    // Fails only when the counter is full, and then the thread is awake.
    static_cast<void>(eventfd_write(m_wakeDescriptor, 1));
}

void InputThread::run(std::promise<void> firstAttempt)
{
    connect();
    firstAttempt.set_value();
    while (runTasks()) {
        attend();
        wait();
    }
    m_engine.reset();
}

void InputThread::connect()
{
    m_nextAttempt = std::chrono::steady_clock::now() + attemptInterval;
    auto opened = InputConnection::open(m_display);
    if (auto* const failure = std::get_if<QString>(&opened)) {
        if (std::exchange(m_lastFailure, *failure) != *failure)
            log(QStringLiteral("[Tarvin] No input path through X: %1.").arg(*failure));
        return;
    }
    m_engine = std::make_unique<InputEngine>(
        std::move(std::get<std::unique_ptr<InputConnection>>(opened)), m_shared, static_cast<InputOutbox&>(*this));
    m_engine->setKeyPosting(m_keyPosting);
    m_shared.isConnected = true;
    if (!std::exchange(m_lastFailure, {}).isEmpty())
        log(QStringLiteral("[Tarvin] The input path through X is back."));
}

void InputThread::attend()
{
    const bool isTimeForAttempt = std::chrono::steady_clock::now() >= m_nextAttempt;
    if (!m_engine) {
        if (isTimeForAttempt)
            connect();
        return;
    }
    m_engine->handleEvents();
    if (isTimeForAttempt && m_engine->hasRefusedGrabs()) {
        m_nextAttempt = std::chrono::steady_clock::now() + attemptInterval;
        m_engine->retryGrabs();
        m_engine->handleEvents();
    }
    if (m_engine->isBroken()) {
        m_shared.isConnected = false;
        m_engine.reset();
        m_lastFailure = QStringLiteral("the X server has gone");
        log(QStringLiteral("[Tarvin] No input path through X: %1.").arg(m_lastFailure));
    }
}

bool InputThread::runTasks()
{
    std::vector<Task> tasks;
    bool goesOn = true;
    {
        const std::scoped_lock lock(m_mutex);
        tasks.swap(m_tasks);
        goesOn = !m_isEnding;
    }
    for (const Task& task : tasks)
        task(m_engine.get());
    return goesOn;
}

void InputThread::wait()
{
    std::array<pollfd, 2> descriptors{{{m_wakeDescriptor, POLLIN, 0}, {-1, POLLIN, 0}}};
    int milliseconds = -1;
    if (m_engine)
        descriptors[1].fd = m_engine->fileDescriptor();
    if (!m_engine || m_engine->hasRefusedGrabs()) {
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(m_nextAttempt - std::chrono::steady_clock::now());
        milliseconds = static_cast<int>(std::max(left, std::chrono::milliseconds{0}).count());
    }
    poll(descriptors.data(), descriptors.size(), milliseconds);
    eventfd_t count = 0;
    static_cast<void>(eventfd_read(m_wakeDescriptor, &count));
}

void InputThread::deliver(const Delivery& delivery)
{
    m_scheduler.post([weak = m_weakMainSide, delivery] {
        if (const auto side = weak.lock(); side && side->deliver)
            side->deliver(delivery);
    });
}

void InputThread::log(const QString& line)
{
    m_scheduler.post([weak = m_weakMainSide, line] {
        if (const auto side = weak.lock(); side && side->log)
            side->log(line);
    });
}

} // namespace tarvin::x11
