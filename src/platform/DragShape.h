#pragma once

#include <QObject>
#include <QRegion>

class QPixmap;

/// Gives the picture of a drag its own shape as long as this object exists. Without a compositor
/// windows are not transparent, and Qt fills the square around the picture. Main thread.
class DragShape final : public QObject
{
    Q_OBJECT

public:
    explicit DragShape(const QPixmap &picture);

    /// The points of the picture that are more opaque than transparent, in device-independent
    /// pixels.
    [[nodiscard]] static QRegion shapeOf(const QPixmap &picture);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QRegion _shape;
};
