#pragma once

#include <QElapsedTimer>
#include <QMap>
#include <QObject>
#include <QString>
#include <QTimer>
#include <QVariantMap>

#include <optional>

/// The settings in one JSON file, and the changes to them that are not written yet.
///
/// The file is replaced as a whole. Of what stands in it then, also by another process, only the
/// changed settings are replaced. No operation waits for another process: while one writes the
/// file, a timer tries again, for three seconds; then the file is written all the same. Main
/// thread.
class SettingsStore final : public QObject
{
    Q_OBJECT

public:
    /// The file need not exist. What lies at the path instead of a readable file is set aside, and
    /// what killed processes have left beside it is removed.
    explicit SettingsStore(const QString &path);
    /// Writes what is not written yet. If another process writes the file, waits for half a second
    /// at most.
    ~SettingsStore() override;
    Q_DISABLE_COPY_MOVE(SettingsStore)

    /// The value under the key; an invalid one if there is none.
    [[nodiscard]] QVariant value(const QString &key) const;

    /// Sets the value and writes it soon.
    void setValue(const QString &key, const QVariant &value);

    /// Removes the value and writes that soon.
    void remove(const QString &key);

    /// Writes all changes now if no other process writes the file. Without changes, reads what
    /// other processes have written.
    void synchronize();

Q_SIGNALS:
    /// Changes wait to be written.
    void changed();

private:
    void change(const QString &key, const std::optional<QVariant> &value);
    [[nodiscard]] bool mayWait();
    bool read();
    bool take(const std::optional<QByteArray> &text);
    void write();
    [[nodiscard]] QVariantMap merged() const;

    const QString _path;
    /// The file as it was last read or written, and the settings in it.
    QByteArray _text;
    QVariantMap _stored;
    /// Nothing stands for a removed value.
    QMap<QString, std::optional<QVariant>> _changes;
    bool _isWrittenSoon = false;
    QTimer _tryAgain;
    /// Since the lock was first refused.
    QElapsedTimer _waiting;
};
