#include "databasecheck.h"

#include "bankaccount.h"
#include "customer.h"
#include "database.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "printscript.h"
#include "product.h"
#include "settings.h"
#include "sqltext.h"
#include "tablecolumns.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>

namespace {

struct LinkCheck {
    const char *check;
    const char *table;
    const char *sql; ///< gives the id and what the message names
    const char *message;
};

constexpr LinkCheck linkChecks[] = {
    {"itemWithoutInvoice", "invoice_item",
     "SELECT r.id, r.invoice_id FROM invoice_item r LEFT JOIN invoice i ON r.invoice_id = i.id WHERE i.id IS NULL "
     "ORDER BY r.id",
     QT_TRANSLATE_NOOP("DatabaseCheck", "Rivin laskua %1 ei ole")},
    {"paymentWithoutInvoice", "payment",
     "SELECT p.id, p.invoice_id FROM payment p LEFT JOIN invoice i ON p.invoice_id = i.id WHERE i.id IS NULL "
     "ORDER BY p.id",
     QT_TRANSLATE_NOOP("DatabaseCheck", "Suorituksen laskua %1 ei ole")},
    {"invoiceWithoutCustomer", "invoice",
     "SELECT i.id, i.customer_id FROM invoice i LEFT JOIN customer c ON i.customer_id = c.id WHERE c.id IS NULL "
     "ORDER BY i.id",
     QT_TRANSLATE_NOOP("DatabaseCheck", "Laskun asiakasta %1 ei ole")},
    {"duplicateNumber", "invoice",
     "SELECT id, number FROM invoice WHERE number IN (SELECT number FROM invoice GROUP BY number HAVING count(*) > 1) "
     "ORDER BY number, id",
     QT_TRANSLATE_NOOP("DatabaseCheck", "Laskunumero %1 on käytössä useammin kuin kerran")},
};

/** A national reference or an RF reference (ISO 11649) around one. */
bool isRightReference(const QString &reference)
{
    if (reference.startsWith(QLatin1String("RF")))
        return Invoice::referenceNumberToRf(reference.mid(4)) == reference;
    const bool isNumber = std::all_of(reference.begin(), reference.end(), [](QChar c) { return c.isDigit(); });
    if (!isNumber || reference.size() < 4 || reference.size() > 20)
        return false;
    const int checkDigit = Invoice::calculateReferenceNumberCheckDigit(reference.left(reference.size() - 1));
    return reference.at(reference.size() - 1).digitValue() == checkDigit;
}

QString cents(long long amount)
{
    const QString sign = amount < 0 ? QStringLiteral("-") : QString();
    const long long magnitude = amount < 0 ? -amount : amount;
    return QStringLiteral("%1%2,%3").arg(sign).arg(magnitude / 100).arg(magnitude % 100, 2, 10, QLatin1Char('0'));
}

template <class Record> QPair<const char *, const char *> expectedColumns()
{
    return {TableColumns<Record>::table, TableColumns<Record>::columns};
}

} // namespace

bool DatabaseCheck::execute(QSqlQuery &query, const QString &sql)
{
    query.setForwardOnly(true);
    if (query.exec(sql))
        return true;
    m_lastError = query.lastError().text().trimmed();
    return false;
}

void DatabaseCheck::add(const char *check, const char *table, int id, const QString &message)
{
    m_findings.append({check, QLatin1String(table), id, message});
}

bool DatabaseCheck::run()
{
    // Without the right columns the books cannot be read.
    if (!checkIntegrity() || !checkSchema())
        return false;
    const bool readable = std::none_of(m_findings.begin(), m_findings.end(),
                                       [](const Finding &f) { return qstrcmp(f.check, "columns") == 0; });
    return !readable || (checkTotals() && checkLinks() && checkReferenceNumbers() && checkNumbers());
}

bool DatabaseCheck::checkIntegrity()
{
    if (!m_isSQLite)
        return true;
    QSqlQuery query(m_connection);
    if (!execute(query, QStringLiteral("PRAGMA integrity_check")))
        return false;
    while (query.next()) {
        if (query.value(0).toString() != QLatin1String("ok"))
            add("integrity", "", -1, query.value(0).toString());
    }
    return true;
}

bool DatabaseCheck::checkSchema()
{
    const QPair<const char *, const char *> tables[] = {
        expectedColumns<BankAccount>(), expectedColumns<Customer>(), expectedColumns<Invoice>(),
        expectedColumns<InvoiceItem>(), expectedColumns<Payment>(),  expectedColumns<PrintScript>(),
        expectedColumns<Product>(),     expectedColumns<Settings>(),
    };
    for (const auto &[table, columns] : tables) {
        const QSqlRecord record = m_connection.record(QLatin1String(table));
        const QStringList expected = QString::fromLatin1(columns).split(QStringLiteral(", "));
        for (const QString &column : expected) {
            if (!record.contains(column))
                add("columns", table, -1, tr("Sarake %1 puuttuu").arg(column));
        }
    }
    QSqlQuery query(m_connection);
    if (!execute(query, QStringLiteral("SELECT version FROM settings")))
        return false;
    int rows = 0;
    for (; query.next(); ++rows) {
        if (query.value(0).toInt() != Database::schemaVersion)
            add("schemaVersion", "settings", -1, tr("Tietokannan versio on %1").arg(query.value(0).toInt()));
    }
    if (rows != 1)
        add("schemaVersion", "settings", -1, tr("Asetusrivejä on %1, pitäisi olla yksi").arg(rows));
    return true;
}

bool DatabaseCheck::checkLinks()
{
    for (const LinkCheck &link : linkChecks) {
        QSqlQuery query(m_connection);
        if (!execute(query, QLatin1String(link.sql)))
            return false;
        while (query.next())
            add(link.check, link.table, query.value(0).toInt(), tr(link.message).arg(query.value(1).toInt()));
    }
    return true;
}

bool DatabaseCheck::checkReferenceNumbers()
{
    for (const char *table : {"invoice", "customer"}) {
        QSqlQuery query(m_connection);
        if (!execute(query,
                     QStringLiteral("SELECT id, reference_number FROM %1 WHERE reference_number <> '' ORDER BY id")
                         .arg(QLatin1String(table))))
            return false;
        while (query.next()) {
            const QString reference = query.value(1).toString();
            if (!isRightReference(reference))
                add("referenceNumber", table, query.value(0).toInt(), tr("Virheellinen viitenumero %1").arg(reference));
        }
    }
    return true;
}

bool DatabaseCheck::checkNumbers()
{
    QSqlQuery query(m_connection);
    if (!execute(query, QStringLiteral("SELECT number, min(id) FROM invoice WHERE number > 0 GROUP BY number ORDER BY "
                                       "number")))
        return false;
    int previous = -1;
    while (query.next()) {
        const int number = query.value(0).toInt();
        if (previous >= 0 && number > previous + 1) {
            const QString gap = number == previous + 2
                                    ? tr("Laskunumero %1 puuttuu").arg(previous + 1)
                                    : tr("Laskunumerot %1-%2 puuttuvat").arg(previous + 1).arg(number - 1);
            add("numberGap", "invoice", query.value(1).toInt(), gap);
        }
        previous = number;
    }
    return true;
}

bool DatabaseCheck::readSums(QHash<int, Sums> &sums)
{
    QSqlQuery items(m_connection);
    if (!execute(items, QStringLiteral("SELECT %1 FROM invoice_item").arg(selectedColumns<InvoiceItem>())))
        return false;
    InvoiceItem item;
    while (items.next()) {
        TableColumns<InvoiceItem>::read(items, 0, item);
        sums[item.invoiceId].total += item.totalAmountVatIncluded();
    }
    QSqlQuery payments(m_connection);
    if (!execute(payments, QStringLiteral("SELECT invoice_id, sum(amount) FROM payment GROUP BY invoice_id")))
        return false;
    while (payments.next())
        sums[payments.value(0).toInt()].paid = payments.value(1).toLongLong();
    return true;
}

bool DatabaseCheck::checkTotals()
{
    QHash<int, Sums> sums;
    if (!readSums(sums))
        return false;
    QSqlQuery query(m_connection);
    if (!execute(query, QStringLiteral("SELECT id, number, total_amount, balance FROM invoice ORDER BY number, id")))
        return false;
    while (query.next()) {
        const int id = query.value(0).toInt();
        const int number = query.value(1).toInt();
        const Sums right = sums.value(id);
        const long long total = query.value(2).toLongLong();
        const long long balance = query.value(3).toLongLong();
        const QString message = tr("Laskun %1 %2 on %3, pitäisi olla %4").arg(number);
        if (total != right.total)
            add("invoiceTotal", "invoice", id, message.arg(tr("summa"), cents(total), cents(right.total)));
        if (balance != right.total - right.paid)
            add("invoiceBalance", "invoice", id,
                message.arg(tr("saldo"), cents(balance), cents(right.total - right.paid)));
        if (total != right.total || balance != right.total - right.paid)
            m_wrongInvoices.insert(id, right);
    }
    return true;
}

bool DatabaseCheck::repairTotals()
{
    QSqlQuery query(m_connection);
    const QString sql = QStringLiteral("UPDATE invoice SET total_amount = ?, balance = ? WHERE id = ?");
    for (auto it = m_wrongInvoices.cbegin(); it != m_wrongInvoices.cend(); ++it) {
        const QVariantList values = {it.value().total, it.value().total - it.value().paid, it.key()};
        if (!query.exec(SqlText::filled(*m_connection.driver(), sql, values))) {
            m_lastError = query.lastError().text().trimmed();
            return false;
        }
    }
    for (Finding &finding : m_findings) {
        if (qstrcmp(finding.check, "invoiceTotal") == 0 || qstrcmp(finding.check, "invoiceBalance") == 0) {
            finding.message += tr(" (korjattu)");
            ++m_repairedCount;
        }
    }
    return true;
}
