#pragma once

#include "base/UserDefaults.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

/// A settings file in a folder of its own, read and written without UserDefaults.
class SettingsFile
{
public:
    [[nodiscard]] QString path() const { return _folder.filePath(QStringLiteral("settings.json")); }

    void write(const QByteArray &text) const
    {
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("the settings file could not be written");
    }

    [[nodiscard]] QByteArray text() const { return textOf(path()); }

    /// What the file holds; an empty object when it holds no JSON object.
    [[nodiscard]] QJsonObject object() const { return objectAt(path()); }

    /// The same for the file at this path.
    [[nodiscard]] static QJsonObject objectAt(const QString &path)
    {
        return QJsonDocument::fromJson(textOf(path)).object();
    }

    /// The text of the file of this name in the same folder; null if there is none.
    [[nodiscard]] QByteArray textBeside(const QString &name) const
    {
        return textOf(_folder.filePath(name));
    }

    /// The names of everything in the folder, sorted.
    [[nodiscard]] QStringList folder() const
    {
        return QDir(_folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

private:
    [[nodiscard]] static QByteArray textOf(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir _folder;
};
