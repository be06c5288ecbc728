#include "paymentlog.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <random>

/** Damages the sample files at random, always the same way: whatever the bytes, reading ends and tells the truth. */
class PaymentMutationsTest : public QObject {
    Q_OBJECT
private slots:
    void anyBytes_data();
    void anyBytes();
    void damageStaysLocal_data();
    void damageStaysLocal();

private:
    const QString m_folder = QFINDTESTDATA("../data/payments");
};

namespace {

constexpr int mutationsPerFile = 150;

class Mutator {
public:
    explicit Mutator(unsigned seed) : m_random(seed) {}

    int below(int limit) { return limit > 0 ? static_cast<int>(m_random() % static_cast<unsigned>(limit)) : 0; }

    /** Bytes that formats give a meaning to, beside arbitrary ones. */
    char byte()
    {
        static const QByteArray meaningful = "\"\";,\t\n\r<>&/=0019TX+-. \x1A\xEF\xE4\xC3\xFF";
        return below(2) == 0 ? meaningful.at(below(meaningful.size())) : static_cast<char>(below(256));
    }

    QByteArray mutate(QByteArray bytes)
    {
        for (int edits = 1 + below(4); edits > 0 && !bytes.isEmpty(); --edits) {
            const int at = below(bytes.size());
            const int length = 1 + below(40);
            switch (below(6)) {
            case 0:
                bytes[at] = byte();
                break;
            case 1:
                bytes.insert(at, byte());
                break;
            case 2:
                bytes.remove(at, length);
                break;
            case 3:
                bytes.insert(below(bytes.size()), bytes.mid(at, 10 * length));
                break;
            case 4:
                bytes.truncate(at);
                break;
            default:
                bytes.insert(at, QByteArray(length, byte()));
                break;
            }
        }
        return bytes;
    }

private:
    std::mt19937 m_random;
};

/** Payments without their line numbers. */
QStringList payments(const QStringList &lines)
{
    QStringList result;
    for (const QString &line : lines) {
        if (!line.startsWith(QLatin1Char('!')))
            result += line.section(QLatin1Char('|'), 1);
    }
    return result;
}

} // namespace

void PaymentMutationsTest::anyBytes_data()
{
    QTest::addColumn<int>("seed");
    QStringList names = QDir(m_folder).entryList(QDir::Files);
    QVERIFY(names.size() > 20);
    int seed = 1;
    for (const QString &name : names) {
        if (!name.endsWith(QLatin1String(".expected")))
            QTest::newRow(qPrintable(name)) << seed++;
    }
}

void PaymentMutationsTest::anyBytes()
{
    QFETCH(int, seed);
    const QByteArray original = paymentData(m_folder, QLatin1String(QTest::currentDataTag()));
    const QRegularExpression payment(
        QStringLiteral("^(\\d+)\\|\\d{4}-\\d\\d-\\d\\d\\|\\d{4}-\\d\\d-\\d\\d\\|-?\\d{1,10}\\|(?!0)[^|]*\\|"));
    const QRegularExpression error(QStringLiteral("^!(\\d+)\\|Invalid [^:]+: "));
    Mutator mutator(static_cast<unsigned>(seed));
    for (int i = 0; i < mutationsPerFile; ++i) {
        const QByteArray bytes = mutator.mutate(original);
        const int lineCount = bytes.count('\n') + bytes.count('\r') + 1;
        for (const QString &line : PaymentLog::read(bytes)) {
            const QRegularExpressionMatch match = (line.startsWith(QLatin1Char('!')) ? error : payment).match(line);
            const int number = match.captured(1).toInt();
            QVERIFY2(match.hasMatch() && number >= 1 && number <= lineCount, qPrintable(line));
        }
    }
}

void PaymentMutationsTest::damageStaysLocal_data()
{
    QTest::addColumn<int>("firstLine");
    QTest::newRow("ktl-two-accounts.ktl") << 2;
    QTest::newRow("op-2012.csv") << 2;
    QTest::newRow("nordea-2018.txt") << 5;
    QTest::newRow("nordea-2025.csv") << 2;
    QTest::newRow("nordea-comma.csv") << 2;
}

/** One byte of one line changed: the payments of all other lines are read as before. */
void PaymentMutationsTest::damageStaysLocal()
{
    QFETCH(int, firstLine);
    const QByteArray original = paymentData(m_folder, QLatin1String(QTest::currentDataTag()));
    const QList<QByteArray> lines = original.split('\n');
    const QStringList all = PaymentLog::read(original);
    QVERIFY(all.size() >= 3);
    Mutator mutator(4711);
    for (int i = 0; i < mutationsPerFile; ++i) {
        const int damaged = firstLine - 1 + mutator.below(lines.size() - firstLine + 1);
        QList<QByteArray> changed = lines;
        if (changed.at(damaged).isEmpty())
            continue;
        changed[damaged][mutator.below(changed.at(damaged).size())] = mutator.byte();
        const QByteArray bytes = changed.join('\n');
        QStringList missing =
            payments(all.filter(QRegularExpression(QStringLiteral("^(?!!?%1\\|)").arg(QString::number(damaged + 1)))));
        for (const QString &payment : payments(PaymentLog::read(bytes)))
            missing.removeOne(payment);
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n')) + QString::fromLatin1(bytes)));
    }
}

QTEST_APPLESS_MAIN(PaymentMutationsTest)
#include "tst_paymentmutations.moc"
