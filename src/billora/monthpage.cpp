#include "monthpage.h"

#include "texts.h"
#include "valuewriter.h"

#include <QMap>

namespace {

constexpr char style[] = "body{font:15px/1.4 sans-serif;margin:2em auto;max-width:70em;padding:0 1em}"
                         "table{border-collapse:collapse;width:100%;margin:1em 0 2em}"
                         "th,td{padding:.3em .6em;text-align:left;border-bottom:1px solid #ccc}"
                         ".n{text-align:right;white-space:nowrap}tfoot td{font-weight:bold}small{color:#555}";

QString cell(const QString &html, bool isNumber = false)
{
    return QLatin1String(isNumber ? "<td class=\"n\">" : "<td>") + html + QLatin1String("</td>");
}

QString textCell(const QString &text) { return cell(text.toHtmlEscaped()); }
QString moneyCell(long long cents) { return cell(ValueWriter::money(cents).toHtmlEscaped(), true); }
QString dateCell(const QDate &date) { return cell(ValueWriter::date(date)); }

QString link(const QString &file, const QString &shown)
{
    return QStringLiteral("<a href=\"%1\">%2</a>").arg(file.toHtmlEscaped(), shown.toHtmlEscaped());
}

/** @param numbers  the columns from here on are right-aligned */
QString head(const QStringList &titles, int numbers)
{
    QString html = QStringLiteral("<table><thead><tr>");
    for (int i = 0; i < titles.size(); ++i)
        html += QStringLiteral("<th%1>%2</th>")
                    .arg(i < numbers ? QString() : QStringLiteral(" class=\"n\""), titles.at(i).toHtmlEscaped());
    return html + QStringLiteral("</tr></thead><tbody>\n");
}

QString foot(int span, const QString &cells)
{
    return QStringLiteral("</tbody><tfoot><tr><td colspan=\"%1\">%2</td>%3</tr></tfoot></table>\n")
        .arg(QString::number(span), text(TEXT("Yhteensä")), cells);
}

QString heading(const char *title) { return QStringLiteral("<h2>%1</h2>\n").arg(text(title).toHtmlEscaped()); }

QString invoices(const MonthPage::Content &content)
{
    long long net = 0, vat = 0, total = 0, balance = 0;
    QString html =
        heading(TEXT("Laskut")) + head({text(TEXT("Numero")), text(TEXT("Päivä")), text(TEXT("Eräpäivä")),
                                        text(TEXT("Asiakas")), text(TEXT("Verkkolasku")), text(TEXT("Veroton")),
                                        text(TEXT("Vero")), text(TEXT("Summa")), text(TEXT("Avoinna"))},
                                       5);
    for (const InvoiceRecord &record : content.invoices) {
        const Invoice &invoice = record.invoice;
        const QString number = QString::number(invoice.number), paper = content.papers.value(invoice.id);
        const QString eInvoice = content.eInvoices.value(invoice.id);
        html += QLatin1String("<tr>") + cell(paper.isEmpty() ? number : link(paper, number)) + dateCell(invoice.date) +
                dateCell(invoice.dueDate) + textCell(record.customerName) +
                cell(eInvoice.isEmpty()
                         ? QStringLiteral("<small>%1</small>").arg(content.remarks.value(invoice.id).toHtmlEscaped())
                         : link(eInvoice, QStringLiteral("XML"))) +
                moneyCell(record.net) + moneyCell(record.vat) + moneyCell(invoice.totalAmount) +
                moneyCell(invoice.balance) + QLatin1String("</tr>\n");
        net += record.net;
        vat += record.vat;
        total += invoice.totalAmount;
        balance += invoice.balance;
    }
    return html + foot(5, moneyCell(net) + moneyCell(vat) + moneyCell(total) + moneyCell(balance));
}

QString rates(const MonthPage::Content &content)
{
    const Field &percent = *vatRateTable.find(QStringLiteral("vatRate"));
    QMap<int, VatRateRecord> sums;
    VatRateRecord all;
    const auto add = [](VatRateRecord &sum, const VatRateRecord &part) {
        sum.net += part.net;
        sum.vat += part.vat;
        sum.total += part.total;
    };
    for (const InvoiceRecord &record : content.invoices) {
        for (const VatRateRecord &rate : record.vatRates) {
            sums[rate.vatRate].vatRate = rate.vatRate;
            add(sums[rate.vatRate], rate);
            add(all, rate);
        }
    }
    const auto cells = [](const VatRateRecord &sum) {
        return moneyCell(sum.net) + moneyCell(sum.vat) + moneyCell(sum.total);
    };
    QString html = heading(TEXT("Verokannat")) +
                   head({text(TEXT("Vero-%")), text(TEXT("Veroton")), text(TEXT("Vero")), text(TEXT("Summa"))}, 1);
    for (auto rate = sums.cbegin(); rate != sums.cend(); ++rate)
        html += QLatin1String("<tr>") + textCell(ValueWriter::forPeople(percent, percent.get(&rate.value()))) +
                cells(rate.value()) + QLatin1String("</tr>\n");
    return html + foot(1, cells(all));
}

QString payments(const MonthPage::Content &content)
{
    long long total = 0;
    QString html = heading(TEXT("Suoritukset")) +
                   head({text(TEXT("Päivä")), text(TEXT("Lasku")), text(TEXT("Tili")), text(TEXT("Summa"))}, 3);
    for (const PaymentRecord &record : content.payments) {
        html += QLatin1String("<tr>") + dateCell(record.payment.date) +
                textCell(QString::number(record.invoiceNumber)) + textCell(record.accountName) +
                moneyCell(record.payment.amount) + QLatin1String("</tr>\n");
        total += record.payment.amount;
    }
    return html + foot(3, moneyCell(total));
}

} // namespace

QByteArray MonthPage::make(const Content &content)
{
    const QString title =
        QStringLiteral("%1 %2–%3").arg(content.company, ValueWriter::date(content.from), ValueWriter::date(content.to));
    QString html =
        QStringLiteral("<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title><style>%2</style>"
                       "</head><body>\n<h1>%1</h1>\n")
            .arg(title.toHtmlEscaped(), QLatin1String(style));
    html +=
        invoices(content) + rates(content) + payments(content) + heading(TEXT("Tiedostot")) + QLatin1String("<ul>\n");
    for (const QString &file : content.files)
        html += QLatin1String("<li>") + link(file, file) + QLatin1String("</li>\n");
    return (html + QLatin1String("</ul>\n</body></html>\n")).toUtf8();
}
