#include "support/InLanguage.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>

namespace
{
const QString kFolder = QStringLiteral(":/translations");
const QString kPrefix = QStringLiteral("wuffer_");
const QString kSuffix = QStringLiteral(".qm");
const QString kEnglish = QStringLiteral("en");
} // namespace

static void registerTranslations()
{
    // The resources of a static library are not registered by themselves.
    Q_INIT_RESOURCE(translations);
}

InLanguage::InLanguage(const QString &language)
{
    QLocale::setDefault(QLocale(language));
    if (language == kEnglish)
        return;
    registerTranslations();
    if (!_program.load(kPrefix + language, kFolder))
        qFatal("there is no translation into %s", qPrintable(language));
    QCoreApplication::installTranslator(&_program);
    // Without it the few texts of Qt are English.
    if (_qt.load(QStringLiteral("qtbase_") + language,
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&_qt);
}

InLanguage::~InLanguage()
{
    QLocale::setDefault(QLocale::system());
}

QStringList InLanguage::all()
{
    registerTranslations();
    QStringList languages{kEnglish};
    for (const QString &file : QDir(kFolder).entryList({kPrefix + QLatin1Char('*') + kSuffix}))
        languages << file.sliced(kPrefix.size()).chopped(kSuffix.size());
    return languages;
}
