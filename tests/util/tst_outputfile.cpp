#include "outputfile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

class OutputFileTest : public QObject {
    Q_OBJECT
private slots:
    void init();
    void replacesOnCommitOnly();
    void followsLink();
    void failures_data();
    void failures();
    void deviceStaysDevice();

private:
    QByteArray content(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_name;
};

void OutputFileTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_name = m_folder->filePath("a.csv");
    QFile file(m_name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("old");
}

QByteArray OutputFileTest::content(const QString &name) const
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void OutputFileTest::replacesOnCommitOnly()
{
    for (const bool commit : {false, true}) {
        {
            OutputFile file(m_name);
            QVERIFY(file.open());
            file.device()->write("new text");
            QCOMPARE(content(m_name), QByteArray("old"));
            if (commit)
                QVERIFY(file.commit());
        }
        QCOMPARE(content(m_name), QByteArray(commit ? "new text" : "old"));
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.csv"));
    }
}

void OutputFileTest::followsLink()
{
    const QString link = m_folder->filePath("link.csv");
    QVERIFY(QFile::link(m_name, link));
    OutputFile file(link);
    QVERIFY(file.open());
    file.device()->write("new");
    QVERIFY(file.commit());
    QCOMPARE(content(m_name), QByteArray("new"));
    QVERIFY(QFileInfo(link).isSymLink());
}

void OutputFileTest::failures_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("opens");
    QTest::newRow("no such folder") << "/nonexistent/a.csv" << false;
    QTest::newRow("a folder") << QDir::tempPath() << false;
    QTest::newRow("a full disk") << "/dev/full" << true;
}

void OutputFileTest::failures()
{
    QFETCH(QString, name);
    OutputFile file(name);
    QTEST(file.open(), "opens");
    if (QTest::currentDataTag() == QByteArray("a full disk")) {
        file.device()->write("new");
        QVERIFY(!file.commit());
    }
    QVERIFY(!file.errorString().isEmpty());
}

/** Replacing a device by a file, as root may, would break the machine. */
void OutputFileTest::deviceStaysDevice()
{
    OutputFile file("/dev/null");
    QVERIFY(file.open());
    file.device()->write("new");
    QVERIFY(file.commit());
    const QFileInfo device("/dev/null");
    QVERIFY(device.exists() && !device.isFile());
}

QTEST_APPLESS_MAIN(OutputFileTest)
#include "tst_outputfile.moc"
