#include "app/WebPage.h"

#include "BuildInfo.h"

#include <QCoreApplication>

QUrl WebPage::address()
{
    const QString given = BuildInfo::webPage();
    if (!given.isEmpty())
        return QUrl(given);
    // The page has the same path relative to the program in the build and when installed.
    return QUrl::fromLocalFile(QCoreApplication::applicationDirPath() +
                               QStringLiteral("/../share/wuffer/index.html"));
}
