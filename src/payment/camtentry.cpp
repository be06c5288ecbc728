#include "camtentry.h"

#include "paymentsink.h"
#include "paymenttext.h"

#include <algorithm>
#include <cstdlib>

namespace {

const QLatin1String euro("EUR");
const QLatin1String credited("CRDT");
const QLatin1String debited("DBIT");

bool isDirection(const QString &text) { return text == credited || text == debited; }

QString firstGiven(std::initializer_list<QString> texts)
{
    const auto found = std::find_if(texts.begin(), texts.end(), [](const QString &text) { return !text.isEmpty(); });
    return found == texts.end() ? QString() : *found;
}

bool hasForeignAmount(const CamtTransaction &transaction)
{
    return !transaction.amount.text.isEmpty() || !transaction.transactionAmount.text.isEmpty();
}

} // namespace

CamtEntry::CamtEntry(PaymentSink &sink, const DecimalFormat &amountFormat, const CamtEntryHead &head)
    : m_sink(sink), m_amountFormat(amountFormat), m_head(head), m_charges(head.charges)
{
    m_usable = isBooked() && checkHead();
}

/** Pending, informative and future entries come again when they are booked. */
bool CamtEntry::isBooked() const
{
    static const QLatin1String unbooked[] = {QLatin1String("PDNG"), QLatin1String("INFO"), QLatin1String("FUTR")};
    return std::find(std::begin(unbooked), std::end(unbooked), m_head.status) == std::end(unbooked);
}

bool CamtEntry::checkHead()
{
    const QString date = firstGiven({m_head.bookingDate, m_head.valueDate, m_head.timestamp});
    m_entryDate = PaymentText::parseIsoDate(date);

    struct Check {
        bool ok;
        const char *field;
        const QString &found;
    };
    const Check checks[] = {
        {m_head.status.isEmpty() || m_head.status == QLatin1String("BOOK"), "status", m_head.status},
        {isDirection(m_head.direction), "sign", m_head.direction},
        {m_head.amount.currency.isEmpty() || m_head.amount.currency == euro, "currency code", m_head.amount.currency},
        {m_entryDate.isValid(), "entry date", date},
    };
    for (const Check &check : checks) {
        if (!check.ok) {
            m_sink.reject(m_head.lineNumber, check.field, check.found);
            return false;
        }
    }
    qint64 cents = 0;
    if (PaymentText::parseXmlAmount(m_amountFormat, m_head.amount.text, cents))
        m_cents = cents;
    else
        m_sink.reject(m_head.lineNumber, "amount", m_head.amount.text); // the transactions may have their own
    return true;
}

void CamtEntry::add(const CamtTransaction &transaction)
{
    ++m_count;
    m_charges += transaction.charges;
    if (!m_usable || m_indivisible)
        return;
    const CamtAmount amount = amountOf(transaction);
    if (amount.text.isEmpty()) {
        addWithoutAmount(transaction);
        return;
    }
    rejectHeld();
    qint64 cents = 0;
    if (PaymentText::parseXmlAmount(m_amountFormat, amount.text, cents)) {
        report(transaction, cents, m_count);
    } else {
        m_totalKnown = false;
        m_sink.reject(transaction.lineNumber, "amount", amount.text);
    }
}

CamtAmount CamtEntry::amountOf(const CamtTransaction &transaction) const
{
    for (const CamtAmount &amount : {transaction.amount, transaction.transactionAmount, transaction.counterValue}) {
        if (!amount.text.isEmpty() && (amount.currency.isEmpty() || amount.currency == euro))
            return amount;
    }
    return CamtAmount();
}

void CamtEntry::addWithoutAmount(const CamtTransaction &transaction)
{
    if (m_count == 1) {
        m_held = transaction;
        return;
    }
    if (m_held && !hasForeignAmount(*m_held) && !hasForeignAmount(transaction)) {
        m_held.reset();
        m_indivisible = true;
        return;
    }
    rejectHeld();
    rejectWithoutAmount(transaction);
}

void CamtEntry::rejectHeld()
{
    if (m_held)
        rejectWithoutAmount(*m_held);
    m_held.reset();
}

void CamtEntry::rejectWithoutAmount(const CamtTransaction &transaction)
{
    m_totalKnown = false;
    const QString currency = firstGiven({transaction.amount.currency, transaction.transactionAmount.currency});
    if (hasForeignAmount(transaction))
        m_sink.reject(transaction.lineNumber, "currency code", currency);
    else
        m_sink.reject(transaction.lineNumber, "amount", QString());
}

void CamtEntry::finish()
{
    if (!m_usable)
        return;
    if (m_count == 0 || m_indivisible)
        reportWhole();
    else if (m_held && m_cents)
        report(*m_held, *m_cents, 1);
    else
        compareTotal();
}

void CamtEntry::reportWhole()
{
    CamtTransaction whole;
    whole.lineNumber = m_head.lineNumber;
    if (m_cents)
        report(whole, *m_cents, 1);
}

void CamtEntry::report(const CamtTransaction &transaction, qint64 cents, int position)
{
    const QString direction = firstGiven({transaction.direction, m_head.direction});
    const bool credit = direction == credited;
    const bool received = credit != m_head.reversal; // or such a payment taken back
    const qint64 signedCents = credit ? cents : -cents;
    m_total += signedCents;

    PaymentRecord payment;
    payment.lineNumber = transaction.lineNumber;
    payment.timestamp = m_head.timestamp;
    payment.iban = m_head.iban;
    payment.bban = m_head.bban;
    payment.entryDate = m_entryDate;
    payment.archiveId = archiveIdOf(transaction, position);
    payment.correction = received && !credit;
    payment.payerName = received ? firstGiven({transaction.debtor, transaction.ultimateDebtor})
                                 : firstGiven({transaction.creditor, transaction.ultimateCreditor});
    if (received)
        payment.referenceNumber = referenceOf(transaction, credit);
    if (!isDirection(direction)) {
        m_totalKnown = false;
        m_sink.reject(transaction.lineNumber, "sign", direction);
    } else if (!PaymentText::fitsPayment(signedCents)) {
        m_sink.reject(transaction.lineNumber, "amount", QString::number(signedCents));
    } else if (setPaymentDate(transaction, payment)) {
        payment.amount = static_cast<int>(signedCents);
        m_sink.accept(payment);
    }
}

bool CamtEntry::setPaymentDate(const CamtTransaction &transaction, PaymentRecord &payment) const
{
    const QString text = firstGiven({transaction.acceptanceDate, transaction.transactionDate});
    const QDate valueDate = PaymentText::parseIsoDate(m_head.valueDate);
    const QDate otherwise = valueDate.isValid() ? valueDate : payment.entryDate;
    payment.paymentDate = text.isEmpty() ? otherwise : PaymentText::parseIsoDate(text);
    if (!payment.paymentDate.isValid())
        m_sink.reject(transaction.lineNumber, "payment date", text);
    return payment.paymentDate.isValid();
}

QString CamtEntry::referenceOf(const CamtTransaction &transaction, bool credit) const
{
    const QString structured = PaymentText::nationalReference(transaction.reference);
    if (!structured.isEmpty() || !credit || transaction.messages.size() != 1)
        return structured;
    // Some payers write the reference into the message, and nothing else.
    const QString message = PaymentText::nationalReference(transaction.messages.first());
    return PaymentText::isNationalReference(message) ? message : QString();
}

QString CamtEntry::archiveIdOf(const CamtTransaction &transaction, int position) const
{
    const QString own = firstGiven({transaction.archiveId, m_head.archiveId});
    const bool shared = transaction.archiveId.isEmpty() && position > 1 && !own.isEmpty();
    return shared ? QStringLiteral("%1/%2").arg(own, QString::number(position)) : own;
}

void CamtEntry::compareTotal() const
{
    if (!m_totalKnown || !m_cents)
        return;
    const __int128 cents = m_head.direction == credited ? *m_cents : -*m_cents;
    const __int128 difference = cents - m_total; // both are what a bank wrote
    if (difference != 0 && difference != m_charges && -difference != m_charges)
        m_sink.reject(m_head.lineNumber, "amount", m_head.amount.text);
}
