#include "platform/linux/x11/InputEngine.h"

#include "platform/linux/x11/KeyEvents.h"

#include <algorithm>
#include <type_traits>
#include <utility>
#include <variant>

namespace tarvin::x11 {

InputEngine::InputEngine(std::unique_ptr<InputConnection> connection, InputShared& shared, InputOutbox& outbox)
    : m_connection(std::move(connection))
    , m_shared(shared)
    , m_outbox(outbox)
    , m_router(shared.lastPress)
{
    m_keyboards = m_connection->keyboards();
    m_modifiers = m_connection->modifierState();
    adoptKeymap();
    refreshKeymap();
    m_router.adopt(m_connection->downKeys());
    for (const DeviceId device : m_keyboards.physical)
        carryOut(m_grabs.addDevice(device));
    updateGrabs();
}

InputEngine::~InputEngine()
{
    for (const Effect& effect : m_router.everythingGone(situation())) {
        if (std::holds_alternative<FakeKey>(effect))
            fake(std::get<FakeKey>(effect), selfPostedMarker);
        else if (std::holds_alternative<Delivery>(effect))
            m_outbox.deliver(std::get<Delivery>(effect));
    }
    apply(m_player.abandon());
    // A connection that is closed with answers unread takes what it has just sent with it.
    m_connection->sync();
    m_shared.lastPress = m_router.lastPress();
    m_shared.heldSides = 0;
    m_shared.ledger.clear();
}

void InputEngine::handleEvents()
{
    (void)workOffEvents();
}

/// @return whether there were any
bool InputEngine::workOffEvents()
{
    bool wereThere = false;
    for (;;) {
        // Before the look for events and not after it: sending may read some into the queue of the library, where the
        // thread, which waits for the socket, would not see them.
        m_connection->flush();
        if (const auto event = takeEvent()) {
            wereThere = true;
            handle(*event);
        } else if (m_isKeymapStale) {
            refreshKeymap(); // waits for answers, and events may come before them
        } else {
            return wereThere;
        }
    }
}

void InputEngine::settle()
{
    m_connection->sync();
    handleEvents();
}

void InputEngine::handle(const ServerEvent& event)
{
    m_shared.ledger.passBy(event.request);
    std::visit(
        [&](const auto& content) {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, RawKey>) {
                handle(content, event.request);
            } else if constexpr (std::is_same_v<Content, ModifierState>) {
                m_modifiers = content;
            } else if constexpr (std::is_same_v<Content, KeymapChange>) {
                m_isKeymapStale = true;
            } else {
                handle(content);
            }
        },
        event.content);
}

void InputEngine::handle(const GrabbedKey& grabbed)
{
    apply(grabbed.motion == KeyMotion::release ? m_router.grabbedRelease(grabbed.key, situation())
                                               : m_router.grabbedPress(grabbed.key, grabbed.motion, situation()));
    publishHeldSides();
}

void InputEngine::handle(const RawKey& raw, RequestSequence request)
{
    const Situation now = situation();
    if (isFakingDevice(raw.key.device)) {
        const auto motion = raw.motion == KeyMotion::press ? FakeMotion::press : FakeMotion::release;
        if (const auto userData = m_shared.ledger.settle({raw.key.keycode, motion}, raw.time, request)) {
            tellWatcher(raw, *userData, now);
            return;
        }
    }
    if (isPostingDevice(raw.key.device)) {
        const auto motion = raw.motion == KeyMotion::press ? FakeMotion::press : FakeMotion::release;
        const auto userData = m_shared.ledger.settlePosted({raw.key.keycode, motion}, raw.time);
        tellWatcher(raw, userData.value_or(selfPostedMarker), now);
        return;
    }
    if (raw.motion == KeyMotion::press) {
        if (!willBeGrabbed(raw.key))
            apply(m_router.rawPress(raw.key, now));
    } else {
        apply(m_router.rawRelease(raw.key, now));
        apply(m_player.noteUserRelease(raw.key.keycode));
    }
    publishHeldSides();
}

void InputEngine::tellWatcher(const RawKey& own, std::int64_t userData, const Situation& now)
{
    auto event = makeKeyEvent(own.key.keycode, own.motion, now.flags);
    if (event && now.isTapEnabled && now.isStudioActive) {
        event->userData = userData;
        m_outbox.deliver({Audience::tapWatching, own.key.keycode, *event, own.motion});
    }
}

void InputEngine::handle(const KeyboardChange& change)
{
    m_keyboards = m_connection->keyboards();
    m_isKeymapStale = true;
    switch (change.kind) {
    case KeyboardChange::Kind::went:
        m_grabs.removeDevice(change.device);
        m_fakingDevices.erase(change.device);
        if (isPostingDevice(change.device))
            forgetPosted();
        m_postingDevices.erase(change.device);
        apply(m_router.deviceGone(change.device, situation()));
        publishHeldSides();
        return;
    case KeyboardChange::Kind::came:
        if (!isPostingDevice(change.device))
            carryOut(m_grabs.addDevice(change.device));
        adoptKeymap();
        return;
    }
}

bool InputEngine::willBeGrabbed(PhysicalKey key) const
{
    return m_grabs.isInstalled(key) && (key.keycode != summonKeycode || containsAll(situation().flags, summonFlags));
}

bool InputEngine::isFakingDevice(DeviceId device)
{
    const auto known = m_fakingDevices.find(device);
    if (known != m_fakingDevices.end())
        return known->second;
    return m_fakingDevices[device] = m_connection->isFakingDevice(device);
}

bool InputEngine::isPostingDevice(DeviceId device)
{
    const auto known = m_postingDevices.find(device);
    if (known != m_postingDevices.end())
        return known->second;
    return m_postingDevices[device] = m_connection->isPostingDevice(device);
}

void InputEngine::apply(const Effects& effects)
{
    for (const Effect& effect : effects) {
        std::visit(
            [this](const auto& each) {
                using Each = std::decay_t<decltype(each)>;
                if constexpr (std::is_same_v<Each, Delivery>)
                    m_outbox.deliver(each);
                else if constexpr (std::is_same_v<Each, FakeKey>)
                    fake(each, selfPostedMarker);
                else if constexpr (std::is_same_v<Each, EndGrab>)
                    m_connection->endGrab(each.device);
                else
                    tapBlankKey();
            },
            effect);
    }
}

void InputEngine::apply(const StrokePlayer::Fakes& fakes)
{
    for (const MarkedFake& each : fakes) {
        const bool isPosted = each.key.motion == FakeMotion::release && m_posted.isDown(each.key.keycode);
        if (!isPosted || !post(each.key, each.userData))
            fake(each.key, each.userData);
    }
}

void InputEngine::fake(FakeKey key, std::int64_t userData)
{
    awaitPosted();
    m_areFakesUnsettled = true;
    FakeKey actual = key;
    if (key.motion == FakeMotion::press) {
        actual.keycode = m_keymap.fakingKeycode(key.keycode);
        m_fakedDown[key.keycode] = actual.keycode;
    } else if (const auto faked = m_fakedDown.find(key.keycode); faked != m_fakedDown.end()) {
        actual.keycode = faked->second;
        m_fakedDown.erase(faked);
    }
    m_shared.ledger.expect(actual, userData, m_connection->fakeKey(actual));
}

KeycodeSet InputEngine::downKeys()
{
    KeycodeSet down = m_connection->downKeys();
    for (const auto& [keycode, actual] : m_fakedDown) {
        const bool isDown = down[actual];
        down.reset(actual);
        if (isDown)
            down.set(keycode);
    }
    return m_posted.downAfterArrival(down);
}

void InputEngine::tapBlankKey()
{
    if (const Keycode blank = m_keymap.modifierKeys().blank; blank != 0) {
        fake({blank, FakeMotion::press}, selfPostedMarker);
        fake({blank, FakeMotion::release}, selfPostedMarker);
    }
}

void InputEngine::updateGrabs()
{
    const PublishedKeys published = m_shared.published.load();
    KeycodeSet wanted;
    if (m_shared.isTapAtWork()) {
        wanted = keycodesOf(published.keys);
        wanted.set(summonKeycode, published.summon == SummonShortcut::taken);
    }
    carryOut(m_grabs.setWanted(wanted));
}

void InputEngine::carryOut(const GrabSteps& steps)
{
    if (steps.empty())
        return;
    const auto modifiersFor = [this](PhysicalKey key) {
        return key.keycode == summonKeycode ? std::span<const std::uint32_t>(m_summonModifiers)
                                            : std::span<const std::uint32_t>();
    };
    std::vector<std::pair<PhysicalKey, unsigned>> asked;
    for (const GrabStep& step : steps) {
        if (step.change == GrabStep::Change::remove)
            m_connection->removeGrab(step.key, modifiersFor(step.key));
        else
            asked.emplace_back(step.key, m_connection->requestGrab(step.key, modifiersFor(step.key)));
    }
    for (const auto& [key, request] : asked)
        noteOutcome(key, m_connection->grabOutcome(request));
}

void InputEngine::noteOutcome(PhysicalKey key, GrabOutcome outcome)
{
    const KeyCodeRow* const row = keyRowOfXKeycode(key.keycode);
    const auto line = [&](const QString& text) {
        const auto name = row == nullptr ? std::string_view() : row->name;
        return text.arg(
            QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), m_connection->nameOf(key.device));
    };
    switch (outcome) {
    case GrabOutcome::granted:
        if (m_grabs.noteInstalled(key))
            m_outbox.log(line(QStringLiteral("[Tarvin] Key %1 of \"%2\" is free again and intercepted.")));
        return;
    case GrabOutcome::takenByAnother:
        if (m_grabs.noteRefused(key))
            m_outbox.log(line(QStringLiteral("[Tarvin] Key %1 of \"%2\" is taken by another program.")));
        return;
    case GrabOutcome::noSuchDevice:
        return;
    }
}

std::vector<std::uint32_t> InputEngine::summonModifiers() const
{
    constexpr unsigned everyState = 0x100;
    std::vector<std::uint32_t> modifiers;
    for (unsigned state = 0; state < everyState; ++state) {
        if (containsAll(m_keymap.masks().flagsOf(static_cast<ModifierMask>(state)), summonFlags))
            modifiers.push_back(state);
    }
    return modifiers;
}

/// A session sets the keymap of the keyboards that are there. What the tap daemon makes later speaks for these very
/// keyboards, and must not type another layout.
void InputEngine::adoptKeymap()
{
    std::vector<DeviceId> made = m_keyboards.reEmitting;
    if (m_keyboards.posting != 0)
        made.push_back(m_keyboards.posting);
    const auto isMade = [&](DeviceId device) { return std::ranges::find(made, device) != made.end(); };
    const auto typed = std::ranges::find_if_not(m_keyboards.physical, isMade);
    if (made.empty() || typed == m_keyboards.physical.end())
        return;
    const auto names = m_connection->keymapNames(*typed);
    for (const DeviceId device : made) {
        if (names && m_connection->keymapNames(device) != names)
            m_connection->loadKeymap(device, *names);
    }
}

void InputEngine::refreshKeymap()
{
    m_isKeymapStale = false;
    const DeviceId keyboard = m_keyboards.physical.empty() ? m_keyboards.faking : m_keyboards.physical.front();
    m_keymap = m_connection->keyboardMap(keyboard, m_keyboards.faking);
    if (m_keyboards.posting != 0 || m_keyboards.areOfAnotherSession)
        m_postingKeymap =
            m_connection->keyboardMap(keyboard, m_keyboards.posting != 0 ? m_keyboards.posting : keyboard);
    m_shared.masks = m_keymap.masks();
    std::vector<std::uint32_t> modifiers = summonModifiers();
    if (modifiers == m_summonModifiers)
        return;
    // A grab can only be changed by removing it as it stands.
    GrabSteps steps;
    for (const DeviceId device : m_grabs.devicesGrabbing(summonKeycode)) {
        const PhysicalKey key{device, summonKeycode};
        m_connection->removeGrab(key, m_summonModifiers);
        steps.push_back({key, GrabStep::Change::install});
    }
    m_summonModifiers = std::move(modifiers);
    carryOut(steps);
}

void InputEngine::repost(PressId press, Keycode keycode)
{
    apply(m_router.repost(press, keycode));
    publishHeldSides();
    m_connection->flush();
}

void InputEngine::play(const Stroke& stroke)
{
    // The event of a key that the server tells to be down may wait before the answer. Without it the key would count as
    // one that nobody holds, and not be given back after the stroke.
    KeycodeSet down = downKeys();
    while (workOffEvents())
        down = downKeys();
    const KeycodeSet heldByUser = m_router.heldKeys().keycodes();
    const auto momentOn = [&](const KeyboardMap& map) {
        return KeyboardMoment{.map = map, .layout = m_modifiers.layout, .down = down, .heldByUser = heldByUser};
    };
    StrokePlayer posting = m_player;
    if (isPostingPossible()) {
        const StrokePlayer::Fakes fakes = posting.play(stroke, momentOn(m_postingKeymap));
        if (canBePosted(fakes, down, heldByUser)) {
            m_player = std::move(posting);
            post(fakes);
            return;
        }
    }
    apply(m_player.play(stroke, momentOn(m_keymap)));
    m_connection->flush();
}

void InputEngine::clickSecondary(RootPosition position, KeyState state)
{
    if (m_connection->pointerPosition() != position)
        m_connection->fakePointerMotion(position);
    m_connection->fakeSecondaryButton(state == KeyState::down ? FakeMotion::press : FakeMotion::release);
    m_connection->flush();
}

void InputEngine::publishHeldSides()
{
    const KeycodeSet held = m_router.heldKeys().keycodes();
    std::uint8_t sides = 0;
    for (std::size_t keycode = 0; keycode < keycodeCount; ++keycode) {
        if (held[keycode])
            sides |= sideBitOf(static_cast<Keycode>(keycode));
    }
    m_shared.heldSides = sides;
}

Situation InputEngine::situation() const
{
    return {.published = m_shared.published.load(),
        .isTapEnabled = m_shared.isTapAtWork(),
        .hasGlobalMonitor = m_shared.hasGlobalMonitor,
        .isStudioActive = m_shared.isStudioActive,
        .flags = m_keymap.masks().flagsOf(m_modifiers.effective)};
}

} // namespace tarvin::x11
