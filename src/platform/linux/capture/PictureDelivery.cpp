#include "platform/linux/capture/PictureDelivery.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

namespace tarvin::capture {

PictureDelivery::PictureDelivery(services::TellUser tellUser)
    : m_tellUser(std::move(tellUser))
{ }

void PictureDelivery::deliver(const QImage& picture, const std::optional<QString>& file) const
{
    if (picture.isNull()) {
        m_tellUser(QStringLiteral("The screenshot could not be read"));
        return;
    }
    if (!file) {
        QGuiApplication::clipboard()->setImage(picture);
        return;
    }
    if (!QDir().mkpath(QFileInfo(*file).path()) || !picture.save(*file, "PNG"))
        m_tellUser(QStringLiteral("The screenshot could not be saved to %1").arg(*file));
}

} // namespace tarvin::capture
