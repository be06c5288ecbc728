#include "customerlistprintmodel.h"
#include "invoicelistprintmodel.h"
#include "invoiceprintmodel.h"
#include "paymentprintmodel.h"
#include "printdatabase.h"
#include "printprelude.h"
#include "productlistprintmodel.h"
#include "scriptrunner.h"
#include "xmlprelude.h"
#include "xmlscriptmodel.h"

#include <QSet>

/** docs/scripting.md against the program: the value paths with their kinds, and the functions. */
class ScriptingGuideTest : public QObject {
    Q_OBJECT
private slots:
    void initTestCase();
    void values_data();
    void values();
    void tablesOfTheCode();
    void functions();
    void timeLimit();

private:
    void readPaths();

    PrintDatabase m_data;
    QStringList m_lines; ///< of the document
    /** One key of a table of the document. */
    struct Path {
        QString section; ///< which model, as in `sections`
        QString path;    ///< with a capital letter for each index
        QString kind;
    };
    QVector<Path> m_paths;
    QSet<QString> m_levels; ///< "SECTION PREFIX" of every table
};

namespace {

template <class Model> std::unique_ptr<PrintModel> made(Registry *registry)
{
    return std::make_unique<Model>(registry);
}

template <class Model, void (Model::*copy)()> std::unique_ptr<PrintModel> filled(Registry *registry)
{
    auto model = std::make_unique<Model>(registry);
    (model.get()->*copy)();
    return model;
}

const struct {
    const char *title;
    std::unique_ptr<PrintModel> (*model)(Registry *);
} sections[] = {
    {"Invoices", made<InvoicePrintModel>},
    {"Finvoice", made<XmlScriptModel>}, // told under the same heading
    {"Invoice list", made<InvoiceListPrintModel>},
    {"Payment journal", made<PaymentPrintModel>},
    {"Customer list", filled<CustomerListPrintModel, &CustomerListPrintModel::copyCustomersFromRegistry>},
    {"Product list", filled<ProductListPrintModel, &ProductListPrintModel::copyProductsFromRegistry>},
};

const QHash<QString, int> kinds = {
    {"number", QMetaType::Int},      {"cents", QMetaType::Int},   {"price", QMetaType::LongLong},
    {"quantity", QMetaType::Int},    {"percent", QMetaType::Int}, {"mm", QMetaType::Double},
    {"text", QMetaType::QString},    {"date", QMetaType::QDate},  {"flag", QMetaType::Bool},
    {"setting", QMetaType::QString},
};

/** Where the document tells the keys of the code's tables. */
const struct {
    const char *file, *table;
    QStringList levels; ///< "SECTION PREFIX"
} codeTables[] = {
    {"invoicepaths.cpp", "topKeys", {"Invoices "}},
    {"invoicepaths.cpp", "invoiceKeys", {"Invoices invoices/I/"}},
    {"invoicepaths.cpp", "itemKeys", {"Invoices invoices/I/items/J/"}},
    {"invoicepaths.cpp", "vatKeys", {"Invoices invoices/I/vat/J/", "Invoice list vat/J/"}},
    {"invoicepaths.cpp", "customerKeys", {"Invoices invoices/I/customer/"}},
    {"sellerpaths.cpp", "accountKeys", {"Invoices seller/bankAccounts/K/", "Invoices seller/bankAccountsAll/K/"}},
    {"sellerpaths.cpp", "sellerKeys", {"Invoices seller/"}},
    {"sellerpaths.cpp", "settingKeys", {"Invoices settings/"}},
    {"xmlscriptmodel.cpp", "topKeys", {"Finvoice "}},
    {"listpaths.cpp", "customerKeys", {"Invoice list invoices/I/customer/", "Payment journal payments/I/customer/"}},
    {"invoicelistprintmodel.cpp", "topKeys", {"Invoice list "}},
    {"invoicelistprintmodel.cpp", "entryKeys", {"Invoice list invoices/I/"}},
    {"invoicelistprintmodel.cpp", "columnNames", {"Invoice list columns/"}},
    {"paymentprintmodel.cpp", "topKeys", {"Payment journal "}},
    {"paymentprintmodel.cpp", "entryKeys", {"Payment journal payments/I/"}},
    {"paymentprintmodel.cpp", "invoiceKeys", {"Payment journal payments/I/invoice/"}},
    {"paymentprintmodel.cpp", "accountKeys", {"Payment journal payments/I/bankAccount/"}},
    {"paymentprintmodel.cpp", "columnNames", {"Payment journal columns/"}},
    {"customerlistprintmodel.cpp", "topKeys", {"Customer list "}},
    {"customerlistprintmodel.cpp", "customerKeys", {"Customer list customers/I/"}},
    {"productlistprintmodel.cpp", "topKeys", {"Product list "}},
    {"productlistprintmodel.cpp", "productKeys", {"Product list products/I/"}},
};

QString sourceFolder() { return QFileInfo(QStringLiteral(__FILE__)).absolutePath() + QStringLiteral("/../../"); }

QString readSource(const QString &name)
{
    QFile file(sourceFolder() + name);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(name));
    return QString::fromUtf8(file.readAll());
}

/** What the pattern's first group finds in a text. */
QStringList captures(const QString &pattern, const QString &text)
{
    QStringList found;
    auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext())
        found << matches.next().captured(1);
    return found;
}

QStringList inBackticks(const QString &text) { return captures(QStringLiteral("`([^`]+)`"), text); }

/** The tables of value paths that a source file holds: their names and keys. */
QMap<QString, QStringList> tablesIn(const QString &source)
{
    QMap<QString, QStringList> tables;
    static const QRegularExpression table(
        QStringLiteral("^(?:const|constexpr) [^=;]*\\b(\\w+Keys|columnNames)\\[\\] = \\{(.*?)\\};$"),
        QRegularExpression::MultilineOption | QRegularExpression::DotMatchesEverythingOption);
    auto matches = table.globalMatch(source);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const bool isRow = match.captured(1) != QLatin1String("columnNames");
        tables[match.captured(1)] = captures(isRow ? "\\{\"(\\w+)\"," : "\"(\\w+)\"", match.captured(2));
    }
    // Settings with a default stand beside their table.
    if (tables.contains("settingKeys"))
        tables["settingKeys"] += captures("element == QLatin1String\\(\"(\\w+)\"\\)", source);
    return tables;
}

} // namespace

void ScriptingGuideTest::initTestCase()
{
    m_lines = readSource("docs/scripting.md").split('\n');
    readPaths();

    Settings &settings = m_data.settings();
    for (const char *key : {"invoiceForm/reminderText", "invoiceForm/invoiceItemOptions", "invoiceForm/language",
                            "invoiceForm/roundingMode", "invoiceForm/footer/text1", "invoiceForm/footer/text2",
                            "invoiceForm/footer/text3", "finvoice/epiInstructionId", "finvoice/senderId",
                            "finvoice/defaultReceiverId", "finvoice/intermediatorId"})
        settings.setProperty(key, "1");
    BankAccount account;
    account.iban = "FI2112345600000785";
    const int accountId = m_data.add(account);
    Invoice invoice;
    invoice.customerId = m_data.addCustomer(1, "Virtanen");
    invoice.number = 1001;
    invoice.id = m_data.add(invoice);
    m_data.addRow(invoice.id, 1240, 2400);
    Payment payment;
    payment.invoiceId = invoice.id;
    payment.bankAccountId = accountId;
    m_data.add(payment);
    Product product;
    product.number = "1";
    m_data.add(product);
    m_data.fetch();
}

/** Reads the tables behind the heading "Values": a heading tells the model, another one the prefixes of a table. */
void ScriptingGuideTest::readPaths()
{
    QString section;
    QStringList prefixes;
    for (int i = m_lines.indexOf("## Values") + 1; i < m_lines.size(); ++i) {
        const QString &line = m_lines.at(i);
        const QStringList cells = line.split('|');
        if (line.startsWith("### ")) {
            section = line.mid(4);
        } else if (line.startsWith("#### ")) {
            prefixes = line.contains("Top level") ? QStringList("") : inBackticks(line);
            for (const QString &prefix : qAsConst(prefixes))
                m_levels << section + ' ' + prefix;
        } else if (!prefixes.isEmpty() && cells.size() == 5 && kinds.contains(cells.at(2).trimmed())) {
            const QString keyCell = cells.at(1).trimmed();
            const QStringList keys = keyCell.isEmpty() ? QStringList("") : inBackticks(keyCell);
            for (const QString &prefix : qAsConst(prefixes)) {
                for (const QString &key : keys)
                    m_paths.append({section, prefix + key, cells.at(2).trimmed()});
            }
        }
    }
    // What a Finvoice writer sees is told under the same headings.
    const QVector<Path> paths = m_paths;
    for (const Path &path : paths) {
        if (path.section == QLatin1String(sections[0].title))
            m_paths.append({sections[1].title, QString(path.path).replace("invoices/I/", "invoice/"), path.kind});
    }
    const QSet<QString> levels = m_levels;
    for (const QString &level : levels) {
        if (level.startsWith("Invoices "))
            m_levels << QString(level).replace("Invoices ", "Finvoice ").replace("invoices/I/", "invoice/");
    }
}

void ScriptingGuideTest::values_data()
{
    QTest::addColumn<int>("section");
    int i = 0;
    for (const auto &section : sections)
        QTest::newRow(section.title) << i++;
}

void ScriptingGuideTest::values()
{
    QFETCH(int, section);
    const std::unique_ptr<PrintModel> model = sections[section].model(m_data.registry());
    if (auto *invoices = qobject_cast<InvoicePrintModel *>(model.get()))
        invoices->copyBankAccounts();
    if (auto *list = qobject_cast<InvoiceListPrintModel *>(model.get()))
        list->criteria()->number = 1001;
    if (auto *list = qobject_cast<PaymentPrintModel *>(model.get()))
        list->invoiceCriteria()->number = 1001;
    QVERIFY2(model->run(), qPrintable(model->lastError()));
    int count = 0;
    for (const Path &path : qAsConst(m_paths)) {
        if (path.section != QLatin1String(sections[section].title))
            continue;
        ++count;
        const QString resolved = QString(path.path).replace(QRegularExpression("\\b[IJK]\\b"), "0");
        const QVariant value = model->value(resolved);
        QVERIFY2(value.isValid(), qPrintable(path.path + " is undefined"));
        QVERIFY2(value.userType() == kinds.value(path.kind),
                 qPrintable(path.path + " is no " + path.kind + " but " + value.typeName()));
        // An index is one letter, as the zero in its place.
        for (int i = resolved.indexOf("/0"); i >= 0; i = resolved.indexOf("/0", i + 1))
            QVERIFY2(model->value(resolved.left(i + 1) + "length").toInt() > 0, qPrintable(resolved));
    }
    QVERIFY(count > 0);
}

/** Every key of every table has a row in the document, or a heading when more keys stand below it. */
void ScriptingGuideTest::tablesOfTheCode()
{
    QSet<QString> told;
    for (const Path &path : qAsConst(m_paths))
        told << path.section + ' ' + path.path;
    for (const QString &level : qAsConst(m_levels)) {
        // "invoices/I/items/J/" tells of invoices and of items.
        for (int end = level.indexOf('/'); end >= 0; end = level.indexOf('/', end + 1))
            told << level.left(end);
    }
    int count = 0;
    const QStringList files = QDir(sourceFolder() + "src/print").entryList({"*.cpp"});
    for (const QString &file : files) {
        const QMap<QString, QStringList> tables = tablesIn(readSource("src/print/" + file));
        for (auto table = tables.cbegin(); table != tables.cend(); ++table, ++count) {
            QStringList levels;
            for (const auto &known : codeTables) {
                if (file == QLatin1String(known.file) && table.key() == QLatin1String(known.table))
                    levels = known.levels;
            }
            QVERIFY2(!levels.isEmpty() && !table.value().isEmpty(), qPrintable(file + ' ' + table.key()));
            for (const QString &level : qAsConst(levels)) {
                for (const QString &key : table.value())
                    QVERIFY2(told.contains(level + key), qPrintable(level + key + " is not in the document"));
            }
        }
    }
    QCOMPARE(count, int(std::size(codeTables)));
}

void ScriptingGuideTest::functions()
{
    const QString signature = QStringLiteral("^function ([a-z]\\w*\\(.*?\\)) \\{");
    const QStringList offered = captures(signature, printPrelude) + captures(signature, xmlPrelude);
    QVERIFY(offered.size() > 40);
    QStringList told;
    for (const QString &line : qAsConst(m_lines)) {
        if (line.startsWith("| `"))
            told += inBackticks(line.section('|', 1, 1)).filter("(");
    }
    QSet<QString> all(offered.begin(), offered.end());
    QCOMPARE(QSet<QString>(told.begin(), told.end()), all);
}

void ScriptingGuideTest::timeLimit()
{
    const QString limit = QStringLiteral("may work %1 s on one document").arg(ScriptRunner::timeLimitMs / 1000);
    QVERIFY(m_lines.join('\n').contains(limit));
}

QTEST_GUILESS_MAIN(ScriptingGuideTest)

#include "tst_scriptingguide.moc"
