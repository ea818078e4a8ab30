#include "studio/StatusAndMonitorSection.h"

#include "interception/EventTapManager.h"
#include "profiles/KeyProfile.h"
#include "studio/StatusCapsule.h"

#include <algorithm>
#include <array>

namespace tarvin {

namespace {

constexpr int gap = 7;

} // namespace

StatusAndMonitorSection::StatusAndMonitorSection(const StudioCollaborators& collaborators, QWidget* parent)
    : QWidget(parent)
    , m_with(collaborators)
    , m_lastTrigger(new StatusCapsule(StatusCapsule::Kind::lastTrigger, this))
    , m_profile(new StatusCapsule(StatusCapsule::Kind::message, this))
    , m_functionKeys(new StatusCapsule(StatusCapsule::Kind::message, this))
    , m_otherKeys(new StatusCapsule(StatusCapsule::Kind::message, this))
    , m_engine(new StatusCapsule(StatusCapsule::Kind::message, this))
{
    setFixedHeight(StatusCapsule::capsuleHeight);
    for (StatusCapsule* const capsule : {m_lastTrigger, m_profile, m_functionKeys, m_otherKeys, m_engine})
        connect(capsule, &StatusCapsule::resized, this, &StatusAndMonitorSection::layOut);
    for (const auto signal : {&KeyProfile::currentProfileChanged, &KeyProfile::profileMappingsChanged,
             &KeyProfile::functionKeysEnabledChanged, &KeyProfile::otherKeysEnabledChanged})
        connect(&m_with.keyProfile, signal, this, &StatusAndMonitorSection::followMappings);
    const EventTapManager& manager = m_with.eventTapManager;
    const auto followEngine = [this] { m_engine->setMessage(engineMessage(m_with.eventTapManager.isRunning())); };
    const auto followNotice = [this] { m_lastTrigger->setNotice(m_with.eventTapManager.lastTriggeredInfo()); };
    connect(&manager, &EventTapManager::isRunningChanged, this, followEngine);
    connect(&manager, &EventTapManager::lastTriggeredInfoChanged, this, followNotice);
    followMappings();
    followEngine();
    followNotice();
}

void StatusAndMonitorSection::followMappings()
{
    const KeyProfile& profile = m_with.keyProfile;
    m_profile->setMessage(
        profileMessage(static_cast<qsizetype>(profile.currentMappings().size()), profile.currentProfile().name));
    m_functionKeys->setMessage(
        functionKeysMessage(profile.customizedFunctionKeysCount(), profile.isFunctionKeysEnabled()));
    m_otherKeys->setMessage(otherKeysMessage(profile.customizedOtherKeysCount(), profile.isOtherKeysEnabled()));
}

void StatusAndMonitorSection::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layOut();
}

void StatusAndMonitorSection::layOut()
{
    const std::array capsules = {m_lastTrigger, m_profile, m_functionKeys, m_otherKeys, m_engine};
    int total = -gap;
    for (const StatusCapsule* const capsule : capsules)
        total += capsule->isHidden() ? 0 : capsule->sizeHint().width() + gap;
    // Where there is not enough room the notice gives way; the others are short.
    const int missing = std::max(0, total - width());
    int x = (width() - total + missing) / 2;
    for (StatusCapsule* const capsule : capsules) {
        if (capsule->isHidden())
            continue;
        QSize size = capsule->sizeHint();
        if (capsule == m_lastTrigger)
            size.setWidth(std::max(size.height(), size.width() - missing));
        capsule->setGeometry(QRect(QPoint(x, 0), size));
        x += capsule->width() + gap;
    }
}

} // namespace tarvin
