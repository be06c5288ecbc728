#include "databasecheck.h"

#include "bankaccount.h"
#include "cursor.h"
#include "customer.h"
#include "database.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "payment.h"
#include "printscript.h"
#include "product.h"
#include "settings.h"
#include "tablecolumns.h"

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

DatabaseCheck::DatabaseCheck(const Database &database) : m_database(database), m_cursor(database.cursor()) {}

template <class Take> bool DatabaseCheck::readAll(const QString &sql, Take take)
{
    bool isRead = m_cursor->execute(sql, {});
    while (isRead && m_cursor->next())
        take(*m_cursor);
    isRead = isRead && !m_cursor->hasError();
    if (!isRead)
        m_lastError = m_cursor->lastError();
    m_cursor->finish();
    return isRead;
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
    if (!m_database.isSQLite())
        return true;
    return readAll(QStringLiteral("PRAGMA integrity_check"), [this](const Cursor &row) {
        if (row.text(0) != QLatin1String("ok"))
            add("integrity", "", -1, row.text(0));
    });
}

bool DatabaseCheck::checkSchema()
{
    const QPair<const char *, const char *> tables[] = {
        expectedColumns<BankAccount>(), expectedColumns<Customer>(), expectedColumns<Invoice>(),
        expectedColumns<InvoiceItem>(), expectedColumns<Payment>(),  expectedColumns<PrintScript>(),
        expectedColumns<Product>(),     expectedColumns<Settings>(),
    };
    for (const auto &[table, columns] : tables) {
        const QStringList known = m_database.columnsOf(QLatin1String(table));
        const QStringList expected = QString::fromLatin1(columns).split(QStringLiteral(", "));
        for (const QString &column : expected) {
            if (!known.contains(column, Qt::CaseInsensitive))
                add("columns", table, -1, tr("Sarake %1 puuttuu").arg(column));
        }
    }
    int rows = 0;
    const bool isRead = readAll(QStringLiteral("SELECT version FROM settings"), [&](const Cursor &row) {
        ++rows;
        if (row.integer(0) != Database::schemaVersion)
            add("schemaVersion", "settings", -1, tr("Tietokannan versio on %1").arg(row.integer(0)));
    });
    if (!isRead)
        return false;
    if (rows != 1)
        add("schemaVersion", "settings", -1, tr("Asetusrivejä on %1, pitäisi olla yksi").arg(rows));
    return true;
}

bool DatabaseCheck::checkLinks()
{
    for (const LinkCheck &link : linkChecks) {
        const bool isRead = readAll(QLatin1String(link.sql), [&](const Cursor &row) {
            add(link.check, link.table, row.integer(0), tr(link.message).arg(row.integer(1)));
        });
        if (!isRead)
            return false;
    }
    return true;
}

bool DatabaseCheck::checkReferenceNumbers()
{
    for (const char *table : {"invoice", "customer"}) {
        const QString sql = QStringLiteral("SELECT id, reference_number FROM %1 WHERE reference_number <> '' ORDER BY "
                                           "id")
                                .arg(QLatin1String(table));
        const bool isRead = readAll(sql, [&](const Cursor &row) {
            const QString reference = row.text(1);
            if (!isRightReference(reference))
                add("referenceNumber", table, row.integer(0), tr("Virheellinen viitenumero %1").arg(reference));
        });
        if (!isRead)
            return false;
    }
    return true;
}

bool DatabaseCheck::checkNumbers()
{
    const QString sql =
        QStringLiteral("SELECT number, min(id) FROM invoice WHERE number > 0 GROUP BY number ORDER BY number");
    int previous = -1;
    return readAll(sql, [&](const Cursor &row) {
        const int number = row.integer(0);
        if (previous >= 0 && number > previous + 1) {
            const QString gap = number == previous + 2
                                    ? tr("Laskunumero %1 puuttuu").arg(previous + 1)
                                    : tr("Laskunumerot %1-%2 puuttuvat").arg(previous + 1).arg(number - 1);
            add("numberGap", "invoice", row.integer(1), gap);
        }
        previous = number;
    });
}

bool DatabaseCheck::readSums(QHash<int, Sums> &sums)
{
    InvoiceItem item;
    return readAll(QStringLiteral("SELECT %1 FROM invoice_item").arg(selectedColumns<InvoiceItem>()),
                   [&](const Cursor &row) {
                       TableColumns<InvoiceItem>::read(row, 0, item);
                       sums[item.invoiceId].total += item.totalAmountVatIncluded();
                   }) &&
           readAll(QStringLiteral("SELECT invoice_id, sum(amount) FROM payment GROUP BY invoice_id"),
                   [&](const Cursor &row) { sums[row.integer(0)].paid = row.bigInteger(1); });
}

bool DatabaseCheck::checkTotals()
{
    QHash<int, Sums> sums;
    if (!readSums(sums))
        return false;
    const QString sql = QStringLiteral("SELECT id, number, total_amount, balance FROM invoice ORDER BY number, id");
    return readAll(sql, [&](const Cursor &row) {
        const int id = row.integer(0);
        const int number = row.integer(1);
        const Sums right = sums.value(id);
        const long long total = row.bigInteger(2);
        const long long balance = row.bigInteger(3);
        const QString message = tr("Laskun %1 %2 on %3, pitäisi olla %4").arg(number);
        if (total != right.total)
            add("invoiceTotal", "invoice", id, message.arg(tr("summa"), cents(total), cents(right.total)));
        if (balance != right.total - right.paid)
            add("invoiceBalance", "invoice", id,
                message.arg(tr("saldo"), cents(balance), cents(right.total - right.paid)));
        if (total != right.total || balance != right.total - right.paid)
            m_wrongInvoices.insert(id, right);
    });
}

bool DatabaseCheck::repairTotals()
{
    const QString sql = QStringLiteral("UPDATE invoice SET total_amount = ?, balance = ? WHERE id = ?");
    for (auto it = m_wrongInvoices.cbegin(); it != m_wrongInvoices.cend(); ++it) {
        const QVariantList values = {it.value().total, it.value().total - it.value().paid, it.key()};
        if (!m_cursor->execute(sql, values)) {
            m_lastError = m_cursor->lastError();
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
