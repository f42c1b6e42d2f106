#include "rules/SoundHistory.h"

bool SoundHistory::contains(const QString &path) const
{
    return _paths.contains(path);
}

void SoundHistory::add(const QString &path)
{
    if (!contains(path))
        _paths.prepend(path);
}

void SoundHistory::remove(const QString &path)
{
    _paths.removeAll(path);
}

QString SoundHistory::displayTitle(const QString &path)
{
    QStringView whole(path);
    while (whole.size() > 1 && whole.endsWith(u'/'))
        whole.chop(1);
    const QStringView name = whole.size() > 1 ? whole.mid(whole.lastIndexOf(u'/') + 1) : whole;
    // A leading dot belongs to the name.
    const qsizetype dot = name.lastIndexOf(u'.');
    return (dot > 0 ? name.first(dot) : name).toString();
}
