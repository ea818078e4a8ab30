#pragma once

#include "platform/linux/capture/AreaPicker.h"
#include "platform/linux/capture/CaptureTools.h"
#include "platform/linux/capture/PictureDelivery.h"
#include "platform/linux/capture/PortalScreenshot.h"
#include "platform/ports/SystemCommands.h"

#include <QObject>

#include <memory>

namespace tarvin::desktop {
class XConnection;
}

namespace tarvin::capture {

/// Takes pictures of the screen by the first of these that can: the desktop's portal, an installed tool, the program
/// itself, which lets the user point at a window or draw a region. What the user breaks off stays without a word.
class LinuxScreenCapture : public QObject
{
    Q_OBJECT

public:
    /// Made on the main thread.
    LinuxScreenCapture(
        services::Buses::Provider sessionBus, desktop::XConnection& connection, services::TellUser tellUser);

    /// In the background; does not wait for the picture.
    void take(const CaptureScreen& wish);

private:
    void takeByTool(const CaptureScreen& wish);
    void runTool(const CaptureScreen& wish, const CaptureCommand& command, const QString& file);
    void takeByOurselves(const CaptureScreen& wish);
    void letUserPick(const QImage& picture, std::vector<QRect> windows, const CaptureScreen& wish);
    void deliverFile(const QString& file, const CaptureScreen& wish) const;

    desktop::XConnection& m_connection;
    services::TellUser m_tellUser;
    PictureDelivery m_delivery;
    PortalScreenshot m_portal;
    std::unique_ptr<AreaPicker> m_picker; ///< while the user chooses
};

} // namespace tarvin::capture
