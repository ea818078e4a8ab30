// Draws the program's mark in every size of an icon theme.
//
//   tarvin-render-icons FOLDER     writes FOLDER/SIZExSIZE/apps/com.velmor.Tarvin.png

#include "studio/TarvinLogoView.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    const QString folder = QGuiApplication::arguments().value(1);
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        tarvin::paintTarvinLogo(painter, QRectF(0, 0, size, size), tarvin::LogoGlow::none);
        painter.end();
        const QString place = QStringLiteral("%1/%2x%2/apps").arg(folder).arg(size);
        if (folder.isEmpty() || !QDir().mkpath(place)
            || !image.save(place + QStringLiteral("/com.velmor.Tarvin.png"))) {
            std::fprintf(stderr, "the icons can't be written to \"%s\"\n", folder.toUtf8().constData());
            return 1;
        }
    }
    return 0;
}
