#include "support/PseudoLanguage.h"

#include "support/ShownTexts.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace
{
// The brackets of the pseudo-language.
constexpr QChar kOpening(0x27E6);
constexpr QChar kClosing(0x27E7);
constexpr QChar kEllipsis(0x2026);

/// A text that is the same in every language, and why.
struct Untranslated
{
    const char *pattern;
    const char *why;
};

constexpr std::array kUntranslated{
    Untranslated{R"(\P{L}*)", "digits and signs"},
    Untranslated{"Wuffer", "the name of the program, and of a timer without one"},
    Untranslated{"Wuff!", "what a timer shows at its end unless the user has chosen another text"},
    Untranslated{R"(Preset \d)", "the title of a preset that was never saved"},
    Untranslated{R"(Tea|(/.*/)?tone(\.wav)?)", "what the user of this test has typed"},
    Untranslated{R"(v?\d+\.\d+\.\d+)", "the version"},
    Untranslated{R"(((Ctrl|Alt|Shift)\+)+(.|F\d+)|F\d+)", "keys"},
    Untranslated{R"((⟦\d+\p{L} ?·+⟧)+)", "a running time, of which each unit is a translation"},
    Untranslated{R"(Qt 6[\d.]+|cubeb|libsndfile|libmpg123|libxcb)", "libraries"},
    Untranslated{R"(LGPL [\d.]+|ISC|MIT)", "licences"},
    Untranslated{R"(\d+/\d+/\d+ \d+:\d+.*|\d+ [A-Z][a-z]{2} \d+.*)", "dates of the locale"},
};

bool isData(const QString &text)
{
    return std::ranges::any_of(kUntranslated, [&](const Untranslated &each) {
        const QRegularExpression whole(
            QRegularExpression::anchoredPattern(QString::fromUtf8(each.pattern)),
            QRegularExpression::DotMatchesEverythingOption);
        return whole.match(text).hasMatch();
    });
}

/// Whether the text is one translation, with or without values in it, and not glued from several. A
/// text that is elided has lost its end.
bool isTranslated(const QString &text)
{
    int depth = 0;
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (text[place] == kOpening)
            ++depth;
        else if (text[place] == kClosing)
            --depth;
        if (depth == 0)
            return text[place] == kClosing && place == text.size() - 1;
    }
    return text.endsWith(kEllipsis);
}

/// Whether the text, or else each of its lines, is a translation or data.
bool isTranslatedOrData(const QString &text)
{
    const auto passes = [](const QString &each) { return isTranslated(each) || isData(each); };
    return passes(text) || std::ranges::all_of(text.split(QLatin1Char('\n')), passes);
}
} // namespace

PseudoLanguage::PseudoLanguage(const QString &path)
{
    if (!load(path) || !QCoreApplication::installTranslator(this))
        qFatal("cannot load %s", qPrintable(path));
}

PseudoLanguage::~PseudoLanguage()
{
    QCoreApplication::removeTranslator(this);
}

QString PseudoLanguage::translate(const char *context, const char *text, const char *comment,
                                  int n) const
{
    QString own = QTranslator::translate(context, text, comment, n);
    const QByteArray where(context);
    if (!own.isEmpty() || !where.startsWith('Q') || where == "QShortcut" ||
        where == "QGuiApplication")
        return own;
    return QStringLiteral("⟦%1⟧").arg(QString::fromUtf8(text));
}

QString PseudoLanguage::untranslated(const ShownTexts &texts)
{
    QStringList found;
    for (auto each = texts.places().begin(); each != texts.places().end(); ++each) {
        if (!isTranslatedOrData(each.key()))
            found << QStringLiteral("“%1” (%2)").arg(each.key(), each.value());
    }
    return found.join(QLatin1Char('\n'));
}
