#include "tools/HelpPages.h"

#include <QCoreApplication>
#include <QFile>

#include <array>

namespace
{
class Texts final
{
    Q_DECLARE_TR_FUNCTIONS(HelpPages)
};

constexpr std::array kNames{"index",          "first-timer", "stopwatch-and-date",
                            "several-timers", "presets",     "finish-actions",
                            "full-screen",    "sounds",      "preferences",
                            "kitchen",        "keyboard"};

/// The folder with the pages in the user's language.
QString folder()
{
    //: The folder with the help pages in your language, such as "de". Leave "en" if there is none.
    return Texts::tr("en");
}

/// A line that tells users of another language that the pages are in English; empty in English and
/// where the pages are translated.
QString noteOnLanguage()
{
    //: Stands above the pages of the help in languages that the help is not translated to.
    constexpr const char *english =
        QT_TRANSLATE_NOOP("HelpPages", "This help is available in English only.");
    const QString note = Texts::tr(english);
    const bool isEnglish = note == QLatin1String(english);
    return isEnglish || folder() != QLatin1String("en")
               ? QString()
               : QStringLiteral("<p><i>%1</i></p>").arg(note.toHtmlEscaped());
}

/// The file of the page in the user's language, else in English.
QString fileOf(const QString &name)
{
    const QString translated = QStringLiteral(":/help/%1/%2.html").arg(folder(), name);
    return QFile::exists(translated) ? translated : QStringLiteral(":/help/%1.html").arg(name);
}

QString contentsOf(const QString &name)
{
    QFile file(fileOf(name));
    const bool opened = file.open(QIODevice::ReadOnly);
    Q_ASSERT(opened);
    return opened ? QString::fromUtf8(file.readAll()) : QString();
}

/// The content of the first element with this tag.
QString firstElement(const QString &html, const QString &tag)
{
    return html.section(QStringLiteral("<%1>").arg(tag), 1, 1)
        .section(QStringLiteral("</%1>").arg(tag), 0, 0);
}

QString rowOf(const MenuKeys &item)
{
    QStringList keys;
    for (const QKeySequence &each : item.keys) {
        const QString text = each.toString(QKeySequence::NativeText);
        keys << QStringLiteral("<kbd>%1</kbd>").arg(text.toHtmlEscaped());
    }
    return QStringLiteral("<tr><td width=\"55%\">%1</td><td>%2</td></tr>")
        .arg(item.item.toHtmlEscaped(), keys.join(QStringLiteral(", ")));
}

QString titleOf(const QString &menu)
{
    //: The title of a table of keys; %1 is the name of a menu.
    return Texts::tr("%1 menu").arg(menu);
}

/// A table for each menu, under its name.
QString tablesOf(const std::vector<MenuKeys> &menuKeys)
{
    const QString end = QStringLiteral("</table>");
    QString html;
    QString menu;
    for (const MenuKeys &item : menuKeys) {
        if (item.menu != menu) {
            menu = item.menu;
            const QString title = titleOf(menu);
            html += (html.isEmpty() ? QString() : end) +
                    QStringLiteral("<h2>%1</h2><table width=\"100%\" cellspacing=\"0\">")
                        .arg(title.toHtmlEscaped());
        }
        html += rowOf(item);
    }
    return html.isEmpty() ? html : html + end;
}
} // namespace

std::vector<HelpPage> helpPages(const std::vector<MenuKeys> &menuKeys)
{
    const QString tables = tablesOf(menuKeys);
    const QString note = noteOnLanguage();
    std::vector<HelpPage> pages;
    for (const char *each : kNames) {
        const QString name = QString::fromLatin1(each);
        QString html = contentsOf(name);
        html.replace(QStringLiteral("<!-- menus -->"), tables);
        const QString title = firstElement(html, QStringLiteral("h1"));
        pages.push_back({name, title, note + html});
    }
    return pages;
}
