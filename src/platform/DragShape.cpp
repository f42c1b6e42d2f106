#include "platform/DragShape.h"

#include <QEvent>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QWindow>

namespace
{
/// Half of the opacity. Points with less of it would be a fringe around the picture.
constexpr int kHalf = 127;
} // namespace

DragShape::DragShape(const QPixmap &picture) : _shape(shapeOf(picture))
{
    qGuiApp->installEventFilter(this);
}

QRegion DragShape::shapeOf(const QPixmap &picture)
{
    const QSize size = picture.deviceIndependentSize().toSize();
    const QImage image =
        picture.toImage().scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QRegion shape;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > kHalf)
                shape += QRect(x, y, 1, 1);
        }
    }
    return shape;
}

bool DragShape::eventFilter(QObject *watched, QEvent *event)
{
    // Qt makes this window when the drag begins, and gives no other access to it.
    if (event->type() == QEvent::Show && watched->inherits("QShapedPixmapWindow"))
        static_cast<QWindow *>(watched)->setMask(_shape);
    return QObject::eventFilter(watched, event);
}
