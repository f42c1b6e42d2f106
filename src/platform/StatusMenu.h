#pragma once

#include <QObject>
#include <QString>

#include <vector>

/// The list that drops down from a status item.
///
/// A panel or popup reads the lines only when it is about to show them, so a closed list costs
/// nothing however often it changes. Main thread.
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

    /// The lines as they are now, from top to bottom.
    [[nodiscard]] virtual std::vector<Line> lines() = 0;

    /// Handles the user's choice of a line. An unknown id does nothing: the line may have been
    /// removed in the meantime.
    virtual void choose(int id) = 0;

Q_SIGNALS:
    /// The texts of some lines may have changed.
    void textsChanged();
    /// Lines may have been added, removed or reordered.
    void linesChanged();
};
