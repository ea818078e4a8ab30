#include "studio/applications/view/ApplicationPictures.h"

#include "platform/ports/ApplicationFolders.h"

#include <QImageReader>
#include <QPainter>

namespace tarvin {

namespace {

/// The first of the files that can be read.
QImage readPicture(const QStringList& files, int pixels)
{
    for (const QString& file : files) {
        QImageReader reader(file);
        // Drawings have no size of their own, and large pictures need not be unpacked in full.
        if (const QSize size = reader.size(); !size.isEmpty())
            reader.setScaledSize(size.scaled(pixels, pixels, Qt::KeepAspectRatio));
        const QImage image = reader.read();
        if (image.isNull())
            continue;
        QImage square(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
        square.fill(Qt::transparent);
        QPainter painter(&square);
        painter.drawImage((pixels - image.width()) / 2, (pixels - image.height()) / 2, image);
        return square;
    }
    return {};
}

} // namespace

ApplicationIcons::Read picturesOf(const ApplicationFolders& folders)
{
    return
        [&folders](const QString& icon, int pixels) { return readPicture(folders.pictureFiles(icon, pixels), pixels); };
}

} // namespace tarvin
