#include "xmlencoding.h"

namespace {

struct Difference {
    ushort character;
    uchar byte;
};

// Where ISO-8859-15 differs from the first 256 characters of Unicode.
constexpr Difference differences[] = {
    {0x20ac, 0xa4}, {0x0160, 0xa6}, {0x0161, 0xa8}, {0x017d, 0xb4},
    {0x017e, 0xb8}, {0x0152, 0xbc}, {0x0153, 0xbd}, {0x0178, 0xbe},
};

constexpr uint singleByteEnd = 0x100;

bool isAllowed(uint c)
{
    if (c < 0x20)
        return c == '\t' || c == '\n' || c == '\r';
    return !QChar::isSurrogate(c) && c != 0xfffe && c != 0xffff;
}

/** The byte of a character; -1 when the character set lacks it. */
int byteOf(uint c)
{
    for (const Difference &row : differences) {
        if (row.character == c)
            return row.byte;
        if (row.byte == c)
            return -1;
    }
    return c < singleByteEnd ? static_cast<int>(c) : -1;
}

} // namespace

QByteArray XmlEncoding::encode(const QString &xml)
{
    QByteArray bytes;
    bytes.reserve(xml.size());
    for (int i = 0; i < xml.size(); ++i) {
        uint c = xml.at(i).unicode();
        if (QChar::isHighSurrogate(c) && i + 1 < xml.size() && xml.at(i + 1).isLowSurrogate()) {
            ++i;
            c = QChar::surrogateToUcs4(c, xml.at(i).unicode());
        }
        if (!isAllowed(c))
            continue;
        const int byte = c < 0x80 ? static_cast<int>(c) : byteOf(c);
        if (byte >= 0)
            bytes += static_cast<char>(byte);
        else
            bytes += "&#" + QByteArray::number(c) + ';';
    }
    return bytes;
}
