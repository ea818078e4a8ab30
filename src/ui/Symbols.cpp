#include "ui/Symbols.h"

#include "ui/Blur.h"
#include "ui/SvgPath.h"

#include <QBrush>
#include <QCache>
#include <QFile>
#include <QPainter>
#include <QPixmap>

#include <array>
#include <cmath>

static void initializeSymbolResource()
{
    Q_INIT_RESOURCE(symbols);
}

namespace tarvin {

namespace {

constexpr double side = 256;
constexpr int shadowsKept = 64;

/// All in sixteenths of a device pixel.
struct ShadowKey
{
    std::size_t row;
    int size;
    int sigma;
    QRgb colour;

    bool operator==(const ShadowKey&) const = default;
};

std::size_t qHash(const ShadowKey& key, std::size_t seed = 0)
{
    return qHashMulti(seed, key.row, key.size, key.sigma, key.colour);
}

/// All outlines of a file of the symbol set: whatever stands in an attribute `d`.
QPainterPath pathOfFile(QStringView name)
{
    [[maybe_unused]] static const bool once = (initializeSymbolResource(), true);
    constexpr QStringView attribute = u" d=\"";
    QFile file(QStringLiteral(":/symbols/%1").arg(name));
    QPainterPath path;
    if (!file.open(QIODevice::ReadOnly))
        return path;
    const QString text = QString::fromLatin1(file.readAll());
    qsizetype start = 0;
    while ((start = text.indexOf(attribute, start)) >= 0) {
        start += attribute.size();
        const qsizetype end = text.indexOf(u'"', start);
        path.addPath(pathFromSvg(QStringView(text).sliced(start, end - start)));
    }
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath pathOf(const SymbolGlyph& glyph)
{
    QPainterPath path = glyph.outline.isEmpty() ? pathOfFile(glyph.file) : pathFromSvg(glyph.outline);
    path.setFillRule(Qt::WindingFill);
    QTransform transform;
    transform.translate(glyph.x, glyph.y);
    transform.scale(glyph.scale, glyph.scale);
    if (glyph.turn == SymbolTurn::mirrored)
        transform.scale(-1, 1);
    else if (glyph.turn == SymbolTurn::quarter)
        transform.rotate(90);
    transform.translate(-side / 2, -side / 2);
    return transform.map(path);
}

QPainterPath pathOf(const SymbolRow& row)
{
    QPainterPath path = pathOf(row.base);
    if (!row.cut.isEmpty())
        path = path.subtracted(pathOf(row.cut));
    if (!row.add.isEmpty())
        path = path.united(pathOf(row.add));
    return path;
}

} // namespace

const QPainterPath& symbolPath(Symbol symbol)
{
    static std::array<std::optional<QPainterPath>, symbolRows.size()> paths;
    auto& path = paths[symbol.row()];
    if (!path)
        path = pathOf(symbolRows[symbol.row()]);
    return *path;
}

void drawSymbol(QPainter& painter, Symbol symbol, const QPointF& centre, double size, const QBrush& brush)
{
    const double scale = size * symbolBoxPerSize / side;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    painter.scale(scale, scale);
    painter.translate(-side / 2, -side / 2);
    painter.fillPath(symbolPath(symbol), brush);
    painter.restore();
}

void drawSymbol(QPainter& painter, Symbol symbol, const QPointF& centre, double size, const QColor& colour)
{
    drawSymbol(painter, symbol, centre, size, QBrush(colour));
}

void drawSymbolShadow(
    QPainter& painter, Symbol symbol, const QPointF& centre, double size, double sigma, const QColor& colour)
{
    if (colour.alpha() == 0)
        return;
    static QCache<ShadowKey, QPixmap> cache(shadowsKept);
    const double scale = painter.device()->devicePixelRatioF();
    const auto fine = [scale](double length) { return static_cast<int>(std::lround(length * scale * 16)); };
    const ShadowKey key{.row = symbol.row(), .size = fine(size), .sigma = fine(sigma), .colour = colour.rgba()};
    QPixmap* image = cache.object(key);
    if (!image) {
        const double room = size * symbolBoxPerSize * scale + 2 * blurReach(sigma * scale);
        const int pixels = 2 * static_cast<int>(std::ceil(room / 2));
        image = new QPixmap(QPixmap::fromImage(blurred({pixels, pixels}, sigma * scale, colour, [&](QPainter& mask) {
            drawSymbol(mask, symbol, {pixels / 2.0, pixels / 2.0}, size * scale, QColor(Qt::white));
        })));
        cache.insert(key, image);
    }
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(centre);
    painter.scale(1 / scale, 1 / scale);
    painter.drawPixmap(QPointF(-image->width() / 2.0, -image->height() / 2.0), *image);
    painter.restore();
}

} // namespace tarvin
