#pragma once

#include <QObject>
#include <QString>

#include <vector>

/// The list that drops down from a status item.
///
/// Its lines are asked for when somebody is about to see them, so that a list that is not open
/// costs nothing however often it changes. Main thread.
class StatusMenu : public QObject
{
    Q_OBJECT

public:
    struct Line
    {
        /// Above 0, and the same for as long as the line stands for the same thing.
        int id;
        QString text;

        [[nodiscard]] friend bool operator==(const Line &, const Line &) = default;
    };

    /// The lines as they are now, from above to below.
    [[nodiscard]] virtual std::vector<Line> lines() = 0;

    /// The user has chosen this line, which may have gone from the list in the meantime. One of
    /// no meaning is no matter.
    virtual void choose(int id) = 0;

Q_SIGNALS:
    /// The texts of some lines may be others than they were.
    void textsChanged();
    /// There may be other lines, or in another order.
    void linesChanged();
};
