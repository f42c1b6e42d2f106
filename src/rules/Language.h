#pragma once

#include <QString>
#include <QStringList>

/// Choosing the language of the program's texts.
namespace Language
{
/// Whether this names English, in which the texts of the sources are written. "C", the language of
/// a user who has chosen none, is English, too.
[[nodiscard]] bool isEnglish(const QString &name);

/// The language to show: the first one that the user wants and that is English or available.
/// Empty for English, and if there is none. Names are like "de", "de_CH" or "pt-BR"; a country's
/// language stands in for that of another country. The result is one of the available names.
[[nodiscard]] QString chosen(const QStringList &wanted, const QStringList &available);
} // namespace Language
