#include "fieldgetters.h"
#include "fieldsetters.h"
#include "records.h"
#include "texts.h"

namespace {

using R = PaymentRecord;
constexpr auto part = &R::payment;
constexpr unsigned shown = Field::summary;

Value accountId(const void *record) { return optionalNumber(static_cast<const R *>(record)->payment.bankAccountId); }

Value accountName(const void *record)
{
    const R &payment = *static_cast<const R *>(record);
    return payment.accountName.isNull() ? Value() : Value(payment.accountName);
}

constexpr Field fields[] = {
    {"id", ValueType::id, TEXT("Tunniste"), nullptr, shown | Field::handle, partValue<part, &Payment::id>, nullptr,
     nullptr, nullptr, "id"},
    {"invoice", ValueType::integer, TEXT("Lasku"), TEXT("laskun numero"), shown, value<&R::invoiceNumber>},
    {"invoiceId", ValueType::id, TEXT("Laskun tunniste"), nullptr, shown, partValue<part, &Payment::invoiceId>, nullptr,
     nullptr, nullptr, "invoiceId"},
    {"date", ValueType::date, TEXT("Päivä"), TEXT("suorituksen päivä"), shown | Field::editable,
     partValue<part, &Payment::date>, setMember<Payment, &Payment::date>, nullptr, nullptr, "date"},
    {"amount", ValueType::money, TEXT("Summa"), TEXT("suorituksen summa; koko avoin summa, jos sitä ei anneta"),
     shown | Field::editable | Field::summed, partValue<part, &Payment::amount>, setMember<Payment, &Payment::amount>,
     nullptr, nullptr, "amount"},
    {"account.id", ValueType::id, TEXT("Tilin tunniste"), nullptr, shown, accountId, nullptr, nullptr, nullptr,
     "bankAccountId"},
    {"account.name", ValueType::text, TEXT("Tili"), nullptr, shown, accountName},
};

} // namespace

const RecordTable paymentTable = {"payment", fields, sizeof fields / sizeof fields[0],
                                  "id,date,invoice,amount,account.name"};
