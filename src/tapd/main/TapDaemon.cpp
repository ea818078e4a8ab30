#include "tapd/main/TapDaemon.h"

#include "tapd/main/MonotonicTime.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

namespace tarvin::tapd {

using namespace std::chrono_literals;

namespace {

/// How long the session is given to notice a new output before anything is typed through it.
constexpr EventTime settleTime = 1s;
/// How often a keyboard that another program has is asked for again.
constexpr EventTime retryInterval = 500ms;

} // namespace

TapDaemon::TapDaemon(GuardLink guard, Listener listener, std::optional<uid_t> fixedUser)
    : m_guard(std::move(guard))
    , m_listener(std::move(listener))
    , m_seat(fixedUser)
    , m_outputs(m_guard)
    , m_service(m_outputs)
{ }

int TapDaemon::run()
{
    if (!makeOutputs()) {
        std::fprintf(stderr, "tarvin-tapd: /dev/uinput can't be opened; is the rule for it installed?\n");
        return 1;
    }
    m_poller.watch(m_listener.descriptor(), Watched::listener);
    m_poller.watch(m_monitor.descriptor(), Watched::devices);
    if (m_seat.descriptor() >= 0)
        m_poller.watch(m_seat.descriptor(), Watched::seat);
    for (;;) {
        m_guard.page().lastProgress.store(0, std::memory_order_relaxed);
        const auto ready = m_poller.wait(deadline());
        noteProgress();
        if (m_guard.page().isTakenOver)
            beginAnewAfterTakeOver();
        for (const Poller::Ready& each : ready)
            handle(each);
        m_service.tick(m_now);
        if (m_service.takeWayOut())
            closeEverything();
        if (m_outputs.haveFailed())
            beginAnewAfterFailure();
        reconcile();
    }
}

void TapDaemon::noteProgress()
{
    m_now = monotonicNow();
    m_guard.page().lastProgress.store(m_now.count(), std::memory_order_relaxed);
}

void TapDaemon::handle(const Poller::Ready& ready)
{
    switch (ready.kind) {
    case Watched::keyboard:
        readKeyboard(ready.name);
        break;
    case Watched::output:
        readLights(static_cast<Output>(ready.name));
        break;
    case Watched::application:
        if (m_service.hasApplication())
            m_service.readApplication(m_now);
        break;
    case Watched::listener:
        acceptApplication();
        break;
    case Watched::devices:
        followDevices();
        break;
    case Watched::seat:
        followSeat();
        break;
    }
}

void TapDaemon::readKeyboard(std::uint32_t name)
{
    // It may have been closed by what came before it in this turn.
    const auto keyboard = m_keyboards.find(name);
    if (keyboard == m_keyboards.end())
        return;
    if (keyboard->second.id)
        readGrabbedKeyboard(keyboard);
    else
        readWaitingKeyboard(keyboard);
}

/// The system has these events as well; to us they say only that a key may be up now.
void TapDaemon::readWaitingKeyboard(Keyboards::iterator keyboard)
{
    if (keyboard->second.device.read(m_readBuffer))
        tryToGrab(keyboard);
    else
        close(keyboard);
}

void TapDaemon::readGrabbedKeyboard(Keyboards::iterator keyboard)
{
    const KeyboardDevice& device = keyboard->second.device;
    const auto events = device.read(m_readBuffer);
    // What was read before the guard took over was read by nobody else; what was read after it, the system has itself.
    if (m_guard.page().isTakenOver) {
        beginAnewAfterTakeOver();
        return;
    }
    if (!events) {
        close(keyboard);
        return;
    }
    const KeyboardId id = *keyboard->second.id;
    m_service.handleEvents(id, *events);
    if (m_service.isOutOfStep(id)) {
        if (const auto down = device.keysDown())
            m_service.resynchronise(id, *down, m_now);
    }
}

void TapDaemon::readLights(Output output)
{
    if (!m_outputs.readLights(output))
        return;
    for (const auto& [name, keyboard] : m_keyboards) {
        if (keyboard.id && keyboard.device.output() == output)
            keyboard.device.setLights(m_outputs.lights(output));
    }
}

void TapDaemon::acceptApplication()
{
    auto caller = m_listener.accept();
    if (!caller)
        return;
    if (!m_seat.isAtTheSeat(caller->user)) {
        std::fprintf(stderr, "tarvin-tapd: user %u does not have the seat and is refused\n", caller->user);
        return;
    }
    m_applicationUser = caller->user;
    m_service.accept(FrameSocket(std::move(caller->descriptor)), m_now);
    if (m_service.hasApplication())
        m_poller.watch(m_service.applicationDescriptor(), Watched::application);
}

void TapDaemon::followDevices()
{
    while (const auto change = m_monitor.nextChange()) {
        switch (change->kind) {
        case DeviceMonitor::Change::Kind::came:
            if (m_areOpen)
                open(change->path);
            break;
        case DeviceMonitor::Change::Kind::went:
            if (const auto known = m_nameByPath.find(change->path); known != m_nameByPath.end())
                close(m_keyboards.find(known->second));
            break;
        }
    }
}

void TapDaemon::followSeat()
{
    m_seat.acknowledgeChange();
    if (m_service.hasApplication() && !m_seat.isAtTheSeat(m_applicationUser))
        m_service.dropApplication();
}

void TapDaemon::openKeyboards()
{
    m_areOpen = true;
    for (const std::string& path : m_monitor.present())
        open(path);
}

void TapDaemon::open(const std::string& path)
{
    noteProgress();
    if (m_nameByPath.contains(path))
        return;
    auto device = KeyboardDevice::open(path);
    if (!device)
        return;
    const Output output = device->output();
    if (!m_outputs.has(output)) {
        if (!m_outputs.makeFor(output, device->id()))
            return;
        m_poller.watch(m_outputs.descriptor(output), Watched::output, static_cast<std::uint32_t>(output));
        m_outputsReadyAt = m_now + settleTime;
    }
    const std::uint32_t name = ++m_lastName;
    m_poller.watch(device->descriptor(), Watched::keyboard, name);
    m_nameByPath[path] = name;
    const auto added = m_keyboards.emplace(name, Keyboard{.device = std::move(*device), .id = std::nullopt}).first;
    tryToGrab(added);
}

void TapDaemon::tryToGrab(Keyboards::iterator keyboard)
{
    noteProgress();
    auto& [name, each] = *keyboard;
    if (m_now < m_outputsReadyAt)
        return;
    // The system would never learn of the release of a key that is down now.
    if (each.device.keysDown().value_or(KeyBits()).any())
        return;
    if (!each.device.grab()) {
        m_retryAt = m_now + retryInterval;
        return;
    }
    const EventTime grabbedAt = monotonicNow();
    each.id = m_service.attach(each.device.output());
    feedWhatCameSince(grabbedAt, each);
    // A key that went down between the look and the grab is the system's until it is up.
    if (each.device.keysDown() != m_service.heldKeys(*each.id)) {
        m_service.detach(*each.id);
        each.id.reset();
        each.device.release();
        return;
    }
    m_guard.tell({.kind = GuardNotice::Kind::keyboardOpened,
                     .name = name,
                     .output = static_cast<std::uint32_t>(each.device.output())},
        each.device.descriptor());
    each.device.setLights(m_outputs.lights(each.device.output()));
}

void TapDaemon::feedWhatCameSince(EventTime start, const Keyboard& keyboard)
{
    while (const auto events = keyboard.device.read(m_readBuffer)) {
        if (events->empty())
            return;
        const auto isNew = [start](const input_event& event) { return timeOf(event) >= start; };
        const auto first = std::ranges::find_if(*events, isNew);
        m_service.handleEvents(*keyboard.id, events->subspan(static_cast<std::size_t>(first - events->begin())));
    }
}

TapDaemon::Keyboards::iterator TapDaemon::close(Keyboards::iterator keyboard)
{
    noteProgress();
    auto& [name, each] = *keyboard;
    if (each.id) {
        m_service.detach(*each.id);
        each.device.release();
    }
    m_guard.tell({.kind = GuardNotice::Kind::keyboardClosed, .name = name}, -1);
    m_poller.forget(each.device.descriptor());
    std::erase_if(m_nameByPath, [closed = name](const auto& known) { return known.second == closed; });
    return m_keyboards.erase(keyboard);
}

void TapDaemon::closeEverything()
{
    while (!m_keyboards.empty())
        close(m_keyboards.begin());
    m_areOpen = false;
    m_retryAt.reset();
}

void TapDaemon::reconcile()
{
    if (m_service.wantsKeyboards()) {
        if (!m_areOpen)
            openKeyboards();
        if (m_now < m_outputsReadyAt)
            return;
        const bool isReadyAnew = std::exchange(m_outputsReadyAt, EventTime(0)) != EventTime(0);
        const bool isRetry = m_retryAt && m_now >= *m_retryAt;
        if (isRetry)
            m_retryAt.reset();
        if (!isReadyAnew && !isRetry)
            return;
        for (auto keyboard = m_keyboards.begin(); keyboard != m_keyboards.end(); ++keyboard) {
            if (!keyboard->second.id)
                tryToGrab(keyboard);
        }
        return;
    }
    m_areOpen = false;
    m_retryAt.reset();
    for (auto keyboard = m_keyboards.begin(); keyboard != m_keyboards.end();) {
        const auto& id = keyboard->second.id;
        keyboard = !id || m_service.isAtRest(*id) ? close(keyboard) : std::next(keyboard);
    }
}

/// We were stopped, and the guard has given the keyboards back meanwhile.
void TapDaemon::beginAnewAfterTakeOver()
{
    closeEverything();
    m_outputs.releaseEverything();
    if (m_service.hasApplication())
        m_service.readApplicationAfterPause(m_now);
    m_guard.page().isTakenOver = false;
}

void TapDaemon::beginAnewAfterFailure()
{
    std::fprintf(stderr, "tarvin-tapd: a device of ours has failed; all are made anew\n");
    closeEverything();
    m_outputs.destroy();
    if (!makeOutputs())
        std::fprintf(stderr, "tarvin-tapd: they can't be made\n");
}

bool TapDaemon::makeOutputs()
{
    if (!m_outputs.make())
        return false;
    m_poller.watch(
        m_outputs.descriptor(Output::external), Watched::output, static_cast<std::uint32_t>(Output::external));
    m_outputsReadyAt = monotonicNow() + settleTime;
    return true;
}

std::optional<EventTime> TapDaemon::deadline() const
{
    std::optional<EventTime> next = m_service.deadline(m_now);
    const auto consider = [&next](EventTime time) { next = next ? std::min(*next, time) : time; };
    if (m_retryAt)
        consider(*m_retryAt);
    if (m_service.wantsKeyboards() && m_outputsReadyAt != EventTime(0))
        consider(m_outputsReadyAt);
    return next;
}

} // namespace tarvin::tapd
