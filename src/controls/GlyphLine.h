#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QStringView>

#include <array>
#include <optional>

/// Sets plain texts, those of ASCII characters, without the shaping that others need: half of the
/// time of a repaint at every change of the milliseconds. Kept by a label for its font.
class GlyphLine final
{
public:
    explicit GlyphLine(const QFont &font);

    /// Whether the text can be set so: it is ASCII, and the font has all its characters.
    [[nodiscard]] bool canSet(QStringView text) const;

    /// The text from the origin of its baseline on. It must be one that can be set.
    [[nodiscard]] QGlyphRun run(QStringView text) const;

    /// The distance from the beginning of the text to its end.
    [[nodiscard]] qreal width(QStringView text) const;

    /// What the characters from this one on cover, seen from the origin of the text's baseline.
    [[nodiscard]] QRectF inkFrom(qsizetype first, QStringView text) const;

    // Of the font.
    [[nodiscard]] qreal ascent() const { return _ascent; }
    [[nodiscard]] qreal height() const { return _height; }

private:
    [[nodiscard]] const QRectF &inkOf(QChar character) const;

    static constexpr int kCharacters = 128;

    QRawFont _font;
    qreal _ascent;
    qreal _height;
    QList<quint32> _glyphs;
    QList<qreal> _advances;
    /// What each character covers, found when it is first needed.
    mutable std::array<std::optional<QRectF>, kCharacters> _ink;
};
