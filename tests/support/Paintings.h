#pragma once

#include <QPaintEvent>
#include <QWidget>

/// Records which parts of a widget are painted.
class Paintings final : public QObject
{
public:
    explicit Paintings(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            rects.append(static_cast<QPaintEvent *>(event)->rect());
        return false;
    }

    QList<QRect> rects;
};
