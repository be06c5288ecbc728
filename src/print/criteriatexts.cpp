#include "criteriatexts.h"

#include "bankaccount.h"
#include "customer.h"
#include "dateformat.h"
#include "invoice.h"
#include "invoicecriteria.h"
#include "paymentcriteria.h"
#include "registry.h"

namespace {

constexpr int interestInvoicesOnly = 1 << Invoice::interestInvoice;
constexpr int creditNotesOnly = 1 << Invoice::creditNote;
constexpr int deliveryNotesOnly = 1 << 3;

QString text(const QDate &date) { return DateFormat().format(date); }

QString text(int number) { return number < 0 ? QString() : QString::number(number); }

/** Adds a line unless both ends are unset. */
template <class Bound> void addRange(QStringList &lines, const QString &wording, const Bound &from, const Bound &to)
{
    const QString first = text(from);
    const QString last = text(to);
    if (!first.isEmpty() || !last.isEmpty())
        lines.append(wording.arg(first, last).simplified());
}

/** The word behind a LIKE pattern: without the wildcards at its ends and the escapes. */
QString searchWord(const QString &pattern)
{
    QString word;
    for (int i = 0; i < pattern.size(); ++i) {
        const bool isEscape = pattern.at(i) == QLatin1Char('\\') && i + 1 < pattern.size();
        const bool isOuterWildcard = pattern.at(i) == QLatin1Char('%') && (i == 0 || i == pattern.size() - 1);
        if (isEscape)
            word += pattern.at(++i);
        else if (!isOuterWildcard)
            word += pattern.at(i);
    }
    return word;
}

} // namespace

QString CriteriaTexts::paymentState(const InvoiceCriteria &criteria)
{
    const QString date = text(criteria.balanceDate);
    switch (criteria.paymentState) {
    case InvoiceCriteria::open:
        return date.isEmpty() ? tr("Avoimet laskut") : tr("Avoimet laskut %1").arg(date);
    case InvoiceCriteria::paid:
        return date.isEmpty() ? tr("Maksetut laskut") : tr("Ennen %1 maksetut laskut").arg(date);
    default:
        return QString();
    }
}

QString CriteriaTexts::documentKinds(int types)
{
    const struct {
        int types;
        QString text;
    } kinds[] = {{interestInvoicesOnly, tr("Korkolaskut")},
                 {creditNotesOnly, tr("Hyvityslaskut")},
                 {deliveryNotesOnly, tr("Lähetteet")}};
    for (const auto &kind : kinds) {
        if (types == kind.types)
            return kind.text;
    }
    return tr("Laskut");
}

QStringList CriteriaTexts::forInvoices(const InvoiceCriteria &criteria, const Registry &registry)
{
    QStringList lines;
    if (criteria.types >= 0)
        lines.append(documentKinds(criteria.types));
    const QString state = paymentState(criteria);
    if (!state.isEmpty())
        lines.append(state);
    const QString numbers = tr("Laskut %1 - %2");
    addRange(lines, numbers, criteria.number, criteria.number);
    addRange(lines, numbers, criteria.numberFrom, criteria.numberTo);
    const QString period = tr("ajalta %1 - %2");
    addRange(lines, period, criteria.date, criteria.date);
    addRange(lines, period, criteria.dateFrom, criteria.dateTo);
    const QString range = QLatin1Char(' ') + tr("väliltä %1 - %2");
    addRange(lines, tr("Eräpäivä") + range, criteria.dueDateFrom, criteria.dueDateTo);
    addRange(lines, tr("Toimituspäivä") + range, criteria.deliveryDateFrom, criteria.deliveryDateTo);
    if (criteria.id >= 0)
        lines.append(tr("Laskun tunniste %1").arg(criteria.id));
    if (criteria.customerId >= 0) {
        bool found = false;
        const Customer *customer = registry.customerById(criteria.customerId, found);
        lines.append(tr("Asiakas %1").arg(found ? customer->name : QString::number(criteria.customerId)));
    }
    if (!criteria.referenceNumber.isEmpty())
        lines.append(tr("Viitenumero %1").arg(criteria.referenceNumber));
    if (!criteria.text.isEmpty())
        lines.append(tr("Hakusanalla ") + searchWord(criteria.text));
    return lines;
}

QStringList CriteriaTexts::forPayments(const PaymentCriteria &payments, const InvoiceCriteria &invoices,
                                       const Registry &registry)
{
    QStringList lines;
    addRange(lines, tr("Maksusuoritukset ajalta %1 - %2"), payments.dateFrom, payments.dateTo);
    if (payments.bankAccountId >= 0) {
        bool found = false;
        const BankAccount *account = registry.bankAccountById(payments.bankAccountId, found);
        lines.append(tr("Pankkitili %1").arg(found ? account->name : QString::number(payments.bankAccountId)));
    }
    return lines + forInvoices(invoices, registry);
}
