#pragma once

#include "studio/StudioCollaborators.h"

#include <QWidget>

namespace tarvin {

class StatusCapsule;

/// The line of messages below the keyboard, in its middle.
class StatusAndMonitorSection : public QWidget
{
    Q_OBJECT

public:
    explicit StatusAndMonitorSection(const StudioCollaborators& collaborators, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void followMappings();
    void layOut();

    StudioCollaborators m_with;
    StatusCapsule* m_lastTrigger;
    StatusCapsule* m_profile;
    StatusCapsule* m_functionKeys;
    StatusCapsule* m_otherKeys;
    StatusCapsule* m_engine;
};

} // namespace tarvin
