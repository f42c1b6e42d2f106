#include "base/User.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <pwd.h>
#include <unistd.h>

namespace
{
/// Whether programs may make their folders here: not in the root of the file system.
bool isOwnFolder(const QString &path)
{
    return QDir::isAbsolutePath(path) && !QDir(QDir::cleanPath(path)).isRoot();
}

QString homeInPasswordDatabase()
{
    const passwd *user = ::getpwuid(::geteuid());
    return user != nullptr ? QFile::decodeName(user->pw_dir) : QString();
}

QString homeFolder()
{
    const QString home = qEnvironmentVariable("HOME");
    return isOwnFolder(home) ? home : homeInPasswordDatabase();
}
} // namespace

QString User::configFolder()
{
    QString configured = qEnvironmentVariable("XDG_CONFIG_HOME");
    if (isOwnFolder(configured))
        return configured;
    const QString home = homeFolder();
    return isOwnFolder(home) ? home + QStringLiteral("/.config") : QString();
}

bool User::owns(const QFileInfo &file)
{
    return file.exists() && file.ownerId() == ::geteuid();
}
