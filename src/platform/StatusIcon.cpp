#include "platform/StatusIcon.h"

#include "base/Contrast.h"
#include "platform/StatusItem.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <algorithm>

namespace
{
QColor plateFor(const QColor &ink)
{
    const QColor light(Qt::white);
    const QColor dark(0x20, 0x20, 0x20);
    const auto contrast = [&](const QColor &plate) {
        return Contrast::ratio(Rgb::of(ink), Rgb::of(plate));
    };
    return contrast(light) >= contrast(dark) ? light : dark;
}

/// The outline of the text, stretched to fill the room. Limits to the stretching keep a short text
/// from becoming wide, and the digits of a long one from running together.
QPainterPath fitted(const QString &text, const QRectF &room)
{
    constexpr double maxHeightFactor = 1.9;
    constexpr double maxWidthFactor = 1.1;
    QFont font;
    font.setBold(true);
    font.setPixelSize(100);
    QPainterPath outline;
    outline.addText(0, 0, font, text);
    const QRectF box = outline.boundingRect();
    if (box.isEmpty())
        return {};
    double scaleX = room.width() / box.width();
    double scaleY = room.height() / box.height();
    scaleX = std::min(scaleX, scaleY * maxWidthFactor);
    scaleY = std::min(scaleY, scaleX * maxHeightFactor);
    QTransform transform;
    transform.translate(room.center().x(), room.center().y());
    transform.scale(scaleX, scaleY);
    transform.translate(-box.center().x(), -box.center().y());
    return transform.map(outline);
}
} // namespace

StatusIcon StatusIcon::of(const QIcon &image, const StatusTitle &title, const QPalette &palette)
{
    StatusIcon icon;
    icon.image = image;
    icon.text = shortText(title.text);
    const bool black = !title.color.isValid() || title.color == QColor(Qt::black);
    if (!icon.text.isEmpty()) {
        icon.ink = black ? palette.color(QPalette::WindowText) : title.color;
        icon.plate = black ? palette.color(QPalette::Window) : plateFor(title.color);
    } else if (!black && !image.isNull()) {
        icon.plate = title.color;
    }
    return icon;
}

QString StatusIcon::shortText(const QString &title)
{
    const auto *const end =
        std::ranges::find_if_not(title, [](QChar c) { return c >= u'0' && c <= u'9'; });
    const auto digits = std::distance(title.cbegin(), end);
    if (digits < 1 || digits > 3 || end == title.cend() || !end->isLetter())
        return {};
    const auto *const next = std::next(end);
    return next == title.cend() || next->isSpace() ? title.first(digits + 1) : QString();
}

QImage StatusIcon::painted(int size) const
{
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF square(0, 0, size, size);
    if (plate.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(plate);
        painter.drawRoundedRect(square, size / 6.0, size / 6.0);
    }
    const double margin = plate.isValid() ? std::max(1.0, size / 16.0) : 0.0;
    const QRectF room = square.adjusted(margin, margin, -margin, -margin);
    if (!text.isEmpty())
        painter.fillPath(fitted(text, room.adjusted(0, margin, 0, -margin)), ink);
    else if (!image.isNull())
        image.paint(&painter, room.toRect());
    return picture;
}
