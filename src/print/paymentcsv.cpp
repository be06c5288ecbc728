// The CSV export of the payment journal; the rest of PaymentPrintModel is in paymentprintmodel.cpp.

#include "bankaccount.h"
#include "csvexport.h"
#include "customer.h"
#include "extrafields.h"
#include "paymentprintmodel.h"
#include "registry.h"

namespace {

using Model = PaymentPrintModel;

struct Line {
    const CsvExport &out;
    const Model::Entry &entry;
    // Null when the registry does not know it.
    const Customer *customer;
    const BankAccount *account;
};

const CsvColumn<Line> columns[] = {
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Numero"),
     [](const Line &l) { return QString::number(l.entry.invoice.number); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Päivämäärä"),
     [](const Line &l) { return CsvExport::date(l.entry.invoice.date); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Eräpäivä"),
     [](const Line &l) { return CsvExport::date(l.entry.invoice.dueDate); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Asiakasnumero"),
     [](const Line &l) { return l.customer ? QString::number(l.customer->number) : QString(); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Nimi"),
     [](const Line &l) { return l.customer ? l.customer->name : QString(); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Yhteensä"),
     [](const Line &l) { return l.out.sum(l.entry.invoice.totalAmount); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Suoritus"),
     [](const Line &l) { return l.out.sum(l.entry.payment.amount); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Maksupäivä"),
     [](const Line &l) { return CsvExport::date(l.entry.payment.date); }},
    {QT_TRANSLATE_NOOP("PaymentPrintModel", "Pankkitili"),
     [](const Line &l) { return l.account ? l.account->name : QString(); }},
};

QString extraValue(const QString &word, const Line &line)
{
    return ExtraFields::isCustomerField(word) ? ExtraFields::customerField(word, line.customer)
                                              : ExtraFields::accountField(word, line.account);
}

QStringList acceptedWords(const QStringList &words)
{
    QStringList accepted;
    for (const QString &word : words) {
        if (ExtraFields::isCustomerField(word) || ExtraFields::isAccountField(word))
            accepted.append(word);
    }
    return accepted;
}

} // namespace

bool PaymentPrintModel::exportToCSV(const QString &fileName, const QString &format)
{
    return CsvExport::save(fileName, format, m_lastError, [this](CsvExport &out) {
        const QStringList words =
            acceptedWords(ExtraFields::read(m_registry->appSettings(), QStringLiteral("paymentPrint")));
        writeTitles<Model>(out, columns);
        for (const QString &word : words)
            out.field(word);
        out.endLine();
        for (const Entry &entry : qAsConst(m_entries)) {
            const Line line{out, entry, customer(entry), bankAccount(entry)};
            writeValues(out, columns, line);
            for (const QString &word : words)
                out.field(extraValue(word, line));
            out.endLine();
        }
    });
}
