#include "printdatabase.h"
#include "printscriptmanager.h"
#include "scriptloader.h"
#include "xmlscriptmanager.h"

/** Which script a host gets: told apart by what it throws when it is loaded. */
class ScriptLoaderTest : public QObject {
    Q_OBJECT
private slots:
    void init() { m_data.clear(); }
    void invoiceScripts_data();
    void invoiceScripts();
    void finvoiceScripts();
    void listScripts();
    void fetched();

private:
    int addScript(const QString &type, const QString &name)
    {
        PrintScript script;
        script.type = type;
        script.name = name;
        script.sourceCode = QStringLiteral("function print() {} function write() {}\nthrow '%1';").arg(name);
        return m_data.add(script);
    }

    PrintDatabase m_data;
};

void ScriptLoaderTest::invoiceScripts_data()
{
    QTest::addColumn<QVariant>("setting");
    QTest::addColumn<bool>("isStored");
    QTest::newRow("unset") << QVariant() << false;
    QTest::newRow("stored") << QVariant("%1") << true;
    QTest::newRow("stored, as a number") << QVariant(1) << true;
    QTest::newRow("no number") << QVariant("%1x") << false;
    QTest::newRow("blank") << QVariant(" %1") << false;
    QTest::newRow("no such script") << QVariant("99") << false;
    QTest::newRow("first built-in") << QVariant("-1") << false;
    QTest::newRow("built-in past the last") << QVariant("-5") << false;
    QTest::newRow("lowest") << QVariant("-2147483648") << false;
}

void ScriptLoaderTest::invoiceScripts()
{
    const int id = addScript("invoice", "oma");
    QCOMPARE(id, 1);
    QFETCH(QVariant, setting);
    if (setting.isValid())
        m_data.settings().setProperty("printScripts/invoice", setting.toString().replace("%1", QString::number(id)));
    PrintScriptManager manager;
    QVERIFY(ScriptLoader(m_data.registry()).invoiceScript().load(manager));
    QTEST(manager.hasException(), "isStored");
    QVERIFY(manager.script().isRunnable());
    if (manager.hasException()) {
        QCOMPARE(manager.exception(), QString("oma"));
        QCOMPARE(manager.exceptionLineNumber(), 2);
        QVERIFY2(manager.backTrace().first().contains("oma.qs"), qPrintable(manager.backTrace().join('\n')));
    }
}

void ScriptLoaderTest::finvoiceScripts()
{
    const ScriptLoader loader(m_data.registry());
    XmlScriptManager manager;
    addScript("invoice", "lasku");
    m_data.fetch();
    QVERIFY(loader.finvoiceScript().load(manager)); // the built-in one
    QVERIFY2(!manager.hasException(), qPrintable(manager.exception()));
    addScript("finvoice", "b");
    addScript("finvoice", "a");
    m_data.fetch();
    QVERIFY(loader.finvoiceScript().load(manager));
    QCOMPARE(manager.exception(), QString("a")); // the first by name
    QVERIFY(manager.backTrace().first().contains("finvoice.qs"));
}

void ScriptLoaderTest::listScripts()
{
    PrintScriptManager manager;
    for (const char *name : {"invoice-list", "payment-list", "customer-list", "product-list"}) {
        QVERIFY(ScriptSource::builtIn(name).load(manager));
        QVERIFY2(!manager.hasException(), qPrintable(manager.exception()));
        QVERIFY(manager.script().isRunnable());
        QCOMPARE(manager.supportedOrientations(), 3);
    }
}

void ScriptLoaderTest::fetched()
{
    const int id = addScript("invoice", "oma");
    const ScriptLoader loader(m_data.registry());
    PrintScript script;
    QVERIFY(!loader.fetchPrintScript(-1, &script));
    QVERIFY(!loader.fetchPrintScript(id + 1, &script));
    QCOMPARE(script.id, -1);
    QVERIFY(loader.fetchPrintScript(id, &script));
    QCOMPARE(script.name, QString("oma"));
    QVERIFY(script.sourceCode.contains("throw 'oma'"));
}

QTEST_MAIN(ScriptLoaderTest)
#include "tst_scriptloader.moc"
