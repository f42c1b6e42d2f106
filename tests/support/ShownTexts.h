#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

class QObject;
class QWidget;

/// The texts that the program shows or hands to assistive programs, and where each was found first.
class ShownTexts final
{
public:
    /// Adds the texts of all widgets and menus that exist now, whether they are visible or not.
    void gather();

    /// Adds a text that is shown in some other way.
    void add(const QString &text, const QString &place);

    /// Where each text was found first.
    [[nodiscard]] const QMap<QString, QString> &places() const { return _places; }

private:
    void gatherFrom(QWidget &widget);
    void gatherProperties(const QObject &object, const QString &place);
    void gatherAccessible(QWidget &widget, const QString &place);
    void gatherParts(QWidget &widget, const QString &place);

    QMap<QString, QString> _places;
};
