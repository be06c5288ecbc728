#ifndef PAYMENTLOG_H
#define PAYMENTLOG_H

#include "paymentfilereader.h"
#include "paymentlistener.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryFile>

/** Writes down what a reader reports: `line|entry date|payment date|cents|reference|IBAN|archive id|name`,
 * `!line|message`. */
class PaymentLog : public PaymentListener {
public:
    QStringList lines;

    void payment(const PaymentFileReader &reader) override
    {
        QStringList fields{QString::number(reader.lineNumber()),
                           reader.entryDate().toString(Qt::ISODate),
                           reader.paymentDate().toString(Qt::ISODate),
                           QString::number(reader.amount()),
                           reader.referenceNumber(),
                           reader.iban(),
                           reader.archiveId(),
                           reader.payerName()};
        if (reader.isCorrection())
            fields += QStringLiteral("correction");
        lines += fields.join(QLatin1Char('|'));
    }

    void error(qint64 lineNumber, const QString &message) override
    {
        lines += QStringLiteral("!%1|%2").arg(QString::number(lineNumber), message);
    }

    /** @return what the file of these bytes gives; empty with ok false when its format is not known */
    static QStringList read(const QByteArray &bytes, bool *ok = nullptr)
    {
        QTemporaryFile file;
        PaymentLog log;
        PaymentFileReader reader(&log);
        const bool written = file.open() && file.write(bytes) == bytes.size() && file.flush();
        const bool known = written && reader.readFile(file);
        if (ok)
            *ok = known;
        return log.lines;
    }
};

/** @return the bytes of a file of tests/data/payments, null when it cannot be read */
inline QByteArray paymentData(const QString &folder, const QString &name)
{
    QFile file(folder + QLatin1Char('/') + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

#endif
