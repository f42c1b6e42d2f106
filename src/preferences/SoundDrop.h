#pragma once

#include <QObject>
#include <QPoint>
#include <QStringList>

#include <functional>

class QDropEvent;
class QMimeData;
class QWidget;

/// Lets files be dropped onto a page: those on this computer, wherever on the page the files are
/// taken. It only tells which were dropped where. Belongs to the page.
class SoundDrop final : public QObject
{
    Q_OBJECT

public:
    /// The function answers whether files are taken at this place of the page.
    SoundDrop(QWidget &page, std::function<bool(QPoint)> takesAt);

    bool eventFilter(QObject *watched, QEvent *event) override;

    /// The paths of the files of a drag that are on this computer, in its order.
    [[nodiscard]] static QStringList localFiles(const QMimeData &data);

Q_SIGNALS:
    void dropped(QPoint place, const QStringList &paths);

private:
    void hover(QDropEvent &drag) const;
    void drop(QDropEvent &drag);
    /// Accepts the drag if it fits and is taken there, or else refuses it.
    static void accept(QDropEvent &drag, bool taken);

    std::function<bool(QPoint)> _takesAt;
};
