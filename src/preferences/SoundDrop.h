#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>

#include <functional>

class QDropEvent;
class QMimeData;
class QWidget;

/// Lets the user drop files of this computer onto a page, at the places where the page takes them.
/// Only reports which files were dropped where. The page owns this object.
class SoundDrop final : public QObject
{
    Q_OBJECT

public:
    /// The function returns whether files may be dropped at this place of the page.
    SoundDrop(QWidget &page, std::function<bool(QPoint)> takesAt);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The paths of those files of a drag that are on this computer, in its order.
    [[nodiscard]] static QStringList localFiles(const QMimeData &data);

Q_SIGNALS:
    void dropped(QPoint place, const QStringList &paths);

private:
    void hover(QDropEvent &drag) const;
    void drop(QDropEvent &drag);
    /// Accepts the drag as a copy if it is taken here and has files of this computer; otherwise
    /// ignores it.
    static void accept(QDropEvent &drag, bool taken);

    std::function<bool(QPoint)> _takesAt;
};
