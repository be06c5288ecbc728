#include "responsewriter.h"

#include "constants.h"
#include "integer.h"
#include "isodate.h"

#include <QTextCodec>

#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace {

/** A response longer than this is written in pieces, between records: a long list is not held in memory. */
constexpr int pieceSize = 32768;

void appendEscaped(QString &target, const QString &text)
{
    const int start = target.size();
    target.resize(start + 2 * text.size() + 2); // as if all were escaped
    QChar *end = target.data() + start;
    *end++ = QLatin1Char('"');
    for (const QChar c : text) {
        const ushort unit = c.unicode();
        const bool lineEnd = unit == '\n' || unit == '\r';
        if (lineEnd || unit == '"' || unit == '\\')
            *end++ = QLatin1Char('\\');
        *end++ = lineEnd ? QLatin1Char(unit == '\n' ? 'n' : 'r') : c;
    }
    *end++ = QLatin1Char('"');
    target.resize(static_cast<int>(end - target.constData()));
}

} // namespace

ResponseWriter::ResponseWriter(int descriptor)
    : m_descriptor(descriptor), m_amountFormat(Constants::amountFractionDigits, Constants::amountMinFractionDigits),
      m_totalFormat(Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits),
      m_quantityFormat(Constants::quantityFractionDigits, Constants::quantityMinFractionDigits),
      m_percentageFormat(Constants::percentageFractionDigits, Constants::percentageMinFractionDigits)
{
    for (DecimalFormat *format : {&m_amountFormat, &m_totalFormat, &m_quantityFormat, &m_percentageFormat})
        format->setDecimalPoint(QStringLiteral("."));
}

void ResponseWriter::startResponse(const QString &status)
{
    m_wasWritten = false;
    m_buffer += QLatin1String("{ \"status\": ");
    appendJsonString(status);
    m_noRecordsYet = true;
}

void ResponseWriter::printMessage(const QString &message)
{
    m_buffer += QLatin1String(", \"message\": ");
    appendJsonString(message);
}

void ResponseWriter::printNumRemoved(int count)
{
    m_buffer += QLatin1String(", \"removed\": ") + QString::number(count);
}

void ResponseWriter::startRecord(const QString &recordType)
{
    m_buffer += m_noRecordsYet ? QLatin1String(", \"records\": [\n  {") : QLatin1String(",\n  {");
    m_noRecordsYet = false;
    m_firstProperty = true;
    printProperty("recordType", recordType);
}

void ResponseWriter::endRecord()
{
    m_buffer += QLatin1String("\n  }");
    if (m_buffer.size() > pieceSize)
        write();
}

void ResponseWriter::endResponse()
{
    m_buffer += m_noRecordsYet ? QLatin1String("\n}\n\n") : QLatin1String("\n]}\n\n");
    write();
}

void ResponseWriter::startProperty(const char *name)
{
    m_buffer += m_firstProperty ? QLatin1String("\n    \"") : QLatin1String(",\n    \"");
    m_firstProperty = false;
    m_buffer += QLatin1String(name);
    m_buffer += QLatin1String("\": ");
}

void ResponseWriter::printRawProperty(const char *name, const QString &rawValue)
{
    startProperty(name);
    m_buffer += rawValue;
}

void ResponseWriter::printProperty(const char *name, const QString &value)
{
    startProperty(name);
    appendJsonString(value);
}

void ResponseWriter::printProperty(const char *name, int value)
{
    startProperty(name);
    Integer::appendTo(m_buffer, value);
}

void ResponseWriter::printProperty(const char *name, bool value)
{
    startProperty(name);
    m_buffer += value ? QLatin1String("true") : QLatin1String("false");
}

void ResponseWriter::printProperty(const char *name, const QDate &value)
{
    startProperty(name);
    m_buffer += QLatin1Char('"');
    IsoDate::appendTo(m_buffer, value); // nothing for an invalid date
    m_buffer += QLatin1Char('"');
}

void ResponseWriter::printAmount(const char *name, long long value)
{
    printRawProperty(name, m_amountFormat.formatWithoutGrouping(value));
}

void ResponseWriter::printTotal(const char *name, long long value)
{
    printRawProperty(name, m_totalFormat.formatWithoutGrouping(value));
}

void ResponseWriter::printQuantity(const char *name, long long value)
{
    printRawProperty(name, m_quantityFormat.formatWithoutGrouping(value));
}

void ResponseWriter::printPercentage(const char *name, long long value)
{
    printRawProperty(name, m_percentageFormat.formatWithoutGrouping(value));
}

void ResponseWriter::appendJsonString(const QString &text) { appendEscaped(m_buffer, text); }

QString ResponseWriter::formatJsonString(const QString &text)
{
    QString quoted;
    appendEscaped(quoted, text);
    return quoted;
}

void ResponseWriter::abandonResponse()
{
    if (m_wasWritten)
        endResponse();
    else
        m_buffer.resize(0);
}

void ResponseWriter::write()
{
    m_wasWritten = true;
    const QByteArray bytes = QTextCodec::codecForLocale()->fromUnicode(m_buffer);
    m_buffer.resize(0); // keeps the memory for the next piece
    const char *rest = bytes.constData();
    qint64 length = bytes.size();
    while (length > 0) {
        const ssize_t written = ::write(m_descriptor, rest, static_cast<std::size_t>(length));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) { // the reader's pipe is full and set not to wait
            pollfd wait = {m_descriptor, POLLOUT, 0};
            ::poll(&wait, 1, -1);
            continue;
        }
        if (written <= 0)
            return; // nobody is there to be told
        rest += written;
        length -= written;
    }
}
