// Draws the program's mark in every size of an icon theme, or of a bundle's icon.
//
//   tarvin-render-icons FOLDER               writes FOLDER/SIZExSIZE/apps/com.velmor.Tarvin.png
//   tarvin-render-icons --iconset FOLDER     writes FOLDER/icon_SIZExSIZE.png and FOLDER/icon_SIZExSIZE@2x.png

#include "studio/TarvinLogoView.h"

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

constexpr auto themeSizes = {16, 22, 24, 32, 48, 64, 128, 256, 512};
/// In points; each is drawn for one and for two pixels a point.
constexpr auto bundleSizes = {16, 32, 128, 256, 512};

bool draw(int size, const QString& file)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    tarvin::paintTarvinLogo(painter, QRectF(0, 0, size, size), tarvin::LogoGlow::none);
    painter.end();
    if (QDir().mkpath(QFileInfo(file).path()) && image.save(file))
        return true;
    std::fprintf(stderr, "the icon can't be written to \"%s\"\n", file.toUtf8().constData());
    return false;
}

bool drawTheme(const QString& folder)
{
    for (const int size : themeSizes) {
        if (!draw(size, QStringLiteral("%1/%2x%2/apps/com.velmor.Tarvin.png").arg(folder).arg(size)))
            return false;
    }
    return true;
}

bool drawBundleIcon(const QString& folder)
{
    for (const int size : bundleSizes) {
        const QString name = QStringLiteral("%1/icon_%2x%2").arg(folder).arg(size);
        if (!draw(size, name + QStringLiteral(".png")) || !draw(2 * size, name + QStringLiteral("@2x.png")))
            return false;
    }
    return true;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    const QStringList words = QGuiApplication::arguments().mid(1);
    if (words.size() == 2 && words.first() == u"--iconset")
        return drawBundleIcon(words.last()) ? 0 : 1;
    if (words.size() == 1)
        return drawTheme(words.first()) ? 0 : 1;
    std::fprintf(stderr, "usage: tarvin-render-icons [--iconset] FOLDER\n");
    return 2;
}
