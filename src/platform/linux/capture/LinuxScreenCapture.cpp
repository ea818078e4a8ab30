#include "platform/linux/capture/LinuxScreenCapture.h"

#include "platform/linux/capture/OwnGrab.h"
#include "platform/linux/services/Programs.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QUuid>

namespace tarvin::capture {

using services::notAvailable;

namespace {

QString nameOf(ScreenCaptureMode mode)
{
    switch (mode) {
    case ScreenCaptureMode::screen:
        return QStringLiteral("screen capture");
    case ScreenCaptureMode::window:
        return QStringLiteral("window capture");
    case ScreenCaptureMode::region:
        return QStringLiteral("region capture");
    }
    return {};
}

/// A file of our own for a picture on its way.
QString passingFile()
{
    return QDir::tempPath() + QStringLiteral("/tarvin-picture-%1.png").arg(QUuid::createUuid().toString(QUuid::Id128));
}

} // namespace

LinuxScreenCapture::LinuxScreenCapture(
    services::Buses::Provider sessionBus, desktop::XConnection& connection, services::TellUser tellUser)
    : m_connection(connection)
    , m_tellUser(tellUser)
    , m_delivery(std::move(tellUser))
    , m_portal(std::move(sessionBus))
{ }

void LinuxScreenCapture::take(const CaptureScreen& wish)
{
    if (!m_portal.isThere()) {
        takeByTool(wish);
        return;
    }
    const auto choice =
        wish.mode == ScreenCaptureMode::screen ? PortalScreenshot::Choice::none : PortalScreenshot::Choice::ofUser;
    m_portal.take(choice, [this, wish](PortalScreenshot::Outcome outcome, const QString& file) {
        if (outcome == PortalScreenshot::Outcome::taken)
            deliverFile(file, wish);
        else if (outcome == PortalScreenshot::Outcome::failed)
            takeByTool(wish);
    });
}

void LinuxScreenCapture::takeByTool(const CaptureScreen& wish)
{
    const QString file = passingFile();
    const std::optional<CaptureCommand> command = captureCommand(wish.mode, file, &services::isProgramRunning,
        [](QStringView program) { return services::isProgramInstalled(program.toString()); });
    QMetaObject::invokeMethod(
        this,
        [this, wish, command, file] {
            if (command)
                runTool(wish, *command, file);
            else
                takeByOurselves(wish);
        },
        Qt::QueuedConnection);
}

void LinuxScreenCapture::runTool(const CaptureScreen& wish, const CaptureCommand& command, const QString& file)
{
    auto* const tool = new QProcess(this);
    tool->setStandardOutputFile(QProcess::nullDevice());
    tool->setStandardErrorFile(QProcess::nullDevice());
    connect(tool, &QProcess::finished, this, [this, tool, wish, file] {
        tool->deleteLater();
        // Without a file the user has broken it off.
        if (QFile::exists(file))
            deliverFile(file, wish);
    });
    connect(tool, &QProcess::errorOccurred, this, [this, tool, wish](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        tool->deleteLater();
        takeByOurselves(wish);
    });
    tool->start(command.program, command.arguments);
}

void LinuxScreenCapture::takeByOurselves(const CaptureScreen& wish)
{
    // A later wish takes the place of one that the user has not answered.
    m_picker.reset();
    const QImage picture = grabScreen(m_connection);
    if (picture.isNull()) {
        m_tellUser(notAvailable(nameOf(wish.mode)));
        return;
    }
    switch (wish.mode) {
    case ScreenCaptureMode::screen:
        m_delivery.deliver(picture, wish.file);
        break;
    case ScreenCaptureMode::window:
        if (std::vector<QRect> windows = windowAreas(m_connection); !windows.empty())
            letUserPick(picture, std::move(windows), wish);
        break;
    case ScreenCaptureMode::region:
        letUserPick(picture, {}, wish);
        break;
    }
}

void LinuxScreenCapture::letUserPick(const QImage& picture, std::vector<QRect> windows, const CaptureScreen& wish)
{
    m_picker = std::make_unique<AreaPicker>(picture, std::move(windows));
    connect(m_picker.get(), &AreaPicker::done, this, [this, picture, wish](const std::optional<QRect>& area) {
        if (area)
            m_delivery.deliver(picture.copy(*area), wish.file);
        // The picker may be in the middle of an event.
        m_picker.release()->deleteLater();
    });
    m_picker->begin();
}

void LinuxScreenCapture::deliverFile(const QString& file, const CaptureScreen& wish) const
{
    m_delivery.deliver(QImage(file), wish.file);
    QFile::remove(file);
}

} // namespace tarvin::capture
