#include "rules/Language.h"

#include <QRegularExpression>

#include <algorithm>

namespace
{
/// The name as the files are named: "pt_BR" for "pt-BR" and "pt_BR.UTF-8@latin".
QString normalized(const QString &name)
{
    static const QRegularExpression encoding(QStringLiteral("[.@].*$"));
    return QString(name).remove(encoding).replace(QLatin1Char('-'), QLatin1Char('_'));
}

/// "pt" for "pt_BR".
QString withoutCountry(const QString &name)
{
    return normalized(name).section(QLatin1Char('_'), 0, 0);
}
} // namespace

bool Language::isEnglish(const QString &name)
{
    const QString language = withoutCountry(name);
    return language == QLatin1String("en") || language == QLatin1String("C") ||
           language == QLatin1String("POSIX");
}

QString Language::chosen(const QStringList &wanted, const QStringList &available)
{
    for (const QString &each : wanted) {
        if (isEnglish(each))
            return {};
        const QString name = normalized(each);
        for (const QString &exact : {name, withoutCountry(name)}) {
            if (available.contains(exact))
                return exact;
        }
        const auto related = std::ranges::find(available, withoutCountry(name), withoutCountry);
        if (related != available.end())
            return *related;
    }
    return {};
}
