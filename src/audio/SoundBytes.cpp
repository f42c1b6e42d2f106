#include "audio/SoundBytes.h"

#include "base/RegularFile.h"

#include <QFile>
#include <QFileInfo>
#include <QtNumeric>

#include <cstdio>

namespace
{
/// The size of the ID3 tag at this offset, with its header and footer; 0 when there is none.
qint64 id3TagSize(QIODevice &bytes, qint64 offset)
{
    constexpr qint64 headerSize = 10;
    const QByteArray header = bytesAt(bytes, offset, headerSize);
    if (header.size() < headerSize || !header.startsWith("ID3"))
        return 0;
    qint64 size = 0;
    for (int i = 6; i < headerSize; ++i)
        size = (size << 7) | (header[i] & 0x7f);
    constexpr int footerFlag = 0x10;
    const bool hasFooter = (header[5] & footerFlag) != 0;
    return headerSize + size + (hasFooter ? headerSize : 0);
}
} // namespace

std::unique_ptr<QIODevice> openSoundFile(const QString &path)
{
    return RegularFile(path, RegularFile::Access::Read).takeDevice();
}

std::unique_ptr<QIODevice> openSoundResource(const QString &fileName)
{
    auto file = std::make_unique<QFile>(QStringLiteral(":/sounds/") + fileName);
    if (!QFileInfo(*file).isFile() || !file->open(QIODevice::ReadOnly))
        return nullptr;
    return file;
}

QByteArray bytesAt(QIODevice &bytes, qint64 offset, qint64 count)
{
    return bytes.seek(offset) ? bytes.read(count) : QByteArray();
}

qint64 seekFrom(QIODevice &bytes, qint64 offset, int whence)
{
    const qint64 base = whence == SEEK_CUR ? bytes.pos() : whence == SEEK_END ? bytes.size() : 0;
    qint64 target = 0;
    // A damaged file may state any offset.
    if (qAddOverflow(base, offset, &target) || target < 0)
        return -1;
    return bytes.seek(target) ? bytes.pos() : -1;
}

qint64 offsetBehindId3Tags(QIODevice &bytes)
{
    qint64 offset = 0;
    while (const qint64 size = id3TagSize(bytes, offset))
        offset += size;
    return offset;
}
