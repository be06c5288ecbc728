#include "invoicewriter.h"

#include "invoiceselection.h"
#include "query.h"
#include "recordfields.h"
#include "references.h"
#include "rowwords.h"
#include "task.h"
#include "texts.h"
#include "valuewriter.h"

#include <algorithm>

namespace {

bool isTaken(Task &task, int number, int ownId, bool &taken)
{
    Query *query = task.context().session.query();
    InvoiceSelection selection;
    selection.numbers.append({number, number});
    if (!query->fetchInvoiceList(selection, false))
        return task.context().session.failQuery();
    const bool isWhole = query->readAll([&] {
        Invoice other;
        QString name;
        int customerNumber = 0;
        query->invoiceListRow(&other, &customerNumber, &name, false);
        taken = taken || other.id != ownId;
    });
    return isWhole || task.context().session.failQuery();
}

bool applyNumber(Task &task, const Arguments &given, InvoiceEditor &editor)
{
    int number = 0;
    bool taken = false;
    const QString name = QStringLiteral("number");
    if (!task.reader.number(name, ValueType::integer, given.text(name), number))
        return false;
    if (number < 1)
        return task.reader.failValue(name, given.text(name), text(TEXT("luvun pitää olla vähintään 1")));
    if (number == editor.invoice().number)
        return true;
    if (!isTaken(task, number, editor.invoice().id, taken))
        return false;
    if (taken)
        return task.fail(Problem::exists, text(TEXT("laskun numero on jo käytössä: %1")).arg(number), name,
                         given.text(name));
    editor.setNumber(number);
    return true;
}

/** Date, terms and due date belong together. */
bool applyDates(Task &task, const Arguments &given, InvoiceEditor &editor)
{
    const bool isNew = !editor.isStored();
    const bool hasTerms = given.has("paymentTerms");
    if (hasTerms && !editor.setPaymentTerms(given.text("paymentTerms")))
        return false;
    if (!hasTerms && isNew && !editor.customer().paymentTerms.isEmpty() &&
        !editor.setPaymentTerms(editor.customer().paymentTerms))
        return false;
    QDate date = editor.invoice().date;
    if (given.has("date") && !task.reader.date(QStringLiteral("date"), given.text("date"), date))
        return false;
    if ((isNew || given.has("date") || hasTerms) && !editor.setDate(date))
        return false;
    return !given.has("dueDate") ||
           task.reader.date(QStringLiteral("dueDate"), given.text("dueDate"), editor.invoice().dueDate, true);
}

/** As RowWords reads it again. */
QString quoted(const QString &value)
{
    const QLatin1Char quote('"'), backslash('\\');
    const bool isPlain = !value.isEmpty() && std::none_of(value.begin(), value.end(), [&](QChar c) {
        return c.isSpace() || c == quote || c == QLatin1Char('\'') || c == backslash;
    });
    if (isPlain)
        return value;
    QString text = value;
    text.replace(backslash, QLatin1String("\\\\")).replace(quote, QLatin1String("\\\""));
    return quote + text + quote;
}

/** The last of a row, which goes on to its end: quoted only where blanks or quotes at its ends would be lost. */
QString quotedText(const QString &text)
{
    const auto isLost = [](QChar c) { return c.isSpace() || c == QLatin1Char('"') || c == QLatin1Char('\''); };
    if (!isLost(text.at(0)) && !isLost(text.at(text.size() - 1)))
        return text;
    const QChar quote = text.contains(QLatin1Char('"')) ? QLatin1Char('\'') : QLatin1Char('"');
    return quote + text + quote;
}

} // namespace

bool InvoiceWriter::applyFields(Task &task, const Arguments &given, InvoiceEditor &editor)
{
    if (given.has("customer")) {
        Customer customer;
        if (!References::customer(task, QStringLiteral("customer"), given.text("customer"), customer))
            return false;
        editor.useCustomer(customer);
    }
    Invoice &invoice = editor.invoice();
    if (!applyDates(task, given, editor) || (given.has("number") && !applyNumber(task, given, editor)))
        return false;
    const QDate due = invoice.dueDate;
    if (!editor.isStored() && !editor.complete())
        return false;
    if (given.has("dueDate"))
        invoice.dueDate = due;
    if (given.has("reference") &&
        !task.reader.reference(QStringLiteral("reference"), given.text("reference"), invoice.referenceNumber))
        return false;
    if (given.has("type")) {
        QString word;
        if (!task.reader.word(QStringLiteral("type"), invoiceTypes, given.text("type"), word))
            return false;
        for (int i = 0; invoiceTypes[i].word; ++i) {
            if (word == QLatin1String(invoiceTypes[i].word))
                invoice.type = i;
        }
    }
    return RecordFields::apply(task.reader, invoiceTable, given, &invoice);
}

bool InvoiceWriter::readRows(Task &task, const QVector<Arguments> &given, QVector<InvoiceItem> &rows)
{
    for (const Arguments &row : given) {
        InvoiceItem item;
        if (!RecordFields::applyRow(task, row, true, item))
            return false;
        rows.append(item);
    }
    return true;
}

bool InvoiceWriter::takeRowWords(Task &task, Arguments &given)
{
    const QStringList words = given.texts("row");
    for (const QString &word : words) {
        Arguments row;
        if (!RowWords::parse(task.reader, QStringLiteral("row"), word, row))
            return false;
        given.rows.append(row);
    }
    given.remove("row");
    return true;
}

QStringList InvoiceWriter::rowLines(const InvoiceRecord &record)
{
    QStringList lines;
    for (const RowRecord &row : record.rows) {
        const auto plain = [&row](const char *name) {
            const Field &field = *rowTable.find(QLatin1String(name));
            return ValueWriter::plain(field, field.get(&row));
        };
        const QString product = plain("product");
        QString line = quoted(product.isEmpty() ? QStringLiteral("-") : product) + QLatin1Char(' ') + plain("quantity");
        const char *price = row.item.vatExcluded ? "price" : "priceWithVat";
        for (const char *name :
             {"name", "unit", price, "vatRate", "discount", "vatCategory", "vatReason", "vatReasonCode"}) {
            const QString value = plain(name);
            if (!value.isEmpty() && !(QLatin1String(name) == QLatin1String("discount") && value == QLatin1String("0")))
                line += QLatin1Char(' ') + QLatin1String(name) + QLatin1Char('=') + quoted(value);
        }
        if (!row.item.text.isEmpty())
            line += QLatin1String(" text=") + quotedText(row.item.text);
        lines.append(line);
    }
    return lines;
}
