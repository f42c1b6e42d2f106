#include "tools/MeasurementsPanel.h"

#include "tools/MeasurementTables.h"

#include <QLocale>
#include <QRegularExpression>

namespace
{
/// The text with the decimal points of the user's locale.
QString localized(QString text)
{
    static const QRegularExpression point(QStringLiteral("(?<=\\d)\\.(?=\\d)"));
    return text.replace(point, QLocale().decimalPoint());
}

/// A row of cells in HTML: the first names the row, the others are figures.
QString rowOf(const QString &cells, QLatin1String tag)
{
    QString row;
    for (const QString &cell : cells.split(QLatin1Char('|'))) {
        const QLatin1String kind(row.isEmpty() ? "class=\"name\"" : "align=\"right\"");
        row += QStringLiteral("<%1 %2>%3</%1>").arg(tag, kind, localized(cell).toHtmlEscaped());
    }
    return QStringLiteral("<tr>%1</tr>").arg(row);
}
} // namespace

MeasurementsPanel::MeasurementsPanel(QWidget *parent) : QTextEdit(parent)
{
    setAccessibleName(tr("Kitchen measurements"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(16);
    setHtml(html());
}

QSize MeasurementsPanel::sizeHint() const
{
    const QFontMetrics metrics(font());
    return {metrics.averageCharWidth() * 100, metrics.lineSpacing() * 46};
}

void MeasurementsPanel::resizeEvent(QResizeEvent *event)
{
    QTextEdit::resizeEvent(event);
    // The columns of a table as wide as the page may be rounded up.
    constexpr int rounding = 1;
    const bool exceeds = document()->size().width() > viewport()->width() + rounding;
    setHorizontalScrollBarPolicy(exceeds ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

QString MeasurementsPanel::html()
{
    QString text = QStringLiteral("<style>"
                                  "h3 { margin-top: 18px; margin-bottom: 4px; }"
                                  "th, td { padding: 3px 0 3px 12px;"
                                  " border-bottom: 1px solid rgba(128, 128, 128, 40%); }"
                                  "th { white-space: nowrap; }"
                                  ".name { padding-left: 0; text-align: left; }"
                                  "</style>");
    for (const MeasurementTable &table : measurementTables())
        text += htmlOf(table);
    return text;
}

QString MeasurementsPanel::htmlOf(const MeasurementTable &table)
{
    QString rows = rowOf(tr(table.header), QLatin1String("th"));
    for (const char *row : table.rows)
        rows += rowOf(tr(row), QLatin1String("td"));
    return QStringLiteral("<h3>%1</h3><table width=\"100%\" cellspacing=\"0\">%2</table>")
        .arg(tr(table.title).toHtmlEscaped(), rows);
}
