#include "easitemisation.h"

#include "paymentsink.h"
#include "paymenttext.h"

#include <utility>

namespace {

/** Parts beyond this number are reported one by one, with a reference or without, so that memory stays bounded. */
constexpr int maxHeld = 5000;

} // namespace

void EASItemisation::add(const EASEntry &entry)
{
    if (entry.level == 0 || belongsToOther(entry)) {
        end();
        if (entry.level == 0) {
            m_entry = entry;
            return;
        }
    }
    if (m_levelReported > 0 && entry.level > m_levelReported)
        return;
    m_levelReported = 0;
    if (m_part) {
        const bool divided = entry.level > m_part->level;
        const bool whole = !m_part->payment.referenceNumber.isEmpty();
        if (divided && whole)
            m_levelReported = m_part->level;
        finishPart(!divided || whole);
        if (divided && whole)
            return;
    }
    m_part = entry;
}

bool EASItemisation::belongsToOther(const EASEntry &entry) const
{
    const std::optional<EASEntry> &above = m_part ? m_part : m_entry;
    return above && above->number != entry.number;
}

void EASItemisation::addPart(const EASEntry &part)
{
    m_partsTotal += part.cents;
    const bool undecided = m_entry && !m_partsReported;
    if (undecided && part.payment.referenceNumber.isEmpty() && m_held.size() < maxHeld) {
        m_held.append({part, nullptr, QString()});
        return;
    }
    releaseHeld(true);
    m_partsReported = true;
    report(part);
}

/** @param counts  false when its own parts take its place */
void EASItemisation::finishPart(bool counts)
{
    if (m_part && counts)
        addPart(*m_part);
    m_part.reset();
    for (const Held &damage : std::exchange(m_partDamage, {}))
        place(damage);
}

void EASItemisation::addDamage(qint64 lineNumber, const char *field, const QString &found, bool lostPart)
{
    if (m_held.size() + m_partDamage.size() >= maxHeld)
        decide();
    m_damaged = m_damaged || lostPart;
    Held damage{EASEntry(), field, found};
    damage.part.payment.lineNumber = lineNumber;
    if (m_part)
        m_partDamage.append(damage);
    else
        place(damage);
}

/** Too much to hold: the whole is reported, and what parts there are yet is passed over. */
void EASItemisation::decide()
{
    finishPart(true);
    if (m_entry && !m_partsReported) {
        reportWhole();
        m_entry->booked = false;
    }
    releaseHeld(false);
}

void EASItemisation::place(const Held &damage)
{
    m_held.append(damage);
    if (!m_entry || m_partsReported)
        releaseHeld(true);
}

void EASItemisation::releaseHeld(bool parts)
{
    for (const Held &held : std::exchange(m_held, {})) {
        if (held.field)
            m_sink.reject(held.part.payment.lineNumber, held.field, held.found);
        else if (parts)
            report(held.part);
    }
}

void EASItemisation::end()
{
    finishPart(true);
    if (m_entry && !m_partsReported)
        reportWhole();
    releaseHeld(false);
    if (m_entry && m_partsReported && m_entry->booked && !m_damaged && m_partsTotal != m_entry->cents)
        reject(*m_entry);
    m_entry.reset();
    m_partsTotal = 0;
    m_levelReported = 0;
    m_partsReported = false;
    m_damaged = false;
}

void EASItemisation::reportWhole()
{
    EASEntry whole = *m_entry;
    if (whole.itemised && whole.itemCount > 1)
        whole.payment.referenceNumber.clear(); // many payments: they come in another file
    report(whole);
}

void EASItemisation::report(const EASEntry &entry)
{
    if (!entry.booked || (m_entry && !m_entry->booked))
        return;
    if (!PaymentText::fitsPayment(entry.cents)) {
        reject(entry);
        return;
    }
    PaymentRecord payment = entry.payment;
    payment.amount = static_cast<int>(entry.cents);
    m_sink.accept(payment);
}

void EASItemisation::reject(const EASEntry &entry)
{
    m_sink.reject(entry.payment.lineNumber, "amount of transaction", QString::number(entry.cents));
}
