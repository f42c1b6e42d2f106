#include "app/WebPage.h"

#include "BuildInfo.h"

#include <QCoreApplication>

QUrl WebPage::address()
{
    const QString given = BuildInfo::webPage();
    if (!given.isEmpty())
        return QUrl(given);
    // The page lies at the same place from the program in the build as where it is installed.
    return QUrl::fromLocalFile(QCoreApplication::applicationDirPath() +
                               QStringLiteral("/../share/wuffer/index.html"));
}
