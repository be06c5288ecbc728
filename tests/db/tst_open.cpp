#include "database.h"
#include "testdatabase.h"

#include <QtTest>

/** What open() says of databases that are missing, empty, foreign or closed to it. */
class OpenTest : public QObject {
    Q_OBJECT
private slots:
    void open_data();
    void open();
};

enum Found { nothing, emptyDatabase, textFile };
enum Creation { existingOnly, mayCreate };

Q_DECLARE_METATYPE(Found)
Q_DECLARE_METATYPE(Creation)

void OpenTest::open_data()
{
    QTest::addColumn<QString>("backend");
    QTest::addColumn<Found>("found");
    QTest::addColumn<QStringList>("keys"); // changed in the settings
    QTest::addColumn<Creation>("creation");
    QTest::addColumn<bool>("opens");
    QTest::addColumn<bool>("exists");
    const QString sqlite = QStringLiteral("sqlite");
    const QString server = QStringLiteral("postgresql");
    const QStringList none;
    const QStringList locked{"username=billora_locked", "password=secret"};
    QTest::newRow("no file name") << sqlite << nothing << QStringList("filename=") << mayCreate << false << false;
    QTest::newRow("missing file") << sqlite << nothing << none << existingOnly << true << false;
    QTest::newRow("new file") << sqlite << nothing << none << mayCreate << true << true;
    QTest::newRow("folder missing") << sqlite << nothing << QStringList("filename=/nowhere/x.sqlite") << mayCreate
                                    << false << false;
    QTest::newRow("a folder") << sqlite << nothing << QStringList("filename=/") << mayCreate << false << true;
    QTest::newRow("empty file") << sqlite << emptyDatabase << none << mayCreate << false << true;
    QTest::newRow("not a database") << sqlite << textFile << none << mayCreate << false << true;

    QTest::newRow("no database name") << server << nothing << QStringList("databaseName=") << mayCreate << false
                                      << false;
    QTest::newRow("no host") << server << nothing << QStringList("host=") << mayCreate << false << false;
    QTest::newRow("missing database") << server << nothing << none << existingOnly << false << false;
    QTest::newRow("new database") << server << nothing << none << mayCreate << true << true;
    QTest::newRow("empty database is filled") << server << emptyDatabase << none << existingOnly << true << true;
    QTest::newRow("server not there") << server << nothing << QStringList("port=1") << mayCreate << false << true;
    QTest::newRow("password") << server << nothing << locked << mayCreate << true << true;
    QTest::newRow("wrong password") << server << emptyDatabase
                                    << QStringList({"username=billora_locked", "password=Secret"}) << mayCreate << false
                                    << true;
    QTest::newRow("no password") << server << emptyDatabase << QStringList("username=billora_locked") << existingOnly
                                 << false << true;
    // The server's words for an unknown role end as those for a missing database do.
    QTest::newRow("unknown role") << server << emptyDatabase << QStringList("username=nobody") << existingOnly << false
                                  << false;
}

void OpenTest::open()
{
    QFETCH(QString, backend);
    QFETCH(Found, found);
    QFETCH(QStringList, keys);
    QFETCH(Creation, creation);
    QFETCH(bool, opens);
    QFETCH(bool, exists);
    TestDatabase database(backend);
    if (database.isSQLite() && found != nothing) {
        QFile file(database.settings().value(QStringLiteral("filename")).toString());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(found == textFile ? 5000 : 0, 'x')) >= 0);
    } else if (found == emptyDatabase) {
        database.createEmpty();
    }
    for (const QString &key : keys)
        database.settings().setValue(key.section(QLatin1Char('='), 0, 0), key.section(QLatin1Char('='), 1));
    QCOMPARE(database.open(creation == mayCreate), opens);
    QCOMPARE(database.database()->exists(), exists);
    if (!opens)
        QVERIFY(!database.database()->lastError().isEmpty());
    else if (exists)
        QCOMPARE(database.rows(QStringLiteral("SELECT version FROM settings")), QStringList("10"));
    if (keys.contains(QLatin1String("filename=")))
        QCOMPARE(QDir(database.folder()).entryList({QStringLiteral("*.sqlite")}), QStringList());
}

QTEST_GUILESS_MAIN(OpenTest)
#include "tst_open.moc"
