#ifndef PAYMENTFILEREADER_H
#define PAYMENTFILEREADER_H

#include "decimalformat.h"
#include "paymentsink.h"

#include <QObject>

class PaymentListener;
class QFile;
class QTextCodec;

/**
 * Reads a bank's file of payments: account statement or reference payments in their fixed-width forms, the CSV exports
 * of OP and Nordea, or ISO 20022 camt XML, told apart by their first bytes. What it finds goes to a listener, one
 * payment at a time; a file of any size takes no more memory than a small one.
 */
class PaymentFileReader : public QObject, private PaymentSink {
    Q_OBJECT
public:
    /** @param listener  not owned; must outlive the reading */
    explicit PaymentFileReader(PaymentListener *listener, QObject *parent = nullptr);

    /**
     * Reads the whole file from its beginning.
     * @param file  open for reading
     * @return false when the format is not known. True says nothing about damage: that goes to the listener, and the
     *         last of it stays in lastError().
     */
    bool readFile(QFile &file);

    QString lastError() const { return m_lastError; } ///< empty when all was read

    // The payment that is being reported; see PaymentRecord.
    /**
     * The payment that is being reported; see PaymentRecord. Valid from within PaymentListener::payment() until the
     * next one.
     */
    QString timestamp() const { return m_payment.timestamp; }
    QString iban() const { return m_payment.iban; }
    QString bban() const { return m_payment.bban; }
    QDate entryDate() const { return m_payment.entryDate; }
    QDate paymentDate() const { return m_payment.paymentDate; }
    int amount() const { return m_payment.amount; } ///< cents
    QString referenceNumber() const { return m_payment.referenceNumber; }
    QString payerName() const { return m_payment.payerName; }
    QString archiveId() const { return m_payment.archiveId; }
    /** Which kind of file is read: "eas", "irp", "op", "nordea" or "camt". Archive ids agree within one kind. */
    QString format() const { return QLatin1String(m_format); }
    bool isCorrection() const { return m_payment.correction; }
    qint64 lineNumber() const { return m_payment.lineNumber; } ///< from 1

    // The reader of each format, from the place where the file stands.
    /** The reader of each format, from the place where the file stands: what cannot be read goes to the listener. */
    void readEASFile(QFile &file);
    void readIRPFile(QFile &file);
    void readCSVOpFile(QFile &file);
    void readCSVNordeaFile(QFile &file, const QString &delimiter, QTextCodec *codec);
    void readXMLFile(QFile &file);

    /** ISO-8859-1 where the sample has its letter "ä", UTF-8 otherwise. */
    static QTextCodec *guessCharset(const QByteArray &sample);
    /** See PaymentText. */
    static QDate parseCSVDate(const QString &text);
    static QString parseCSVReferenceNumber(const QString &text);

private:
    void accept(const PaymentRecord &payment) override; ///< hands the payment to the listener
    /** Makes the message of the listener; a long text is cut to 200 characters. */
    void reject(qint64 lineNumber, const char *field, const QString &found) override;

    PaymentListener *m_listener;  ///< not owned
    QString m_lastError;          ///< the text of the last damage, as the listener got it
    const char *m_format = "";    ///< a literal; empty before the first file
    PaymentRecord m_payment;      ///< the last one that was accepted
    DecimalFormat m_amountFormat; ///< of cents
};

#endif
