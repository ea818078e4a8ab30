#pragma once

#include "app/simulate/Instruction.h"
#include "app/simulate/PhysicalKeyboard.h"

#include <QString>

#include <optional>

namespace tarvin::simulated {
class SimulatedPlatform;
}

namespace tarvin::simulate {

/// What was wrong with an instruction at the moment when it was to be carried out, in words for an error.
using Problem = std::optional<QString>;

/// Carries out the instructions that concern the desktop around the program.
class Stage
{
public:
    explicit Stage(simulated::SimulatedPlatform& platform);

    Problem apply(const DescribeProcess& process);
    Problem apply(const SetUptime& uptime);
    Problem apply(const SetClock& clock);
    Problem apply(const PutFile& file);
    Problem apply(const RemoveFile& file);
    Problem apply(const FailFile& failure);
    Problem apply(const MapKey& mapped);
    Problem apply(const StoreSetting& setting);
    Problem apply(const SetPermission& permission);
    Problem apply(const SetTapAvailable& tap);
    Problem apply(const SetGlobalMonitorAvailable& monitor);
    Problem apply(const SetHidManagerOpens& manager);
    Problem apply(const SetPostingPossible& posting);
    Problem apply(const AnswerScripts& answer);
    Problem apply(const ArrangeFunctionKeyTool& tool);
    Problem apply(const ArrangeLoginItem& item);
    Problem apply(const RunApplication& application);
    Problem apply(const QuitApplication& quit);
    Problem apply(const BringToFront& front);
    Problem apply(const ShowWindows& windows);
    Problem apply(const InstallApplication& installation);
    Problem apply(const ShowAccessibleWindows& windows);
    Problem apply(const MovePointer& pointer);
    Problem apply(const ArrangeScreens& screens);
    Problem apply(const SetBrightness& brightness);
    Problem apply(const ArrangeAppleMenu& menu);
    Problem apply(const ArrangeSystemTools& tools);
    Problem apply(const DescribeUser& user);
    Problem apply(const FillClipboard& clipboard);
    Problem apply(const PressKey& press);
    Problem apply(const DeliverEvent& delivery);
    Problem apply(const DeliverHidValue& delivery);
    Problem apply(const DisableTap& disabled);
    Problem apply(const ReopenProgram& reopen);
    Problem apply(const OpenUrls& open);
    Problem apply(const CloseWindow& close);
    Problem apply(const TerminateProgram& terminate);
    Problem apply(const AdvanceTime& advance);

private:
    [[nodiscard]] QString fullPath(const QString& path) const;
    /// By identifier, else by name.
    [[nodiscard]] std::optional<RunningApplication> findApplication(const QString& application) const;
    [[nodiscard]] QString noSuchApplication(const QString& application) const;
    [[nodiscard]] ProcessIdentifier processFor(const RunApplication& application) const;

    simulated::SimulatedPlatform& m_platform;
    PhysicalKeyboard m_keyboard;
};

} // namespace tarvin::simulate
