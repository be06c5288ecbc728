#include "easreader.h"

#include "accountnumber.h"
#include "bankfilelines.h"
#include "easfields.h"
#include "integer.h"
#include "paymentsink.h"
#include "paymenttext.h"

#include <algorithm>
#include <utility>

using namespace EASFields;

namespace {

constexpr int maxRecordLength = 500;
constexpr int maxBelowTransaction = 100;     // damaged records that wait for the end of their transaction
constexpr int usableTransactionLength = 106; // up to the amount

/** Code and length of a statement's record behind its first letter. */
constexpr char statementMark[] = "00322";
constexpr char deposit = '1', depositCorrection = '3', rejected = '9';

} // namespace

struct EASReader::RecordType {
    enum Place { onItsOwn, transaction, withTransactionAbove };
    const char *code;
    Place place;
    void (EASReader::*read)(FixedRecord &);
};

EASReader::EASReader(PaymentSink &sink) : m_sink(sink), m_itemisation(sink) {}

const EASReader::RecordType *EASReader::recordType(const QString &code)
{
    static constexpr RecordType types[] = {
        {"T00", RecordType::onItsOwn, &EASReader::readStatement},
        {"T10", RecordType::transaction, &EASReader::readTransaction},
        {"T11", RecordType::withTransactionAbove, &EASReader::readAdditionalInformation},
        {"T30", RecordType::withTransactionAbove, &EASReader::pass}, // message
        {"T40", RecordType::onItsOwn, &EASReader::readBalance},
        {"T50", RecordType::onItsOwn, &EASReader::pass}, // cumulative totals
        {"T51", RecordType::onItsOwn, &EASReader::pass}, // their correction
        {"T60", RecordType::onItsOwn, &EASReader::pass}, // the bank's own
        {"T70", RecordType::onItsOwn, &EASReader::pass}, // announcement
        {"T80", RecordType::onItsOwn, &EASReader::pass}, // notification of what is not booked
        {"T81", RecordType::onItsOwn, &EASReader::pass}, // its additional information
    };
    const auto found = std::find_if(std::begin(types), std::end(types),
                                    [&code](const RecordType &type) { return code == QLatin1String(type.code); });
    return found == std::end(types) ? nullptr : found;
}

void EASReader::read(QIODevice &device)
{
    m_statement.reset();
    m_transaction.reset();
    m_balance.reset();
    BankFileLines lines(device);
    while (lines.next()) {
        if (!lines.isBlank())
            readRecord(lines);
    }
    finishEntry();
}

void EASReader::readRecord(const BankFileLines &lines)
{
    m_line = lines.number();
    FixedRecord record(lines.text());
    const QString code = record.text(recordCode);
    const RecordType *type = recordType(code);
    if (type && type->read == &EASReader::readStatement)
        startStatement();
    if (!type) {
        if (lines.text().midRef(1).startsWith(QLatin1String(statementMark)))
            startStatement();
        rejectDamaged(type, recordCode, code);
        return;
    }
    const QString length = record.text(recordLength);
    if (!Integer::isDigits(length) || length.toInt() > maxRecordLength) {
        rejectDamaged(type, recordLength, length);
        return;
    }
    if (lines.isTooLong() || !record.isBlankFrom(length.toInt() + 1)) {
        rejectDamaged(type, lengthOfRecord, QString::number(record.size()));
        return;
    }
    if (type->place == RecordType::onItsOwn)
        finishEntry();
    (this->*type->read)(record);
}

/** Whether its record can be read or not: what follows is not of the account above. */
void EASReader::startStatement()
{
    finishEntry();
    m_statement = Statement();
    m_balance.reset();
}

void EASReader::readStatement(FixedRecord &record)
{
    Statement statement;
    const AccountNumber domestic = AccountNumber::parse(record.digits(accountNumber));
    const AccountNumber international = AccountNumber::parse(record.trimmed(ibanAndBic));
    statement.bban = domestic.bban;
    statement.iban = international.isEmpty() ? domestic.iban : international.iban;
    statement.timestamp = record.trimmed(creationDate) + record.trimmed(creationTime);
    statement.currency = record.trimmed(currency);
    m_statement = statement;
    record.checkNumber(versionNumber);
    record.checkNumber(statementNumber);
    record.optionalDate(startingDate);
    record.optionalDate(endingDate);
    record.optionalDate(creationDate);
    record.checkTime(creationTime);
    if (record.isGiven(openingSign)) {
        const bool negative = record.code(openingSign, "+-") == QLatin1Char('-');
        const qint64 cents = record.number(openingBalance);
        if (!record.failedField())
            m_balance = negative ? -cents : cents;
    }
    if (const FixedField *field = record.failedField())
        m_sink.reject(m_line, field->name, record.text(*field)); // the account serves all the same
}

void EASReader::readTransaction(FixedRecord &record)
{
    finishTransaction();
    const RecordType *type = recordType(record.text(recordCode));
    if (!m_statement) {
        rejectDamaged(type, recordCode, record.text(recordCode)); // of no account
        return;
    }
    if (record.size() < usableTransactionLength) {
        rejectDamaged(type, lengthOfRecord, QString::number(record.size()));
        return;
    }
    EASEntry entry;
    PaymentRecord &payment = entry.payment;
    payment.lineNumber = m_line;
    payment.timestamp = m_statement->timestamp;
    payment.iban = m_statement->iban;
    payment.bban = m_statement->bban;
    payment.archiveId = record.trimmed(filingCode);
    payment.entryDate = record.date(entryDate);
    payment.paymentDate = record.optionalDate(paymentDate, payment.entryDate);
    payment.payerName = record.name(otherParty);
    const QChar code = record.code(transactionCode, "12349");
    const bool negative = record.code(sign, "+-") == QLatin1Char('-');
    entry.cents = record.number(amount);
    if (negative)
        entry.cents = -entry.cents;
    payment.referenceNumber = record.reference(referenceNumber);
    entry.number = record.text(transactionNumber);
    entry.level = record.code(levelCode, " 0123456789").digitValue();
    entry.itemised = record.text(receiptCode) == QLatin1String("E");
    if (const FixedField *field = record.failedField())
        rejectDamaged(type, *field, record.text(*field));
    else if (addTransaction(entry, code))
        checkRest(record);
}

void EASReader::checkRest(FixedRecord record)
{
    record.optionalDate(valueDate);
    record.checkNumber(definitionCode);
    record.checkText(definitionText);
    if (const FixedField *field = record.failedField())
        m_belowTransaction.append({m_line, field, record.text(*field)});
}

bool EASReader::addTransaction(EASEntry entry, QChar code)
{
    entry.level = std::max(entry.level, 0); // a blank is no digit
    entry.booked = code != QLatin1Char(rejected);
    entry.payment.correction = code == QLatin1Char(depositCorrection);
    entry.received = code == QLatin1Char(deposit) || entry.payment.correction;
    if (!entry.received)
        entry.payment.referenceNumber.clear();
    if (entry.level == 0)
        m_itemisation.end();
    if (m_balance && entry.level == 0 && entry.booked)
        *m_balance += entry.cents;
    if (!m_statement->currency.isEmpty() && m_statement->currency != QLatin1String("EUR"))
        m_sink.reject(m_line, currency.name, m_statement->currency);
    else
        m_transaction = entry;
    return m_transaction.has_value();
}

void EASReader::readAdditionalInformation(FixedRecord &record)
{
    struct Information {
        const char *type;
        void (EASReader::*read)(FixedRecord &);
    };
    static constexpr Information kinds[] = {
        {"01", &EASReader::readItemCount},
        {"09", &EASReader::readPayerName},
        {"11", &EASReader::readCreditTransfer},
    };
    if (!m_transaction)
        return; // of a transaction that was rejected
    const QString type = record.text(informationType);
    const auto found = std::find_if(std::begin(kinds), std::end(kinds),
                                    [&type](const Information &kind) { return type == QLatin1String(kind.type); });
    if (found != std::end(kinds))
        (this->*found->read)(record);
}

void EASReader::readItemCount(FixedRecord &record)
{
    m_transaction->itemCount = record.number(itemCount);
    if (record.failedField())
        m_belowTransaction.append({m_line, &itemCount, record.text(itemCount)});
}

void EASReader::readPayerName(FixedRecord &record) { setPayerName(record.name(payerName)); }

void EASReader::readCreditTransfer(FixedRecord &record)
{
    setPayerName(record.name(fullPayerName));
    // Without "RF" it is the payer's own reference.
    const QString reference = record.trimmed(creditorReference);
    const bool wanted = m_transaction->received && m_transaction->payment.referenceNumber.isEmpty();
    if (wanted && reference.startsWith(QLatin1String("RF"), Qt::CaseInsensitive))
        m_transaction->payment.referenceNumber = PaymentText::nationalReference(reference);
}

void EASReader::setPayerName(const QString &name)
{
    if (m_transaction->received && !name.isEmpty())
        m_transaction->payment.payerName = name;
}

void EASReader::readBalance(FixedRecord &record)
{
    record.date(balanceDate);
    const bool negative = record.code(balanceSign, "+-") == QLatin1Char('-');
    qint64 cents = record.number(balance);
    if (const FixedField *field = record.failedField()) {
        m_sink.reject(m_line, field->name, record.text(*field));
        return;
    }
    if (negative)
        cents = -cents;
    if (m_balance && *m_balance != cents)
        m_sink.reject(m_line, balance.name, record.text(balance)); // a transaction is missing, or there twice
    m_balance = cents;
}

void EASReader::finishTransaction()
{
    if (m_transaction)
        m_itemisation.add(*m_transaction);
    m_transaction.reset();
    for (const Damage &damage : std::exchange(m_belowTransaction, {}))
        m_itemisation.addDamage(damage.line, damage.field->name, damage.found, false);
}

void EASReader::finishEntry()
{
    finishTransaction();
    m_itemisation.end();
}

/** @param type  null when the record's code is not known: it may have been a transaction */
void EASReader::rejectDamaged(const RecordType *type, const FixedField &field, const QString &found)
{
    if (type && type->place == RecordType::withTransactionAbove && m_belowTransaction.size() < maxBelowTransaction) {
        m_belowTransaction.append({m_line, &field, found});
        return;
    }
    finishTransaction();
    const bool lost = !type || type->place == RecordType::transaction;
    if (lost)
        m_balance.reset();
    m_itemisation.addDamage(m_line, field.name, found, lost);
}
