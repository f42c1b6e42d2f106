#include "rules/TranslationFile.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <map>
#include <optional>

namespace
{
using Bytes = std::span<const uchar>;

constexpr std::array<uchar, 16> kMagic{0x3C, 0xB8, 0x64, 0x18, 0xCA, 0xEF, 0x9C, 0x95,
                                       0xCD, 0x21, 0x1C, 0xBF, 0x60, 0xA1, 0xBD, 0xDD};

/// The sections that lrelease writes. Others, such as references to further files, are not needed.
enum class Section : uchar { Hashes = 0x42, Messages = 0x69, NumerusRules = 0x88, Language = 0xA7 };

/// The parts of a message. A message is the texts of one translation, and what it translates.
enum class Part : uchar { End = 1, Translation = 3, SourceText = 6, Context = 7, Comment = 8 };

/// Reads from the front of some bytes, and never beyond their end.
class Reader final
{
public:
    explicit Reader(Bytes bytes) : _rest(bytes) {}

    [[nodiscard]] bool atEnd() const { return _rest.empty(); }

    [[nodiscard]] std::optional<Bytes> take(std::size_t count)
    {
        if (count > _rest.size())
            return {};
        const Bytes taken = _rest.first(count);
        _rest = _rest.subspan(count);
        return taken;
    }

    [[nodiscard]] std::optional<uchar> takeByte()
    {
        const std::optional<Bytes> byte = take(1);
        return byte ? std::optional(byte->front()) : std::nullopt;
    }

    [[nodiscard]] std::optional<quint32> takeNumber()
    {
        const std::optional<Bytes> bytes = take(sizeof(quint32));
        return bytes ? std::optional(qFromBigEndian<quint32>(bytes->data())) : std::nullopt;
    }

    /// As many bytes as the number before them says.
    [[nodiscard]] std::optional<Bytes> takeBlock()
    {
        const std::optional<quint32> length = takeNumber();
        return length ? take(*length) : std::nullopt;
    }

private:
    Bytes _rest;
};

using Sections = std::map<uchar, Bytes>;

bool isKnownSection(uchar tag)
{
    switch (Section(tag)) {
    case Section::Hashes:
    case Section::Messages:
    case Section::NumerusRules:
    case Section::Language:
        return true;
    }
    return false;
}

/// The sections of a file; none if they do not fill it exactly.
Sections sectionsOf(Bytes contents)
{
    Reader reader(contents);
    const std::optional<Bytes> magic = reader.take(kMagic.size());
    Sections sections;
    if (!magic || !std::ranges::equal(*magic, kMagic))
        return {};
    while (!reader.atEnd()) {
        const std::optional<uchar> tag = reader.takeByte();
        const std::optional<Bytes> block = reader.takeBlock();
        if (!block || block->empty() || !isKnownSection(*tag) ||
            !sections.emplace(*tag, *block).second)
            return {};
    }
    return sections;
}

/// Whether the reader is at a text in UTF-16. Instead of its length, a missing text has a mark, at
/// which QTranslator stops.
bool takeTranslation(Reader &reader)
{
    constexpr quint32 missing = 0xFFFFFFFF;
    const std::optional<quint32> length = reader.takeNumber();
    if (length == missing)
        return true;
    return length && *length % sizeof(char16_t) == 0 && reader.take(*length);
}

/// Whether a message of which each part lies within these bytes begins here.
bool isMessage(Bytes bytes)
{
    Reader reader(bytes);
    while (const std::optional<uchar> tag = reader.takeByte()) {
        switch (Part(*tag)) {
        case Part::End:
            return true;
        case Part::Translation:
            if (!takeTranslation(reader))
                return false;
            break;
        case Part::SourceText:
        case Part::Context:
        case Part::Comment:
            if (!reader.takeBlock())
                return false;
            break;
        default:
            return false;
        }
    }
    return false;
}

/// Whether each entry, a hash and the position of a message, leads to a message.
bool leadToMessages(Bytes hashes, Bytes messages)
{
    Reader reader(hashes);
    while (!reader.atEnd()) {
        const std::optional<quint32> hash = reader.takeNumber();
        const std::optional<quint32> position = reader.takeNumber();
        if (!hash || !position || *position >= messages.size() ||
            !isMessage(messages.subspan(*position)))
            return false;
    }
    return true;
}
} // namespace

bool TranslationFile::isSound(Bytes contents)
{
    const Sections sections = sectionsOf(contents);
    const auto hashes = sections.find(uchar(Section::Hashes));
    const auto messages = sections.find(uchar(Section::Messages));
    return hashes != sections.end() && messages != sections.end() &&
           leadToMessages(hashes->second, messages->second);
}
