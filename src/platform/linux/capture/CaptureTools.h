#pragma once

#include "model/ActionParameters.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace tarvin::capture {

/// A tool that takes the picture, ready to start.
struct CaptureCommand
{
    QString program;
    QStringList arguments;
    friend bool operator==(const CaptureCommand&, const CaptureCommand&) = default;
};

/// The best installed tool for this kind of picture: that of the running desktop before one that suits any.
/// @param file where the PNG is to go
/// @param isRunning,isInstalled tell about programs by name
/// @return nothing where none is installed
[[nodiscard]] std::optional<CaptureCommand> captureCommand(ScreenCaptureMode mode, const QString& file,
    const std::function<bool(QStringView)>& isRunning, const std::function<bool(QStringView)>& isInstalled);

} // namespace tarvin::capture
