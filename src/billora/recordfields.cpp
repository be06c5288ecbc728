#include "recordfields.h"

#include "constants.h"
#include "product.h"
#include "records.h"
#include "references.h"
#include "task.h"
#include "texts.h"

bool RecordFields::apply(const ValueReader &reader, const RecordTable &table, const Arguments &given, void *record)
{
    const QString price = QStringLiteral("price");
    const QString priceWithVat = QStringLiteral("priceWithVat");
    if (table.find(priceWithVat) && given.has(price) && given.has(priceWithVat)) {
        Problem problem;
        problem.code = Problem::conflict;
        problem.option = priceWithVat;
        problem.message = text(TEXT("anna joko price tai priceWithVat, ei molempia"));
        return reader.fail(problem);
    }
    const QVector<QString> &names = table.names();
    for (int i = 0; i < table.count; ++i) {
        const Field &field = table.fields[i];
        const QString &name = names.at(i);
        if (!field.set || !given.has(name))
            continue;
        const QString value = given.text(name);
        const bool mayBeEmpty = field.is(Field::clearable);
        if (value.isEmpty() && !mayBeEmpty) {
            Problem problem;
            problem.code = Problem::missingValue;
            problem.option = name;
            problem.value = value;
            problem.message = text(TEXT("kenttä ei voi olla tyhjä: %1")).arg(name);
            return reader.fail(problem);
        }
        if (!field.set(record, reader, field, value))
            return false;
    }
    return true;
}

bool RecordFields::hasAny(const RecordTable &table, const Arguments &given)
{
    for (const Field &field : table) {
        if (field.is(Field::editable) && given.has(field.name))
            return true;
    }
    return false;
}

bool RecordFields::applyRow(Task &task, const Arguments &given, bool isNew, InvoiceItem &row)
{
    const QString reference = given.text("product");
    const bool hasNoProduct = reference.isEmpty() || reference == QLatin1String("-");
    if (!hasNoProduct) {
        Product product;
        if (!References::product(task, QStringLiteral("product"), reference, product))
            return false;
        product.toInvoiceItem(&row);
    }
    if (isNew && !given.has("quantity"))
        row.quantity = Constants::quantityScale;
    if (!apply(task.reader, rowTable, given, &row))
        return false;
    if (!isNew || !hasNoProduct)
        return true;
    if (row.productName.isEmpty())
        return task.fail(Problem::missingOption, text(TEXT("rivillä ilman tuotetta pitää olla name")),
                         QStringLiteral("name"));
    if (!given.has("price") && !given.has("priceWithVat"))
        return task.fail(Problem::missingOption, text(TEXT("rivillä ilman tuotetta pitää olla price tai priceWithVat")),
                         QStringLiteral("price"));
    return true;
}
