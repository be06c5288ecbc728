#include "bankfilelines.h"

#include <QIODevice>
#include <QTextCodec>

#include <algorithm>

namespace {

constexpr int latin1Mib = 4, utf8Mib = 106; // IANA's numbers of the character sets
constexpr int maxLineBytes = 64 * 1024;     // the longest record of the standards has 500 characters
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";
constexpr char controlZ = '\x1A';

bool isAscii(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

} // namespace

BankFileLines::BankFileLines(QIODevice &device, QTextCodec *codec)
    : m_device(device), m_utf8(QTextCodec::codecForMib(utf8Mib)),
      m_codec(codec && codec != m_utf8 ? codec : QTextCodec::codecForMib(latin1Mib))
{
}

bool BankFileLines::next()
{
    QByteArray bytes = m_device.readLine(maxLineBytes);
    if (bytes.isEmpty())
        return false;
    m_terminated = bytes.endsWith('\n');
    m_tooLong = !m_terminated && bytes.size() >= maxLineBytes - 1 && !m_device.atEnd();
    if (m_tooLong)
        skipRest();
    if (m_number == 0 && bytes.startsWith(byteOrderMark))
        bytes.remove(0, 3);
    while (bytes.endsWith('\n') || bytes.endsWith('\r') || bytes.endsWith(controlZ))
        bytes.chop(1);
    m_text = decode(bytes);
    ++m_number;
    return true;
}

void BankFileLines::skipRest()
{
    QByteArray bytes;
    do
        bytes = m_device.readLine(maxLineBytes);
    while (!bytes.isEmpty() && !bytes.endsWith('\n'));
}

bool BankFileLines::isBlank() const
{
    return std::all_of(m_text.begin(), m_text.end(), [](QChar c) { return c.isSpace(); });
}

QString BankFileLines::decode(const QByteArray &bytes) const
{
    if (isAscii(bytes))
        return QString::fromLatin1(bytes);
    QTextCodec::ConverterState state;
    const QString text = m_utf8->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool valid = state.invalidChars == 0 && state.remainingChars == 0;
    return valid ? text : m_codec->toUnicode(bytes);
}
