#include "irpreader.h"

#include "accountnumber.h"
#include "bankfilelines.h"
#include "fixedrecord.h"
#include "paymentsink.h"
#include "paymenttext.h"

#include <algorithm>

namespace {

constexpr int recordLength = 90;
constexpr int usableLength = 87; // up to the amount

constexpr FixedField recordCode{"record code", 1, 1};
constexpr FixedField lengthOfRecord{"length of the record", 1, recordLength};

constexpr FixedField creationDate{"date of the file creation", 2, 6};
constexpr FixedField creationTime{"time of the file creation", 8, 4};
constexpr FixedField bankGroup{"code of the sending bank group", 12, 2};
constexpr FixedField serviceCode{"reference payment code of the invoicer", 14, 9};
constexpr FixedField fileCurrency{"currency code", 23, 1};

constexpr FixedField account{"invoicer's account number", 2, 14};
constexpr FixedField entryDate{"entry date", 16, 6};
constexpr FixedField paymentDate{"payment date", 22, 6};
constexpr FixedField filingCode{"filing code", 28, 16};
constexpr FixedField referenceNumber{"reference number", 44, 20};
constexpr FixedField payerName{"payer's name", 64, 12};
constexpr FixedField currency{"currency code", 76, 1};
constexpr FixedField nameSource{"source of name", 77, 1};
constexpr FixedField amount{"amount", 78, 10};
constexpr FixedField correctionCode{"correction code", 88, 1};
constexpr FixedField transferMethod{"method of transfer", 89, 1};
constexpr FixedField feedbackCode{"feedback code", 90, 1};

constexpr FixedField paymentCount{"number of transactions", 2, 6};
constexpr FixedField paymentTotal{"amount of transactions", 8, 11};
constexpr FixedField correctionCount{"number of corrections", 19, 6};
constexpr FixedField correctionTotal{"amount of corrections", 25, 11};
constexpr FixedField failedCount{"number of failed direct debits", 36, 6};
constexpr FixedField failedTotal{"amount of failed direct debits", 42, 11};

constexpr char directDebit = '5';

} // namespace

void IRPReader::read(QIODevice &device)
{
    BankFileLines lines(device);
    m_batch = Batch();
    while (lines.next()) {
        if (lines.isBlank())
            continue;
        m_line = lines.number();
        readRecord(lines);
    }
    endBatch(tr("tiedoston loppu"));
}

void IRPReader::readRecord(const BankFileLines &lines)
{
    struct Record {
        char code;
        void (IRPReader::*read)(FixedRecord &);
    };
    static constexpr Record records[] = {
        {'0', &IRPReader::readHeader},  {'3', &IRPReader::readPayment}, {'5', &IRPReader::readPayment},
        {'7', &IRPReader::readPayment}, {'9', &IRPReader::readSummary},
    };
    FixedRecord record(lines.text());
    const QString code = record.text(recordCode);
    const auto found = std::find_if(std::begin(records), std::end(records),
                                    [&code](const Record &r) { return code == QLatin1Char(r.code); });
    const bool known = found != std::end(records);
    if (known && !lines.isTooLong() && record.isBlankFrom(recordLength + 1)) {
        (this->*found->read)(record);
        return;
    }
    // Whatever it was, it stood within a batch.
    m_batch.open = true;
    m_batch.damaged = true;
    if (known)
        reject(lengthOfRecord, QString::number(record.size()));
    else
        reject(recordCode, code);
}

void IRPReader::readHeader(FixedRecord &record)
{
    endBatch(record.text(recordCode));
    record.optionalDate(creationDate);
    record.checkTime(creationTime);
    record.checkText(bankGroup);
    record.checkText(serviceCode);
    record.code(fileCurrency, "1 ");
    rejectFailed(record);
    m_batch = Batch();
    m_batch.open = true;
    m_batch.timestamp = record.trimmed(creationDate) + record.trimmed(creationTime);
}

void IRPReader::readPayment(FixedRecord &record)
{
    if (!m_batch.open)
        reject(recordCode, record.text(recordCode)); // its header is lost, but it says all that is needed itself
    m_batch.open = true;
    if (record.size() < usableLength) {
        m_batch.damaged = true;
        reject(lengthOfRecord, QString::number(record.size()));
        return;
    }
    const AccountNumber number = AccountNumber::parse(record.digits(account));
    PaymentRecord payment;
    payment.lineNumber = m_line;
    payment.timestamp = m_batch.timestamp;
    payment.iban = number.iban;
    payment.bban = number.bban;
    payment.entryDate = record.date(entryDate);
    payment.paymentDate = record.optionalDate(paymentDate, payment.entryDate);
    payment.archiveId = record.trimmed(filingCode);
    payment.referenceNumber = record.reference(referenceNumber);
    payment.payerName = record.name(payerName);
    record.code(currency, "1");
    const qint64 cents = record.number(amount);
    payment.correction = record.code(correctionCode, "01 ") == QLatin1Char('1');
    const bool debit = record.text(recordCode) == QLatin1Char(directDebit);
    const bool failed = debit && record.code(feedbackCode, " 0123456789").isDigit() && record.isGiven(feedbackCode);
    if (rejectFailed(record))
        return;
    checkRest(record);

    Tally &counted = payment.correction ? m_batch.corrections : m_batch.payments;
    Tally &tally = failed ? m_batch.failedDebits : counted;
    ++tally.count;
    tally.cents += cents;
    if (failed)
        return; // no money came
    if (!PaymentText::fitsPayment(cents)) {
        reject(amount, record.text(amount));
        return;
    }
    payment.amount = static_cast<int>(payment.correction ? -cents : cents);
    m_sink.accept(payment);
}

void IRPReader::checkRest(FixedRecord record)
{
    record.code(nameSource, "AKJ ");
    record.code(transferMethod, "AKJ ");
    if (const FixedField *field = record.failedField())
        reject(*field, record.text(*field));
}

void IRPReader::readSummary(FixedRecord &record)
{
    struct Total {
        const FixedField &field;
        qint64 read;
        bool optional;
    };
    const Total totals[] = {
        {paymentCount, m_batch.payments.count, false},       {paymentTotal, m_batch.payments.cents, false},
        {correctionCount, m_batch.corrections.count, false}, {correctionTotal, m_batch.corrections.cents, false},
        {failedCount, m_batch.failedDebits.count, true},     {failedTotal, m_batch.failedDebits.cents, true},
    };
    const bool comparable = !m_batch.damaged;
    for (const Total &total : totals) {
        if (total.optional && !record.isGiven(total.field))
            continue;
        const qint64 stated = record.number(total.field);
        if (rejectFailed(record))
            break;
        if (comparable && stated != total.read) {
            reject(total.field, record.text(total.field));
            break; // one lost payment makes both its count and its sum differ
        }
    }
    m_batch = Batch();
}

/** A batch ends with its record 9; without one the file was cut off. */
void IRPReader::endBatch(const QString &found)
{
    if (m_batch.open)
        reject(recordCode, found);
}

bool IRPReader::rejectFailed(const FixedRecord &record)
{
    const FixedField *field = record.failedField();
    if (!field)
        return false;
    m_batch.damaged = true;
    reject(*field, record.text(*field));
    return true;
}

void IRPReader::reject(const FixedField &field, const QString &found) { m_sink.reject(m_line, field.name, found); }
