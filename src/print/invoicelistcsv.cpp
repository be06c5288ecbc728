// The CSV export of the invoice list; the rest of InvoiceListPrintModel is in invoicelistprintmodel.cpp.

#include "csvexport.h"
#include "customer.h"
#include "extrafields.h"
#include "invoicelistprintmodel.h"
#include "registry.h"

namespace {

using Model = InvoiceListPrintModel;

struct Line {
    const CsvExport &out;
    const Model::Entry &entry;
    const Customer *customer; ///< null when the registry does not know it
};

const CsvColumn<Line> columns[] = {
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Numero"),
     [](const Line &l) { return QString::number(l.entry.invoice.number); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Päivämäärä"),
     [](const Line &l) { return CsvExport::date(l.entry.invoice.date); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Eräpäivä"),
     [](const Line &l) { return CsvExport::date(l.entry.invoice.dueDate); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Toimituspäivä"),
     [](const Line &l) { return CsvExport::date(l.entry.invoice.deliveryDate); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Asiakasnumero"),
     [](const Line &l) { return l.customer ? QString::number(l.customer->number) : QString(); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Nimi"),
     [](const Line &l) { return l.customer ? l.customer->name : QString(); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Veroton"),
     [](const Line &l) { return l.out.sum(l.entry.invoice.totalAmount - l.entry.totalVatAmount); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "ALV"),
     [](const Line &l) { return l.out.sum(l.entry.totalVatAmount); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Verollinen"),
     [](const Line &l) { return l.out.sum(l.entry.invoice.totalAmount); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Avoin saldo"),
     [](const Line &l) { return l.out.sum(l.entry.invoice.balance); }},
    {QT_TRANSLATE_NOOP("InvoiceListPrintModel", "Viitenumero"),
     [](const Line &l) { return l.entry.invoice.referenceNumber; }},
};

void writeExtraTitles(CsvExport &out, const QStringList &words, const QList<int> &rates)
{
    for (const QString &word : words) {
        if (ExtraFields::isVatBreakdown(word)) {
            for (int rate : rates) {
                out.field(Model::tr("Veroton (%1 %)").arg(out.percentage(rate)));
                out.field(Model::tr("ALV (%1 %)").arg(out.percentage(rate)));
                out.field(Model::tr("Verollinen (%1 %)").arg(out.percentage(rate)));
            }
        } else if (ExtraFields::isCustomerField(word)) {
            out.field(word);
        }
    }
}

void writeExtraValues(CsvExport &out, const QStringList &words, const QList<int> &rates, const Line &line)
{
    const Vat &vat = line.entry.vat;
    for (const QString &word : words) {
        if (ExtraFields::isVatBreakdown(word)) {
            for (int rate : rates) {
                out.field(out.sum(vat.totalAmountVatExcluded(rate)));
                out.field(out.sum(vat.totalVatAmount(rate)));
                out.field(out.sum(vat.totalAmount(rate)));
            }
        } else if (ExtraFields::isCustomerField(word)) {
            out.field(ExtraFields::customerField(word, line.customer));
        }
    }
}

} // namespace

bool InvoiceListPrintModel::exportToCSV(const QString &fileName, const QString &format)
{
    return CsvExport::save(fileName, format, m_lastError, [this](CsvExport &out) {
        const QStringList words = ExtraFields::read(m_registry->appSettings(), QStringLiteral("invoiceListPrint"));
        const QList<int> rates = m_vat.vatRates();
        writeTitles<Model>(out, columns);
        writeExtraTitles(out, words, rates);
        out.endLine();
        for (const Entry &entry : qAsConst(m_entries)) {
            const Line line{out, entry, customer(entry)};
            writeValues(out, columns, line);
            writeExtraValues(out, words, rates, line);
            out.endLine();
        }
    });
}
