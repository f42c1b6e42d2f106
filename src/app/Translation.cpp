#include "app/Translation.h"

#include "rules/Language.h"
#include "rules/TranslationFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QTranslator>

/// One file of translations, in use while this object lives.
class Translation::File final
{
public:
    explicit File(const QString &path) : _file(path) {}

    /// Puts the file to use. False if it is missing or damaged.
    [[nodiscard]] bool install()
    {
        const std::span<const uchar> contents = map();
        return TranslationFile::isSound(contents) &&
               _translator.load(contents.data(), static_cast<int>(contents.size())) &&
               QCoreApplication::installTranslator(&_translator);
    }

private:
    /// The contents, for as long as this object lives; empty if they cannot be read.
    [[nodiscard]] std::span<const uchar> map()
    {
        // Opening a pipe would block.
        if (!QFileInfo(_file).isFile() || !_file.open(QIODevice::ReadOnly))
            return {};
        const auto size = static_cast<std::size_t>(_file.size());
        const uchar *contents = _file.map(0, _file.size());
        _file.close();
        return contents ? std::span(contents, size) : std::span<const uchar>();
    }

    /// Declared before the translator, which reads from it.
    QFile _file;
    QTranslator _translator;
};

namespace
{
const QString kPrefix = QStringLiteral("wuffer_");
const QString kSuffix = QStringLiteral(".qm");

QStringList languagesIn(const QString &folder)
{
    QStringList names = QDir(folder).entryList({kPrefix + QLatin1Char('*') + kSuffix});
    for (QString &name : names)
        name = name.sliced(kPrefix.size()).chopped(kSuffix.size());
    return names;
}

QString pathIn(const QString &folder, const QString &file)
{
    return folder + QLatin1Char('/') + file + kSuffix;
}
} // namespace

static void registerTranslations()
{
    // The resources of a static library are not registered by themselves.
    Q_INIT_RESOURCE(translations);
}

Translation::Translation(const QStringList &wanted, const Folders &folders)
{
    if (wanted.isEmpty() || Language::isEnglish(wanted.constFirst()))
        return;
    registerTranslations();
    const QString language = Language::chosen(wanted, languagesIn(folders.program));
    if (language.isEmpty())
        return;
    auto program = std::make_unique<File>(pathIn(folders.program, kPrefix + language));
    if (!program->install())
        return;
    _program = std::move(program);
    _language = language;
    const QString qtFolder =
        folders.qt.isEmpty() ? QLibraryInfo::path(QLibraryInfo::TranslationsPath) : folders.qt;
    auto qt = std::make_unique<File>(pathIn(qtFolder, QStringLiteral("qtbase_") + language));
    if (qt->install())
        _qt = std::move(qt);
}

Translation::~Translation() = default;
