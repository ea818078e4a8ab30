#pragma once

#include "app/core/SharedObjects.h"
#include "app/simulate/Instruction.h"
#include "app/simulate/SimulatedToolPanels.h"
#include "app/simulate/Stage.h"
#include "model/ConfiguredAction.h"

#include <QObject>

namespace tarvin::simulated {
class SimulatedPlatform;
}

namespace tarvin::simulate {

/// The whole program on the simulated desktop. What it publishes to its windows is recorded as effects, because there
/// are no windows to show it.
class Program final
{
public:
    explicit Program(simulated::SimulatedPlatform& platform);

    /// What the system does at a launch.
    void start();

    Problem apply(const ExecuteRecord& execute);
    Problem apply(const ExecuteAction& execute);
    Problem apply(const FlipSwitches& flip);
    Problem apply(const EditProfile& edit);
    Problem apply(const AddProfile& add);
    Problem apply(const EditKey& edit);
    Problem apply(const ResetKey& reset);
    Problem apply(const PasteClip& paste);
    Problem apply(const TypeNote& note);
    Problem apply(const ChooseRingItem& choice);
    Problem apply(const ClosePanel& close);

private:
    void recordPublishedState();
    void recordKeycap();
    void recordState(QStringView name, const QJsonValue& value);
    [[nodiscard]] ConfiguredAction recordFrom(const QJsonObject& json);

    simulated::SimulatedPlatform& m_platform;
    SimulatedToolPanels m_panels;
    SharedObjects m_shared;
    std::optional<QString> m_pressedKeycap; ///< as the drawn keyboard would show it
    QObject m_watch; ///< the receiver of the signals; last, so that none arrives when the objects go
};

} // namespace tarvin::simulate
