#pragma once

#include <QLocale>
#include <QStringList>

#include <memory>

/// The translation of all texts into the language of the user: the program's own, and those of Qt
/// in its dialogs and menus.
///
/// Make it after the application object and before any text. The language is chosen once: texts
/// that exist are not translated again. Numbers and dates stay as the user has set them. Without a
/// sound file the texts are English, and for English nothing is loaded. The texts are read from
/// where the files lie in memory.
class Translation final
{
public:
    /// Where the files are: "wuffer_de.qm", and "qtbase_de.qm" for Qt.
    struct Folders
    {
        QString program = QStringLiteral(":/translations");
        /// Empty for the folder of the installed Qt.
        QString qt = {};
    };

    /// Translates into the first of these languages that is English or has a file.
    explicit Translation(const QStringList &wanted, const Folders &folders);
    /// Translates into the language that the user has chosen for the session.
    Translation() : Translation(QLocale::system().uiLanguages(), {}) {}
    ~Translation();
    Q_DISABLE_COPY_MOVE(Translation)

    /// The language that is shown, such as "pt_BR"; empty for English.
    [[nodiscard]] QString language() const { return _language; }

private:
    class File;

    std::unique_ptr<File> _program;
    std::unique_ptr<File> _qt;
    QString _language;
};
