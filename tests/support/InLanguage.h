#pragma once

#include <QStringList>
#include <QTranslator>

/// The program speaks a language while the object exists, with the texts of Qt and the numbers and
/// dates of this language.
class InLanguage final
{
public:
    explicit InLanguage(const QString &language);
    ~InLanguage();
    Q_DISABLE_COPY_MOVE(InLanguage)

    /// The languages of the program, such as "pt_BR". The first is English, "en".
    [[nodiscard]] static QStringList all();

private:
    QTranslator _program;
    QTranslator _qt;
};
