#include "base/SettingsLeftovers.h"

#include "base/SettingsPath.h"
#include "base/User.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <chrono>

using namespace std::chrono_literals;

namespace
{
/// No process writes for that long.
constexpr std::chrono::seconds kOld = 1h;

/// Whether a temporary file or a lock can have this suffix. A capital after a small letter tells
/// letters by chance from words such as "backup", and two capitals, or one at the end, tell them
/// from several words such as "myCopy".
bool isSuffix(const QString &suffix)
{
    static const QRegularExpression byChance(
        QStringLiteral("^(?=.*[a-z].*[A-Z])(?=.*[A-Z]([A-Z]|\\z))[A-Za-z]{6}\\z"));
    return suffix == QStringLiteral("lock") || byChance.match(suffix).hasMatch();
}

bool isOld(const QFileInfo &file)
{
    return file.lastModified().secsTo(QDateTime::currentDateTime()) > kOld.count();
}
} // namespace

void SettingsLeftovers::remove(const QString &settings)
{
    const QFileInfo kept(SettingsPath::fileAt(settings));
    const QString prefix = kept.fileName() + QLatin1Char('.');
    QDirIterator files(kept.path(), QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (files.hasNext()) {
        const QFileInfo file(files.next());
        const QString name = file.fileName();
        if (name.startsWith(prefix) && isSuffix(name.mid(prefix.size())) && isOld(file) &&
            User::owns(file))
            QFile::remove(file.filePath());
    }
}
