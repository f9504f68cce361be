#include <OrvaneExportKit/windowing/Shadow.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace windowing {

namespace {

/// How much a strip from `start` to `end`, blurred by a Gaussian, covers of each pixel from `first` on: 0 to 1.
std::vector<double> blurredStrip(double start, double end, double deviation, int first, int count)
{
    const double scale = 1.0 / (deviation * std::numbers::sqrt2);
    std::vector<double> shares;
    shares.reserve(static_cast<std::size_t>(count));
    for (int pixel = first; pixel < first + count; ++pixel) {
        const double centre = pixel + 0.5;
        shares.push_back(0.5 * (std::erf((centre - start) * scale) - std::erf((centre - end) * scale)));
    }
    return shares;
}

} // namespace

void drawShadow(QPainter &painter, const QRectF &rectangle, const Shadow &shadow)
{
    const QTransform toPixels = painter.deviceTransform();
    const double radius = shadow.blurRadius * std::abs(toPixels.m11());
    const double deviation = std::max(radius / 2.0, 0.1); // an edge without blur is as sharp as pixels allow
    const double reach = 2.0 * radius;
    const QRectF cast = toPixels.mapRect(rectangle.translated(shadow.offset.width(), -shadow.offset.height()));
    const QRect pixels = cast.adjusted(-reach, -reach, reach, reach).toAlignedRect();

    // The blur of a rectangle is the product of the blurs of its two sides.
    const auto columns = blurredStrip(cast.left(), cast.right(), deviation, pixels.left(), pixels.width());
    const auto rows = blurredStrip(cast.top(), cast.bottom(), deviation, pixels.top(), pixels.height());
    const QRgb color = shadow.color.rgba();
    QImage image(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        const double rowAlpha = qAlpha(color) * rows[std::size_t(y)];
        for (int x = 0; x < image.width(); ++x) {
            const int alpha = qRound(rowAlpha * columns[std::size_t(x)]);
            line[x] = qPremultiply(qRgba(qRed(color), qGreen(color), qBlue(color), alpha));
        }
    }
    painter.drawImage(toPixels.inverted().mapRect(QRectF(pixels)), image);
}

} // namespace windowing
