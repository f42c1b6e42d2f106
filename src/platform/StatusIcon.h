#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>

class QPalette;
struct StatusTitle;

/// The picture of a status item, for panels that draw no text beside it: the first time unit of
/// the title on a plate of its own, or the image where there is nothing short enough to be read.
///
/// Nobody tells a program how bright the panel is, and a panel may be dark among light windows.
/// So the text brings its background along.
struct StatusIcon final
{
    /// What is written over the whole square; empty for the image.
    QString text;
    /// Of the text; invalid where there is none.
    QColor ink;
    /// Behind the text or the image; invalid for none.
    QColor plate;
    QIcon image;

    /// The picture for an item with this image and title. Black is drawn as the text of the
    /// palette, on its background; every other colour as it is, on the background that it stands
    /// out from.
    [[nodiscard]] static StatusIcon of(const QIcon &image, const StatusTitle &title,
                                       const QPalette &palette);

    /// "4m" of "4m 59s"; empty when the title does not begin with a number and its unit, of at
    /// most four characters.
    [[nodiscard]] static QString shortText(const QString &title);

    [[nodiscard]] bool isNull() const { return text.isEmpty() && image.isNull(); }

    /// The picture in so many pixels each way.
    [[nodiscard]] QImage painted(int size) const;

    [[nodiscard]] friend bool operator==(const StatusIcon &one, const StatusIcon &other)
    {
        return one.text == other.text && one.ink == other.ink && one.plate == other.plate &&
               one.image.cacheKey() == other.image.cacheKey();
    }
};
