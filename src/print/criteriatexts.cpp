#include "criteriatexts.h"

#include "dateformat.h"
#include "invoicecriteria.h"
#include "paymentcriteria.h"

namespace {

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

QStringList CriteriaTexts::forInvoices(const InvoiceCriteria &criteria)
{
    QStringList lines;
    if (criteria.types >= 0)
        lines.append(criteria.types == deliveryNotesOnly ? tr("Lähetteet") : tr("Laskut"));
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
    if (!criteria.text.isEmpty())
        lines.append(tr("Hakusanalla ") + searchWord(criteria.text));
    return lines;
}

QStringList CriteriaTexts::forPayments(const PaymentCriteria &payments, const InvoiceCriteria &invoices)
{
    QStringList lines;
    addRange(lines, tr("Maksusuoritukset ajalta %1 - %2"), payments.dateFrom, payments.dateTo);
    return lines + forInvoices(invoices);
}
