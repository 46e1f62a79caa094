#include "panel/MenuGlyph.h"

#include "look/StrainColours.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

constexpr double inset = 1;

// The largest font (in pixels, at most `largest`) in which `text` fits `width`.
QFont fitted(const QString& text, double width, int largest, QFont::Weight weight)
{
    QFont font = Look::font(8, weight);
    font.setPixelSize(largest);
    return Look::fitted(font, text, width);
}

void drawText(QPainter& painter, const QRectF& box, const QString& text, int largest, QFont::Weight weight)
{
    painter.setFont(fitted(text, box.width(), largest, weight));
    painter.drawText(box, Qt::AlignCenter, text);
}

enum class Direction { in, out };

constexpr double markWidth = 5;

// The mark of a row: a triangle down (received) or up (sent) for the network,
// R or W for the disk.
void drawMark(QPainter& painter, const QRectF& box, MenuItemKind kind, Direction direction)
{
    if (kind == MenuItemKind::disk) {
        painter.setFont(fitted(QStringLiteral("W"), box.width(), 7, QFont::Medium));
        painter.drawText(box, Qt::AlignCenter, direction == Direction::in ? QStringLiteral("R") : QStringLiteral("W"));
        return;
    }
    const double middle = box.center().y();
    const double half = box.width() / 2;
    const double x = box.left();
    QPainterPath triangle;
    if (direction == Direction::in) {
        triangle.moveTo(x, middle - half * 0.6);
        triangle.lineTo(x + box.width(), middle - half * 0.6);
        triangle.lineTo(x + half, middle + half * 0.7);
    } else {
        triangle.moveTo(x, middle + half * 0.6);
        triangle.lineTo(x + box.width(), middle + half * 0.6);
        triangle.lineTo(x + half, middle - half * 0.7);
    }
    triangle.closeSubpath();
    painter.fillPath(triangle, painter.pen().color());
}

// A rate's row: its mark, then its figure.
void drawRow(QPainter& painter, const QRectF& row, const QString& text, MenuItemKind kind, Direction direction)
{
    drawMark(painter, QRectF(row.left(), row.top(), markWidth, row.height()), kind, direction);
    const QRectF figure(row.left() + markWidth + 1, row.top(), row.width() - markWidth - 1, row.height());
    drawText(painter, figure, text, 10, QFont::DemiBold);
}

void drawTrace(QPainter& painter, const QRectF& box, const MenuReading& reading, const QColor& ink, bool faint)
{
    const auto& trace = reading.trace;
    if (trace.empty())
        return;
    const double top = reading.traceTop > 0 ? reading.traceTop : 1;
    const double step = trace.size() > 1 ? box.width() / static_cast<double>(trace.size() - 1) : 0;
    QPainterPath line;
    QPainterPath fill;
    bool open = false;
    double firstX = box.left();
    double lastX = box.left();
    for (size_t i = 0; i < trace.size(); ++i) {
        if (!std::isfinite(trace[i]))
            continue;
        const double x = box.left() + step * static_cast<double>(i);
        const double y = box.bottom() - box.height() * std::clamp(trace[i] / top, 0.0, 1.0);
        if (!open) {
            line.moveTo(x, y);
            fill.moveTo(x, box.bottom());
            firstX = x;
            open = true;
        } else {
            line.lineTo(x, y);
        }
        fill.lineTo(x, y);
        lastX = x;
    }
    if (!open)
        return;
    fill.lineTo(lastX, box.bottom());
    fill.lineTo(firstX, box.bottom());
    QColor soft = ink;
    soft.setAlphaF(faint ? 0.25F : 0.45F);
    painter.fillPath(fill, soft);
    if (!faint) {
        painter.setPen(QPen(ink, 1.2));
        painter.drawPath(line);
    }
}

} // namespace

QColor MenuGlyph::ink(Strain strain, Appearance panel)
{
    if (strain == Strain::calm)
        return panel == Appearance::dark ? QColor(0xf2, 0xf2, 0xf2) : QColor(0x20, 0x20, 0x22);
    return Look::strainColour(panel, strain);
}

Appearance MenuGlyph::panelAppearance(PanelShade shade, Appearance palette)
{
    switch (shade) {
    case PanelShade::dark: return Appearance::dark;
    case PanelShade::light: return Appearance::light;
    case PanelShade::unknown: break;
    }
    return palette;
}

QString MenuGlyph::shortName(MenuItemKind kind)
{
    switch (kind) {
    case MenuItemKind::cpu: return QStringLiteral("CPU");
    case MenuItemKind::memory: return QStringLiteral("MEM");
    case MenuItemKind::network: return QStringLiteral("NET");
    case MenuItemKind::thermal: return QStringLiteral("HEAT");
    case MenuItemKind::battery: return QStringLiteral("BAT");
    case MenuItemKind::disk: return QStringLiteral("DISK");
    case MenuItemKind::gpu: return QStringLiteral("GPU");
    }
    return {};
}

QImage MenuGlyph::image(const MenuReading& reading, Appearance panel, qreal scale)
{
    const int pixels = static_cast<int>(std::lround(side * scale));
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const QColor ink = MenuGlyph::ink(reading.strain, panel);
    painter.setPen(ink);
    const QRectF square(inset, inset, side - 2 * inset, side - 2 * inset);
    const QRectF upper(square.left(), square.top(), square.width(), square.height() * 0.42);
    const QRectF lower(square.left(), upper.bottom(), square.width(), square.bottom() - upper.bottom());
    const QString text = QString::fromStdString(reading.text);

    if (reading.style == MenuItemStyle::graph) {
        drawTrace(painter, square, reading, ink, false);
        return image;
    }
    if (reading.style == MenuItemStyle::both)
        drawTrace(painter, square, reading, ink, true);
    if (reading.text2) {
        // In above out: down above up, reads above writes, each row marked so
        // that two bare figures are never a riddle.
        const QRectF top(square.left(), square.top(), square.width(), square.height() / 2);
        const QRectF bottom(square.left(), top.bottom(), square.width(), square.height() / 2);
        drawRow(painter, top, text, reading.kind, Direction::in);
        drawRow(painter, bottom, QString::fromStdString(*reading.text2), reading.kind, Direction::out);
        return image;
    }
    drawText(painter, upper, shortName(reading.kind), 7, QFont::Medium);
    drawText(painter, lower, text, 11, QFont::Bold);
    return image;
}

QIcon MenuGlyph::icon(const MenuReading& reading, Appearance panel)
{
    QIcon icon;
    for (const qreal scale : {1.0, 2.0})
        icon.addPixmap(QPixmap::fromImage(image(reading, panel, scale)));
    return icon;
}

} // namespace vexel
