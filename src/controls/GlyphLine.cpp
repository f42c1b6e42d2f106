#include "controls/GlyphLine.h"

#include <QFontMetricsF>

#include <algorithm>

GlyphLine::GlyphLine(const QFont &font) :
    _font(QRawFont::fromFont(font)), _ascent(QFontMetricsF(font).ascent()),
    _height(QFontMetricsF(font).height())
{
    QString characters;
    for (char16_t character = 0; character < kCharacters; ++character)
        characters += QChar(character < u' ' ? u' ' : character);
    _glyphs = _font.glyphIndexesForString(characters);
    for (const QPointF &advance : _font.advancesForGlyphIndexes(_glyphs))
        _advances.append(advance.x());
}

bool GlyphLine::canSet(QStringView text) const
{
    return _glyphs.size() == kCharacters && std::ranges::all_of(text, [this](QChar character) {
               return character >= u' ' && character < QChar(kCharacters) &&
                      _glyphs[character.unicode()] != 0;
           });
}

QGlyphRun GlyphLine::run(QStringView text) const
{
    QList<quint32> glyphs;
    QList<QPointF> positions;
    glyphs.reserve(text.size());
    positions.reserve(text.size());
    qreal x = 0;
    for (const QChar character : text) {
        glyphs.append(_glyphs[character.unicode()]);
        positions.append({x, 0});
        x += _advances[character.unicode()];
    }
    QGlyphRun run;
    run.setRawFont(_font);
    run.setGlyphIndexes(glyphs);
    run.setPositions(positions);
    return run;
}

qreal GlyphLine::width(QStringView text) const
{
    qreal width = 0;
    for (const QChar character : text)
        width += _advances[character.unicode()];
    return width;
}

QRectF GlyphLine::inkFrom(qsizetype first, QStringView text) const
{
    QRectF ink;
    qreal x = width(text.first(first));
    for (const QChar character : text.sliced(first)) {
        ink |= inkOf(character).translated(x, 0);
        x += _advances[character.unicode()];
    }
    return ink;
}

const QRectF &GlyphLine::inkOf(QChar character) const
{
    std::optional<QRectF> &ink = _ink[character.unicode()];
    if (!ink)
        ink = _font.boundingRect(_glyphs[character.unicode()]);
    return *ink;
}
