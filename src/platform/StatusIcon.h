#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>

class QPalette;
struct StatusTitle;

/// The picture of a status item, for panels that draw no text beside it: the first time unit of
/// the title on a background of its own (the plate), or else the image of the item.
///
/// The text needs its own background because a program cannot find out how bright the panel is; a
/// panel may be dark although windows are light.
struct StatusIcon final
{
    /// Fills the whole square; if empty, the image is drawn.
    QString text;
    /// The colour of the text; invalid without a text.
    QColor ink;
    /// The background of the text or the image; invalid for none.
    QColor plate;
    QIcon image;

    /// The picture for an item with this image and title. A black text is drawn in the colours of
    /// the palette; a text of another colour on white or dark grey, whichever contrasts more.
    /// Behind an image the plate has the colour of the title, or is missing if that is black.
    [[nodiscard]] static StatusIcon of(const QIcon &image, const StatusTitle &title,
                                       const QPalette &palette);

    /// "4m" for "4m 59s". Empty unless the title begins with up to three digits and one letter,
    /// followed by a space or the end.
    [[nodiscard]] static QString shortText(const QString &title);

    [[nodiscard]] bool isNull() const { return text.isEmpty() && image.isNull(); }

    /// The picture, so many pixels wide and high.
    [[nodiscard]] QImage painted(int size) const;

    [[nodiscard]] friend bool operator==(const StatusIcon &one, const StatusIcon &other)
    {
        return one.text == other.text && one.ink == other.ink && one.plate == other.plate &&
               one.image.cacheKey() == other.image.cacheKey();
    }
};
