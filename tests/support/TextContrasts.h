#pragma once

#include <QColor>
#include <QList>
#include <QString>

class QImage;
class QRect;
class QWidget;

/// The contrasts of the texts in a picture of a window, as it is drawn.
///
/// The picture is taken much enlarged, so that the letters have points that no smoothing has made
/// paler. The ground of a text is the most frequent colour around it, and its ink the colour that
/// contrasts most with that.
class TextContrasts final
{
public:
    struct Text
    {
        /// The class and name of the widget, and how its text begins.
        QString place;
        QColor ink;
        QColor ground;
        double contrast = 0;
        /// What a text of this size needs.
        double needed = 0;
    };

    /// The texts in the window that are visible and enabled, or legible although disabled.
    [[nodiscard]] static QList<Text> of(QWidget &window);

    /// One line for each text with too little contrast; empty if all can be read.
    [[nodiscard]] static QString unreadable(QWidget &window);

    /// The most frequent colour in this part of a picture, and the colour that contrasts most with
    /// it.
    [[nodiscard]] static Text measured(const QImage &picture, const QRect &part);
};
