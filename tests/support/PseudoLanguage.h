#pragma once

#include <QTranslator>

class ShownTexts;

/// A language in which each text stands between the brackets ⟦ and ⟧: those of the program, and
/// those of Qt except the names of keys. In force while the object exists.
class PseudoLanguage final : public QTranslator
{
public:
    /// The path of the file with the texts of the program.
    explicit PseudoLanguage(const QString &path);
    ~PseudoLanguage() override;
    Q_DISABLE_COPY_MOVE(PseudoLanguage)

    [[nodiscard]] QString translate(const char *context, const char *text, const char *comment,
                                    int n) const override;

    /// The texts that have bypassed translation, each in a line with its place. A text must be one
    /// translation, with or without values in it, or data, or consist of such lines.
    [[nodiscard]] static QString untranslated(const ShownTexts &texts);
};
