// The CSV export of invoices; the rest of InvoicePrintModel is in invoiceprintmodel.cpp.

#include "csvexport.h"
#include "customer.h"
#include "invoiceprintmodel.h"

namespace {

struct InvoiceLine {
    const CsvExport &out;
    const InvoicePrintModel &model;
    const Invoice &invoice;
    const Customer *customer; ///< null when the registry does not know it
};

struct ItemLine {
    const CsvExport &out;
    const Invoice &invoice;
    const InvoiceItem &item;
};

QString typeWord(int typeCode)
{
    static const char *const words[] = {
        QT_TRANSLATE_NOOP("InvoicePrintModel", "lasku"),
        QT_TRANSLATE_NOOP("InvoicePrintModel", "korkolasku"),
        QT_TRANSLATE_NOOP("InvoicePrintModel", "hyvityslasku"),
        QT_TRANSLATE_NOOP("InvoicePrintModel", "maksumuistutus"),
        QT_TRANSLATE_NOOP("InvoicePrintModel", "kuitti"),
        QT_TRANSLATE_NOOP("InvoicePrintModel", "lähete"),
    };
    const int count = sizeof words / sizeof *words;
    return typeCode >= 0 && typeCode < count ? InvoicePrintModel::tr(words[typeCode]) : QString();
}

template <QString Invoice::*member> QString invoiceText(const InvoiceLine &l) { return l.invoice.*member; }

template <QString Customer::*member> QString customerText(const InvoiceLine &l)
{
    return l.customer ? l.customer->*member : QString();
}

template <QString InvoiceItem::*member> QString itemText(const ItemLine &l) { return l.item.*member; }

const CsvColumn<InvoiceLine> invoiceColumns[] = {
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Numero"),
     [](const InvoiceLine &l) { return QString::number(l.invoice.number); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Asiakasnumero"),
     [](const InvoiceLine &l) { return l.customer ? QString::number(l.customer->number) : QString(); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Nimi"), customerText<&Customer::name>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Lähiosoite"), customerText<&Customer::streetName>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Postinumero"), customerText<&Customer::postCode>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Postitoimipaikka"), customerText<&Customer::townName>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Tyyppi"),
     [](const InvoiceLine &l) { return typeWord(l.model.typeCode(l.invoice)); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Päivämäärä"),
     [](const InvoiceLine &l) { return CsvExport::date(l.invoice.date); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Eräpäivä"),
     [](const InvoiceLine &l) { return CsvExport::date(l.invoice.dueDate); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Maksuehdot"), invoiceText<&Invoice::paymentTerms>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Toimitus"), invoiceText<&Invoice::delivery>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Viitteenne"), invoiceText<&Invoice::buyerRef>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Viitteemme"), invoiceText<&Invoice::sellerRef>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Viivästyskorko"),
     [](const InvoiceLine &l) { return l.out.percentage(l.invoice.interestOnArrears); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Viitenumero"), invoiceText<&Invoice::referenceNumber>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Veroton"),
     [](const InvoiceLine &l) { return l.out.sum(l.model.vat(l.invoice).totalAmountVatExcluded()); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "ALV"),
     [](const InvoiceLine &l) { return l.out.sum(l.model.vat(l.invoice).totalVatAmount()); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Verollinen"),
     [](const InvoiceLine &l) { return l.out.sum(l.model.vat(l.invoice).totalAmount()); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Avoin saldo"),
     [](const InvoiceLine &l) { return l.out.sum(l.invoice.balance); }},
};

const CsvColumn<ItemLine> itemColumns[] = {
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Numero"),
     [](const ItemLine &l) { return QString::number(l.invoice.number); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Tuotenumero"), itemText<&InvoiceItem::productNumber>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Nimi"), itemText<&InvoiceItem::productName>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Selite"), itemText<&InvoiceItem::text>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Määrä"),
     [](const ItemLine &l) { return l.out.quantity(l.item.quantity); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Yksikkö"), itemText<&InvoiceItem::unitCode>},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "à-hinta"),
     [](const ItemLine &l) { return l.out.price(l.item.amountVatExcluded()); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Veroton"),
     [](const ItemLine &l) { return l.out.sum(l.item.totalAmountVatExcluded()); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "ALV-%"),
     [](const ItemLine &l) { return l.out.percentage(l.item.vatRate); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "ALV"),
     [](const ItemLine &l) { return l.out.sum(l.item.totalAmountVatIncluded() - l.item.totalAmountVatExcluded()); }},
    {QT_TRANSLATE_NOOP("InvoicePrintModel", "Verollinen"),
     [](const ItemLine &l) { return l.out.sum(l.item.totalAmountVatIncluded()); }},
};

} // namespace

bool InvoicePrintModel::exportToCSV(const QString &fileName, const QString &format)
{
    return CsvExport::save(fileName, format, m_lastError, [this](CsvExport &out) {
        writeTitles<InvoicePrintModel>(out, invoiceColumns);
        out.endLine();
        for (const Invoice &invoice : qAsConst(m_invoices)) {
            writeValues(out, invoiceColumns, InvoiceLine{out, *this, invoice, customer(invoice)});
            out.endLine();
        }
        writeTitles<InvoicePrintModel>(out, itemColumns);
        out.endLine();
        for (const Invoice &invoice : qAsConst(m_invoices)) {
            for (const InvoiceItem &item : items(invoice)) {
                writeValues(out, itemColumns, ItemLine{out, invoice, item});
                out.endLine();
            }
        }
    });
}
