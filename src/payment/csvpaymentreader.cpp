#include "csvpaymentreader.h"

#include "bankfilelines.h"
#include "paymentsink.h"
#include "paymenttext.h"

#include <algorithm>
#include <utility>

namespace {

/** A quoted field may hold line breaks; more of them than this are a lost quotation mark. */
constexpr int maxRecordLines = 20;

bool isBlank(const QStringList &fields)
{
    return std::all_of(fields.begin(), fields.end(), [](const QString &field) { return field.trimmed().isEmpty(); });
}

constexpr QLatin1Char quote('"');

bool hasOpenQuote(const QString &text) { return text.count(quote) % 2 != 0; }

/** @return whether the open quotation mark stands where a quoted field begins; within a text it is part of it */
bool opensField(const QString &text, const QString &delimiter)
{
    int opening = -1;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) == quote)
            opening = opening < 0 ? i : -1;
    }
    while (opening > 0 && text.at(opening - 1) == QLatin1Char(' '))
        --opening;
    return opening == 0 || (opening > 0 && text.leftRef(opening).endsWith(delimiter));
}

/** @return whether the first quotation mark that is not doubled stands where a quoted field ends */
bool closesField(const QString &text, const QString &delimiter)
{
    int closing = text.indexOf(quote);
    while (closing >= 0 && closing + 1 < text.size() && text.at(closing + 1) == quote)
        closing = text.indexOf(quote, closing + 2);
    if (closing < 0)
        return false;
    do
        ++closing;
    while (closing < text.size() && text.at(closing) == QLatin1Char(' '));
    return closing == text.size() || text.midRef(closing).startsWith(delimiter);
}

QDate parseDate(const QString &text)
{
    const QDate date = PaymentText::parseCSVDate(text);
    return date.isValid() ? date : PaymentText::parseIsoDate(text);
}

} // namespace

CSVPaymentReader::CSVPaymentReader(PaymentSink &sink, const DecimalFormat &amountFormat)
    : m_sink(sink), m_amountFormat(amountFormat), m_csv(&m_stream)
{
}

void CSVPaymentReader::read(QIODevice &device, const QString &delimiter, QTextCodec *codec)
{
    m_delimiter = delimiter;
    m_account = AccountNumber();
    m_columns = m_candidate = CSVColumns();
    m_readable = false;
    m_candidateLine = 1;
    m_pending.clear();
    BankFileLines lines(device, codec);
    while (lines.next()) {
        if (lines.isTooLong()) {
            releasePending();
            m_sink.reject(lines.number(), "length of the record", QString::number(lines.text().size()));
        } else if (!lines.isBlank()) {
            addLine({lines.text(), lines.number(), lines.isTerminated()});
        }
    }
    releasePending();
    if (!m_columns.isHeader())
        rejectTitles(m_candidate, m_candidateLine);
}

void CSVPaymentReader::addLine(const Line &line)
{
    const bool odd = hasOpenQuote(line.text);
    const bool foreign = odd && !closesField(line.text, m_delimiter);
    if (!m_pending.isEmpty() && (m_pending.size() >= maxRecordLines || foreign || isRow(line)))
        releasePending();
    const bool closes = odd && !m_pending.isEmpty();
    if (m_pending.isEmpty() && !(odd && opensField(line.text, m_delimiter))) {
        readLine(line);
        return;
    }
    m_pending.append(line);
    if (!closes)
        return;
    Line joined = m_pending.first();
    for (int i = 1; i < m_pending.size(); ++i)
        joined.text += QLatin1Char(' ') + m_pending.at(i).text;
    joined.terminated = line.terminated;
    if (isRow(joined))
        m_pending = {joined};
    releasePending();
}

/** Takes the lines that were held back one by one: the quotation mark that holds them together is one too many. */
void CSVPaymentReader::releasePending()
{
    const QVector<Line> pending = std::exchange(m_pending, {});
    for (const Line &line : pending)
        readLine(line);
}

/** Reads a record of one line; a quotation mark without its other is text, and not worth keeping. */
void CSVPaymentReader::readLine(Line line)
{
    if (hasOpenQuote(line.text))
        line.text.remove(quote);
    readRecord(line);
}

QStringList CSVPaymentReader::split(const QString &text, const QString &delimiter)
{
    m_text = text;
    m_stream.setString(&m_text, QIODevice::ReadOnly);
    m_csv.setDelimiters(delimiter);
    return m_csv.readLine();
}

bool CSVPaymentReader::isRow(const Line &line)
{
    PaymentRecord payment;
    return m_readable && !readRow(line, split(line.text, m_delimiter), payment).field;
}

void CSVPaymentReader::readRecord(const Line &record)
{
    const QStringList fields = split(record.text, m_delimiter);
    if (isBlank(fields))
        return;
    PaymentRecord payment;
    payment.lineNumber = record.number;
    Damage damage;
    if (m_readable) {
        damage = readRow(record, fields, payment);
        if (!damage.field) {
            m_sink.accept(payment);
            return;
        }
    }
    if (!readAccountLine(fields) && !readTitles(record) && m_readable)
        m_sink.reject(record.number, damage.field, damage.found);
}

bool CSVPaymentReader::readAccountLine(const QStringList &fields)
{
    if (fields.size() < 2 || !CSVColumns::isTitle(fields.at(0), CSVColumns::account))
        return false;
    const AccountNumber number = AccountNumber::parse(fields.at(1));
    if (number.isEmpty())
        return false;
    m_account = number;
    m_columns = m_candidate = CSVColumns(); // its own titles follow
    m_readable = false;
    return true;
}

bool CSVPaymentReader::readTitles(const Line &line)
{
    const QString delimiters[] = {m_delimiter, QStringLiteral(";"), QStringLiteral("\t"), QStringLiteral(",")};
    for (const QString &delimiter : delimiters) {
        const CSVColumns columns(split(line.text, delimiter));
        if (columns.isHeader()) {
            m_columns = columns;
            m_delimiter = delimiter;
            m_readable = columns.missingTitle().isEmpty();
            if (!m_readable)
                rejectTitles(columns, line.number);
            return true;
        }
        const bool partly = columns.has(CSVColumns::entryDate) || columns.has(CSVColumns::amount);
        if (partly && !m_candidate.has(CSVColumns::entryDate) && !m_candidate.has(CSVColumns::amount)) {
            m_candidate = columns;
            m_candidateLine = line.number;
        }
    }
    return false;
}

void CSVPaymentReader::rejectTitles(const CSVColumns &columns, qint64 line)
{
    m_sink.reject(line, "column titles", tr("sarake %1 puuttuu").arg(columns.missingTitle()));
}

CSVPaymentReader::Damage CSVPaymentReader::readRow(const Line &row, const QStringList &fields,
                                                   PaymentRecord &payment) const
{
    const Damage width = checkWidth(row, fields);
    if (width.field)
        return width;
    const QString entryDate = m_columns.value(fields, CSVColumns::entryDate);
    payment.entryDate = parseDate(entryDate);
    if (!payment.entryDate.isValid())
        return {"entry date", entryDate}; // also of a payment that is not booked yet
    const QString paymentDate = m_columns.value(fields, CSVColumns::paymentDate);
    payment.paymentDate = paymentDate.isEmpty() ? payment.entryDate : parseDate(paymentDate);
    if (!payment.paymentDate.isValid())
        return {"payment date", paymentDate};
    const QString amount = m_columns.value(fields, CSVColumns::amount);
    qint64 cents = 0;
    if (!PaymentText::parseAmount(m_amountFormat, amount, cents) || !PaymentText::fitsPayment(cents))
        return {"amount", amount};
    payment.amount = static_cast<int>(cents);
    const QString currency = m_columns.value(fields, CSVColumns::currency);
    if (!currency.isEmpty() && currency != QLatin1String("EUR") && currency != QString(QChar(0x20AC)))
        return {"currency code", currency};
    payment.referenceNumber = referenceNumber(fields);
    payment.payerName = payerName(fields);
    payment.archiveId = m_columns.value(fields, CSVColumns::archiveId);
    setAccount(fields, payment);
    return {};
}

/** Finds rows with columns too many, where text has shifted them, and rows that were cut off before their end. */
CSVPaymentReader::Damage CSVPaymentReader::checkWidth(const Line &row, const QStringList &fields) const
{
    const Damage damage{"number of columns", QString::number(fields.size())};
    if (!isBlank(fields.mid(m_columns.width())))
        return damage;
    const int referenceAt = m_columns.index(CSVColumns::reference);
    const bool endsHere = fields.size() == referenceAt + 1 && m_columns.width() > fields.size();
    const bool cutOff = !row.terminated && endsHere && !row.text.endsWith(m_delimiter);
    if (m_delimiter == QLatin1String("\t")) {
        // Blanks at the end of a line get lost, and tabs are blanks: a short row is none the worse for it.
        const QString reference = referenceNumber(fields);
        const bool doubtful = cutOff && !reference.isEmpty() && !PaymentText::isNationalReference(reference);
        return doubtful ? Damage{"reference number", reference} : Damage();
    }
    return cutOff || fields.size() < referenceAt ? damage : Damage();
}

void CSVPaymentReader::setAccount(const QStringList &fields, PaymentRecord &payment) const
{
    AccountNumber number = m_account;
    if (number.isEmpty() && m_columns.index(CSVColumns::account) == 0)
        number = AccountNumber::parse(m_columns.value(fields, CSVColumns::account));
    if (number.isEmpty()) {
        const CSVColumns::Column own = payment.amount < 0 ? CSVColumns::payer : CSVColumns::payeeAccount;
        number = AccountNumber::parse(m_columns.value(fields, own));
    }
    payment.iban = number.iban;
    payment.bban = number.bban;
}

QString CSVPaymentReader::payerName(const QStringList &fields) const
{
    for (const CSVColumns::Column column : {CSVColumns::name, CSVColumns::title, CSVColumns::payer}) {
        const QString name = m_columns.value(fields, column);
        if (!name.isEmpty() && AccountNumber::parse(name).isEmpty())
            return name;
    }
    return QString();
}

QString CSVPaymentReader::referenceNumber(const QStringList &fields) const
{
    const QLatin1String mark("REF=");
    QString text = m_columns.value(fields, CSVColumns::reference).toUpper();
    if (text.startsWith(mark))
        text = text.mid(mark.size()).trimmed();
    return PaymentText::parseCSVReferenceNumber(text);
}
