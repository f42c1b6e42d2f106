#pragma once

#include <QObject>

#include <memory>

/// Whether the user prefers dark windows, as the desktop tells programs of every toolkit. Main
/// thread.
///
/// Qt 6.4 follows such a preference by itself only where the desktop's theme gives it the colours.
class DarkPreference final : public QObject
{
    Q_OBJECT

public:
    /// Begins to ask the desktop, and does not wait for its answer.
    DarkPreference();
    ~DarkPreference() override;

    /// False until the desktop has said that it is.
    [[nodiscard]] bool isDark() const { return _isDark; }

Q_SIGNALS:
    void changed();

private:
    class Source;

    void setDark(bool dark);

    bool _isDark = false;
    std::unique_ptr<Source> _source;
};
