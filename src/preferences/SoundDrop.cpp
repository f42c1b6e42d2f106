#include "preferences/SoundDrop.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

#include <utility>

SoundDrop::SoundDrop(QWidget &page, std::function<bool(QPoint)> takesAt) :
    QObject(&page), _takesAt(std::move(takesAt))
{
    page.setAcceptDrops(true);
    page.installEventFilter(this);
}

QStringList SoundDrop::localFiles(const QMimeData &data)
{
    QStringList paths;
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            paths << url.toLocalFile();
    }
    return paths;
}

bool SoundDrop::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
        // Accept at every place: the page would otherwise receive no events when the drag moves on
        // to a row that takes files.
        accept(static_cast<QDropEvent &>(*event), true);
        return true;
    case QEvent::DragMove:
        hover(static_cast<QDropEvent &>(*event));
        return true;
    case QEvent::Drop:
        drop(static_cast<QDropEvent &>(*event));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

void SoundDrop::hover(QDropEvent &drag) const
{
    accept(drag, _takesAt(drag.position().toPoint()));
}

void SoundDrop::drop(QDropEvent &drag)
{
    hover(drag);
    if (drag.isAccepted())
        Q_EMIT dropped(drag.position().toPoint(), localFiles(*drag.mimeData()));
}

void SoundDrop::accept(QDropEvent &drag, bool taken)
{
    // Never accept a move, after which the source would delete its file.
    const bool fits = taken && drag.possibleActions().testFlag(Qt::CopyAction) &&
                      !localFiles(*drag.mimeData()).isEmpty();
    if (fits)
        drag.setDropAction(Qt::CopyAction);
    drag.setAccepted(fits);
}
