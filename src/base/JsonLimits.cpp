#include "base/JsonLimits.h"

namespace
{
bool isBlank(char byte)
{
    return byte == ' ' || byte == '\n' || byte == '\t' || byte == '\r';
}

bool isOpening(char byte)
{
    return byte == '[' || byte == '{';
}

bool isClosing(char byte)
{
    return byte == ']' || byte == '}';
}

/// The closing quote of the text that opens at this index.
qsizetype closingQuote(QByteArrayView json, qsizetype opening)
{
    qsizetype at = opening + 1;
    while (at < json.size() && json[at] != '"')
        at += json[at] == '\\' ? 2 : 1;
    return at;
}

/// Whether a key or a member of a list begins here. Only a text can follow a comma in an object.
bool isEntry(char before, char byte)
{
    const bool opensMember = before == '[' || before == ',';
    return byte == ':' || (opensMember && byte != '"' && !isClosing(byte));
}
} // namespace

bool JsonLimits::areKept(QByteArrayView json)
{
    int depth = 0;
    int entries = 0;
    char before = 0;
    for (qsizetype at = 0; at < json.size(); ++at) {
        const char byte = json[at];
        if (isBlank(byte))
            continue;
        depth += int(isOpening(byte)) - int(isClosing(byte));
        entries += int(isEntry(before, byte));
        if (depth > kDeepest || entries > kMostEntries)
            return false;
        if (byte == '"')
            at = closingQuote(json, at);
        before = byte;
    }
    return true;
}
