#include "bankaccount.h"
#include "customer.h"
#include "einvoicebuilder.h"
#include "einvoicerules.h"
#include "invoice.h"
#include "invoiceitem.h"
#include "rowterms.h"
#include "settings.h"

#include <QFile>
#include <QHash>
#include <QtTest>

namespace {

struct Records {
    Invoice invoice;
    Customer customer;
    Settings settings;
    QVector<InvoiceItem> rows;
    QList<BankAccount> accounts;
    QString kind;
};

void assign(QString &target, const QString &value) { target = value; }
void assign(QDate &target, const QString &value) { target = QDate::fromString(value, Qt::ISODate); }
void assign(bool &target, const QString &value) { target = value == QLatin1String("1"); }
template <class Number> void assign(Number &target, const QString &value)
{
    target = static_cast<Number>(value.toLongLong());
}

template <class Record, auto... members> struct Members {
    static void set(Record &record, int index, const QString &value)
    {
        int i = 0;
        ((i++ == index ? assign(record.*members, value) : void()), ...);
    }
};

/** Sets a member of a record by its name; another name is that of a property. */
template <class Setter, class Record>
void setIn(Record &record, const QStringList &members, const QString &name, const QString &value)
{
    const int index = members.indexOf(name);
    if (index >= 0)
        Setter::set(record, index, value);
    else if constexpr (std::is_base_of_v<PropertyMap, Record>)
        record.setPropertyIfNotEmpty(name, value);
    else
        QFAIL(qPrintable(name));
}

/** `customer.name=x`; the rows and accounts beyond the last are made as copies of the last one, `none` removes it. */
void change(Records &r, const QString &word)
{
    const QString record = word.section(QLatin1Char('.'), 0, 0), rest = word.section(QLatin1Char('.'), 1);
    const QString name = rest.section(QLatin1Char('='), 0, 0);
    QString value = rest.section(QLatin1Char('='), 1);
    if (value.contains(QLatin1Char('*'))) // "x*71"
        value = QString(value.section(QLatin1Char('*'), 1).toInt(), value.at(0));
    if (record == QLatin1String("invoice"))
        setIn<Members<Invoice, &Invoice::number, &Invoice::type, &Invoice::date, &Invoice::dueDate,
                      &Invoice::deliveryDate, &Invoice::buyerRef, &Invoice::referenceNumber, &Invoice::totalAmount>>(
            r.invoice, {"number", "type", "date", "dueDate", "deliveryDate", "buyerRef", "reference", "total"}, name,
            value);
    else if (record == QLatin1String("customer"))
        setIn<Members<Customer, &Customer::name, &Customer::streetName, &Customer::postCode, &Customer::townName,
                      &Customer::country, &Customer::vatNumber>>(
            r.customer, {"name", "street", "postCode", "town", "country", "vatNumber"}, name, value);
    else if (record == QLatin1String("settings"))
        setIn<Members<Settings, &Settings::sellerName, &Settings::sellerStreetName, &Settings::sellerPostCode,
                      &Settings::sellerTownName, &Settings::sellerCountry, &Settings::sellerBusinessId>>(
            r.settings, {"name", "street", "postCode", "town", "country", "businessId"}, name, value);
    else if (record == QLatin1String("account"))
        setIn<Members<BankAccount, &BankAccount::iban, &BankAccount::bic>>(r.accounts.last(), {"iban", "bic"}, name,
                                                                           value);
    else if (record == QLatin1String("row"))
        setIn<Members<InvoiceItem, &InvoiceItem::productNumber, &InvoiceItem::productName, &InvoiceItem::quantity,
                      &InvoiceItem::unitCode, &InvoiceItem::amount, &InvoiceItem::vatRate, &InvoiceItem::vatExcluded,
                      &InvoiceItem::discount, &InvoiceItem::text>>(
            r.rows.last(), {"product", "name", "quantity", "unit", "price", "vatRate", "isNet", "discount", "text"},
            name, value);
    else if (word == QLatin1String("a row"))
        r.rows.append(r.rows.last());
    else if (word == QLatin1String("no rows"))
        r.rows.clear();
    else if (word == QLatin1String("no accounts"))
        r.accounts.clear();
    else if (word.startsWith(QLatin1String("as ")))
        r.kind = word.mid(3);
    else
        QFAIL(qPrintable("unknown change: " + word));
}

struct Line {
    QString changes, finvoice, peppol;
};

/** The lines of the file by number: changes | findings in Finvoice 3.0 | in Peppol, "=" for the same. */
QMap<int, Line> faults()
{
    QFile file(QFINDTESTDATA("../data/einvoice/faults.txt"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("faults.txt cannot be read");
    QMap<int, Line> lines;
    int number = 0;
    for (const QString &text : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        ++number;
        if (text.isEmpty() || text.startsWith(QLatin1Char('#')))
            continue;
        const QStringList cells = text.split(QLatin1Char('|'));
        const QString peppol = cells.value(2).trimmed();
        lines.insert(number, {cells.value(0), cells.value(1).trimmed(),
                              peppol == QLatin1String("=") ? cells.value(1).trimmed() : peppol});
    }
    return lines;
}

QStringList found(const EInvoice::Document &document, EInvoice::Format format)
{
    QStringList names;
    for (const EInvoice::Finding &finding : EInvoice::check(document, format))
        names.append(QLatin1String(finding.rule) + QLatin1Char('@') + QLatin1String(finding.field));
    return names;
}

} // namespace

/** Each line of a file makes one fault in the records of a right invoice, and tells what the check finds. */
class EInvoiceRulesTest : public QObject {
    Q_OBJECT
private slots:
    void fault_data();
    void fault();
    void everyRuleIsMet();
};

void EInvoiceRulesTest::fault_data()
{
    QTest::addColumn<QString>("changes");
    QTest::addColumn<QString>("finvoice");
    QTest::addColumn<QString>("peppol");
    const QMap<int, Line> lines = faults();
    for (auto it = lines.begin(); it != lines.end(); ++it)
        QTest::addRow("line %d", it.key()) << it->changes << it->finvoice << it->peppol;
}

void EInvoiceRulesTest::fault()
{
    QFETCH(QString, changes);
    QFETCH(QString, finvoice);
    QFETCH(QString, peppol);
    Records r;
    r.rows.append(InvoiceItem());
    r.accounts.append(BankAccount());
    r.invoice.totalAmount = -1;
    const QString right = "settings.name=Saimaan Kirjansitomo Oy;settings.businessId=0737546-2;settings.country=FI;"
                          "settings.street=Kanavakatu 5;settings.postCode=53100;settings.town=Lappeenranta;"
                          "settings.finvoice/intermediatorId=NDEAFIHH;customer.name=Kustannus Aallotar Oy;"
                          "customer.street=Satamatie 2;customer.postCode=48100;customer.town=Kotka;"
                          "customer.country=Suomi;customer.vatNumber=1234567-1;customer.e1=OKOYFIHH;"
                          "customer.e2=003712345671;account.iban=FI2112345600000785;account.bic=NDEAFIHH;"
                          "invoice.number=1001;invoice.date=2026-03-02;invoice.dueDate=2026-03-16;"
                          "invoice.buyerRef=Liisa;invoice.reference=10016;row.name=Sidonta;row.quantity=1200000;"
                          "row.price=145000;row.vatRate=2550;row.isNet=1;row.unit=kpl";
    for (const QString &word : (right + ';' + changes).split(QLatin1Char(';')))
        if (!word.trimmed().isEmpty())
            change(r, word.trimmed());
    long long total = 0;
    for (InvoiceItem &row : r.rows) {
        row.id = static_cast<int>(&row - r.rows.data()) + 1;
        RowTerms::write(r.invoice, row, true);
        total += row.fits() ? row.totalAmountVatIncluded() : 0;
    }
    if (r.invoice.totalAmount == -1)
        r.invoice.totalAmount = static_cast<int>(total);
    r.invoice.balance = r.invoice.totalAmount;
    const EInvoice::Document document =
        EInvoice::build({r.invoice, r.rows, r.customer, r.settings, r.accounts, r.kind});
    QCOMPARE(found(document, EInvoice::finvoice3).join(' '), finvoice);
    QCOMPARE(found(document, EInvoice::peppol).join(' '), peppol);
}

void EInvoiceRulesTest::everyRuleIsMet()
{
    QStringList met;
    for (const Line &line : faults())
        met += (line.finvoice + ' ' + line.peppol).split(' ');
    for (const QString &rule : EInvoice::rules())
        QVERIFY2(met.contains(rule), qPrintable("no line meets " + rule));
}

QTEST_GUILESS_MAIN(EInvoiceRulesTest)
#include "tst_einvoicerules.moc"
