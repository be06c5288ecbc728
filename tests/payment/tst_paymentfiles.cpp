#include "paymentlog.h"

#include <QDir>
#include <QTest>
#include <QTextCodec>

/** Reads every file of tests/data/payments; beside each stands what it must give, written from the format's layout. */
class PaymentFilesTest : public QObject {
    Q_OBJECT
private slots:
    void file_data();
    void file();
    void lineEnds_data();
    void lineEnds();
    void recognition_data();
    void recognition();
    void failureStays();
    void bban();
    void charset();
    void csvDate_data();
    void csvDate();
    void csvReference_data();
    void csvReference();

private:
    const QString m_folder = QFINDTESTDATA("../data/payments");
};

void PaymentFilesTest::file_data()
{
    QTest::addColumn<QStringList>("expected");
    const QStringList names = QDir(m_folder).entryList({QStringLiteral("*.expected")}, QDir::Files);
    QVERIFY2(names.size() > 20, "tests/data/payments is not complete");
    for (const QString &name : names) {
        const QString text = QString::fromUtf8(paymentData(m_folder, name));
        QTest::newRow(qPrintable(name.chopped(9))) << text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
}

void PaymentFilesTest::file()
{
    QFETCH(QStringList, expected);
    QFile file(m_folder + QLatin1Char('/') + QLatin1String(QTest::currentDataTag()));
    QVERIFY(file.open(QIODevice::ReadOnly));
    PaymentLog log;
    PaymentFileReader reader(&log);
    QVERIFY(reader.readFile(file));
    for (int i = 0; i < qMin(log.lines.size(), expected.size()); ++i)
        QCOMPARE(log.lines.at(i), expected.at(i));
    QCOMPARE(log.lines, expected);
    QCOMPARE(reader.lastError().isEmpty(), expected.filter(QRegExp(QStringLiteral("^!"))).isEmpty());
}

void PaymentFilesTest::lineEnds_data()
{
    QTest::addColumn<QByteArray>("end");
    for (const char *name :
         {"ktl-two-accounts.ktl", "tito-months.txt", "op-2026.csv", "nordea-2018.txt", "camt053-v08.xml"}) {
        QTest::newRow(qPrintable(QString(QLatin1String(name) + QLatin1String(" LF")))) << QByteArray("\n");
        QTest::newRow(qPrintable(QString(QLatin1String(name) + QLatin1String(" CRLF")))) << QByteArray("\r\n");
        QTest::newRow(qPrintable(QString(QLatin1String(name) + QLatin1String(" blanks")))) << QByteArray("   \r\n");
    }
}

void PaymentFilesTest::lineEnds()
{
    QFETCH(QByteArray, end);
    const QString name = QString::fromLatin1(QTest::currentDataTag()).section(QLatin1Char(' '), 0, 0);
    QByteArray bytes = paymentData(m_folder, name);
    const QStringList expected = PaymentLog::read(bytes);
    bytes.replace("\r\n", "\n");
    if (bytes.endsWith('\n'))
        bytes.chop(1); // no last line end
    QVERIFY(!expected.isEmpty());
    QCOMPARE(PaymentLog::read(bytes.replace("\n", end)), expected);
}

void PaymentFilesTest::recognition_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("known");
    QTest::newRow("empty file") << QByteArray() << false;
    QTest::newRow("mark only") << QByteArray("\xEF\xBB\xBF") << false;
    QTest::newRow("lower case") << QByteArray("t00322") << false;
    QTest::newRow("blank in front") << QByteArray(" T00322") << false;
    QTest::newRow("mark behind the quote") << QByteArray("\"\xEF\xBB\xBFKir") << false;
    QTest::newRow("two quotes") << QByteArray("\"\"Kir") << false;
    QTest::newRow("Siirto") << QByteArray("Siirto,Viite") << false;
    QTest::newRow("Siirron") << QByteArray("Siirron tila,Viite") << true;
    QTest::newRow("xml beyond the sample") << QByteArray(198, ' ') + "xml" << false;
    QTest::newRow("xml within the sample") << QByteArray(197, ' ') + "xml" << true;
    QTest::newRow("Document alone") << QByteArray("<n:Document/>") << true;
}

void PaymentFilesTest::recognition()
{
    QFETCH(QByteArray, bytes);
    bool known = false;
    PaymentLog::read(bytes, &known);
    QTEST(known, "known");
}

void PaymentFilesTest::failureStays()
{
    QFile good(m_folder + QStringLiteral("/ktl-utf8.ktl"));
    QTemporaryFile unknown;
    QVERIFY(good.open(QIODevice::ReadOnly) && unknown.open());
    PaymentLog log;
    PaymentFileReader reader(&log);
    QVERIFY(good.seek(50)); // the file is read from its beginning all the same
    QVERIFY(reader.readFile(good));
    QCOMPARE(log.lines.size(), 1);
    QVERIFY(!reader.readFile(unknown));
    QCOMPARE(reader.lastError(), QStringLiteral("Tuntematon tiedostomuoto"));
    QVERIFY(reader.iban().isEmpty() && !reader.entryDate().isValid() && reader.amount() == 0);
    QVERIFY(reader.readFile(good));
    QVERIFY(reader.lastError().isEmpty());
}

/** Either form of an account comes with the other. */
void PaymentFilesTest::bban()
{
    for (const char *name : {"ktl-utf8.ktl", "tito-utf8.txt", "nordea-2018.txt", "camt054-v02.xml"}) {
        QFile file(m_folder + QLatin1Char('/') + QLatin1String(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        PaymentLog log;
        PaymentFileReader reader(&log);
        QVERIFY(reader.readFile(file));
        QCOMPARE(reader.bban(), QStringLiteral("12345600000785"));
        QCOMPARE(reader.iban(), QStringLiteral("FI2112345600000785"));
    }
}

void PaymentFilesTest::charset()
{
    QCOMPARE(PaymentFileReader::guessCharset("Kirjausp\xE4iv\xE4")->name(), QByteArray("ISO-8859-1"));
    QCOMPARE(PaymentFileReader::guessCharset("Kirjausp\xC3\xA4iv\xC3\xA4")->name(), QByteArray("UTF-8"));
}

void PaymentFilesTest::csvDate_data()
{
    QTest::addColumn<QString>("date");
    QTest::newRow("Maksettu 5.3.2015") << "2015-03-05";
    QTest::newRow("2015.03.05") << "2015-03-05";
    QTest::newRow("2015.3.5") << "";
    QTest::newRow("5.3.15") << "";
    QTest::newRow("31.2.2015") << "";
    QTest::newRow("2015-03-05") << "";
    QTest::newRow("31.2.2015 2015.03.05") << "";
}

void PaymentFilesTest::csvDate()
{
    const QDate date = PaymentFileReader::parseCSVDate(QString::fromLatin1(QTest::currentDataTag()));
    QTEST(date.toString(Qt::ISODate), "date");
}

void PaymentFilesTest::csvReference_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("reference");
    QTest::newRow("RF") << "RF71 1234 5600 0007 85"
                        << "12345600000785";
    QTest::newRow("zeros in front") << "00 12344"
                                    << "12344";
    QTest::newRow("RF and no more") << "RF71"
                                    << "71";
    QTest::newRow("lower case") << "rf7112344"
                                << "7112344";
    QTest::newRow("zeros behind RF") << "RF710012344"
                                     << "12344";
    QTest::newRow("zeros only") << "0000"
                                << "";
    QTest::newRow("other characters") << "1-2/3.4a4"
                                      << "12344";
    QTest::newRow("Arabic digits") << QString::fromUtf8("١٢٣") << QString::fromUtf8("١٢٣");
    QTest::newRow("superscript") << QString::fromUtf8("1²3") << "13";
}

void PaymentFilesTest::csvReference()
{
    QFETCH(QString, text);
    QTEST(PaymentFileReader::parseCSVReferenceNumber(text), "reference");
}

QTEST_APPLESS_MAIN(PaymentFilesTest)
#include "tst_paymentfiles.moc"
