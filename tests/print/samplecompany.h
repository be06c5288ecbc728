#ifndef SAMPLECOMPANY_H
#define SAMPLECOMPANY_H

#include "bankaccount.h"
#include "printscriptmanager.h"
#include "query.h"
#include "registry.h"
#include "sampledocuments.h"
#include "scriptloader.h"
#include "settings.h"
#include "sqlitedatabase.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <QSettings>
#include <QTemporaryDir>
#include <QtTest>

namespace Sample {

constexpr char sellerName[] = "Metsälän Putki ja Pelti Oy";
constexpr char iban[] = "FI2112345600000785";

inline QVector<BankAccount> bankAccounts()
{
    QVector<BankAccount> accounts(2);
    accounts[0].name = QStringLiteral("Nordea");
    accounts[0].iban = QString::fromLatin1(iban);
    accounts[0].bic = QStringLiteral("NDEAFIHH");
    accounts[1].name = QStringLiteral("Osuuspankki");
    accounts[1].iban = QStringLiteral("FI7944052020036082");
    accounts[1].bic = QStringLiteral("ITELFIHH");
    accounts[1].rowNumber = 1;
    return accounts;
}

inline void fillSeller(Settings &settings)
{
    settings.sellerStreetName = QStringLiteral("Pajatie 8");
    settings.sellerPostCode = QStringLiteral("15880");
    settings.sellerTownName = QStringLiteral("HOLLOLA");
    settings.sellerBusinessId = QStringLiteral("0737546-2");
    settings.setProperty(QStringLiteral("seller/phoneNumber"), QStringLiteral("040 123 4567"));
    settings.setProperty(QStringLiteral("seller/emailAddress"), QStringLiteral("laskutus@metsalanputki.example"));
    settings.setProperty(QStringLiteral("seller/webAddress"), QStringLiteral("https://www.metsalanputki.example/"));
    settings.setProperty(QStringLiteral("seller/vatNumber"), QStringLiteral("FI07375462"));
    settings.setProperty(QStringLiteral("invoiceForm/footer/text1"), QStringLiteral("LVI-työt vuodesta 1987"));
}

inline QByteArray logo()
{
    QImage image(600, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.fillRect(0, 40, 120, 120, QColor(0, 90, 140));
    painter.fillRect(150, 40, 420, 40, QColor(0, 90, 140));
    painter.fillRect(150, 100, 300, 20, Qt::darkGray);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

/**
 * A company with a database of its own that prints documents with the built-in layout. With BILLORA_KEEP set to a
 * folder the PDF files are kept there, to be looked at.
 */
class Company {
public:
    /** @return an error text, empty on success */
    QString open();

    /** Stores the records of a document: it gets the next number, and its sums from its rows. */
    bool store(Document &document);
    /** Stores and prints a document. @return the PDF's file name, empty on failure */
    QString print(Document document);
    /** Prints all invoices of the model's criteria. */
    QString print(InvoicePrintModel &model);

    Registry *registry() { return &m_registry; }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    QString m_pdfFolder;
    SQLiteDatabase m_database;
    std::unique_ptr<Query> m_query;
    Registry m_registry;
    PrintScriptManager m_manager;
    int m_number = 1000;
};

inline QString Company::open()
{
    m_pdfFolder = qEnvironmentVariable("BILLORA_KEEP", m_folder.path());
    QDir().mkpath(m_pdfFolder);
    QSettings file(filePath("settings.ini"), QSettings::IniFormat);
    file.setValue("filename", filePath("sample.db"));
    file.setValue("name", QString::fromUtf8(sellerName));
    m_database.setCreateIfNotExist(true);
    if (!m_database.open(&file))
        return m_database.lastError();
    m_query.reset(m_database.query());
    m_registry.setDatabase(&m_database);
    m_registry.setConnected(true);
    for (BankAccount account : bankAccounts()) {
        if (!m_query->saveBankAccount(&account))
            return m_query->lastError();
    }
    if (!m_registry.fetchSettings(m_query.get()) || !m_registry.fetchBankAccounts(m_query.get()))
        return m_query->lastError();
    fillSeller(*m_registry.settings());
    if (!ScriptLoader(&m_registry).invoiceScript().load(m_manager))
        return QStringLiteral("no built-in script");
    return m_manager.hasException() ? m_manager.exception() : QString();
}

inline bool Company::store(Document &document)
{
    Invoice &invoice = document.invoice;
    bool ok = m_query->saveCustomer(&document.customer) && m_registry.fetchCustomers(m_query.get());
    invoice.customerId = document.hasCustomer ? document.customer.id : -1;
    invoice.number = ++m_number;
    for (const InvoiceItem &row : qAsConst(document.items))
        invoice.totalAmount += static_cast<int>(row.totalAmountVatIncluded());
    if (!document.hasBalance)
        invoice.balance = invoice.totalAmount;
    ok = ok && m_query->saveInvoice(&invoice);
    for (int i = 0; i < document.items.size(); ++i) {
        document.items[i].invoiceId = invoice.id;
        document.items[i].rowNumber = i;
        ok = ok && m_query->saveInvoiceItem(&document.items[i]);
    }
    return ok;
}

inline QString Company::print(Document document)
{
    Settings &settings = *m_registry.settings();
    const Settings usual = settings;
    for (auto property = document.settings.cbegin(); property != document.settings.cend(); ++property)
        settings.setProperty(property.key(), property.value());
    if (document.hasLogo)
        settings.sellerLogo = logo();
    BankAccount *account = m_registry.bankAccount(0);
    account->iban = document.iban.isEmpty() ? QString::fromLatin1(iban) : document.iban;
    QString pdf;
    if (store(document)) {
        InvoicePrintModel model(&m_registry);
        model.criteria()->id = document.invoice.id;
        model.setPrintType(document.printType);
        pdf = print(model);
    }
    settings = usual;
    return pdf;
}

inline QString Company::print(InvoicePrintModel &model)
{
    if (!model.run() || model.invoiceCount() == 0)
        return QString();
    const char *tag = QTest::currentDataTag();
    const QString name = QStringLiteral("%1/%2 %3.pdf").arg(m_pdfFolder, QTest::currentTestFunction(), tag ? tag : "");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(name);
    printer.setPageSize(QPageSize(QPageSize::A4));
    m_manager.print(&printer, &model, 0, std::numeric_limits<int>::max(), false);
    if (m_manager.hasException()) {
        qWarning() << m_manager.exception() << m_manager.exceptionLineNumber() << m_manager.backTrace();
        return QString();
    }
    return name;
}

} // namespace Sample

#endif
