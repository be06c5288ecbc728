#ifndef CAMTREADER_H
#define CAMTREADER_H

#include "accountnumber.h"
#include "camtentry.h"

#include <QCoreApplication>
#include <QXmlStreamReader>

#include <optional>

class DecimalFormat;
class PaymentSink;
class QIODevice;

/**
 * Reads ISO 20022 account reports: camt.053 (statement), camt.054 (notification) and camt.052 (intraday report). It
 * goes by local names, so that any prefix and every version from 02 on will do; where versions differ all forms are
 * taken. No more than one transaction is held in memory. Document type declarations are refused: no bank writes them,
 * and entities could make a small file huge.
 */
class CamtReader {
    Q_DECLARE_TR_FUNCTIONS(CamtReader)
public:
    /** Neither is owned. @param amountFormat  of cents */
    CamtReader(PaymentSink &sink, const DecimalFormat &amountFormat) : m_sink(sink), m_amountFormat(amountFormat) {}

    /** @param device  open for reading */
    void read(QIODevice &device);

private:
    struct Report {
        QString timestamp;
        AccountNumber account;
    };
    struct Entry {
        CamtEntryHead head;
        std::optional<CamtEntry> payments; ///< from the first transaction on
    };

    /** An element that is wanted, by its path below the one that is being read. */
    template <class Target> struct Path {
        QLatin1String path;
        void (*read)(CamtReader &, Target &); ///< reads up to the element's end
    };
    template <class Target, std::size_t size>
    void readElement(const Path<Target> (&paths)[size], Target &target, QLatin1String parent = QLatin1String(""));

    template <auto member, class Target> static void readText(CamtReader &reader, Target &target);
    template <auto member> static void readHeadText(CamtReader &reader, Entry &entry);
    template <auto member> static void readAmount(CamtReader &reader, CamtTransaction &transaction);

    static void readMessage(CamtReader &reader, CamtTransaction &transaction);
    static void readReference(CamtReader &reader, CamtTransaction &transaction);

    void readTopElement();
    void readReportElement();
    void readAcctElement(Report &report);
    void readNtryElement(const Report &report);
    void readDtElement(QString &date);
    void readTxDtlsElement(Entry &entry);

    QString text();
    QString identification();
    CamtAmount amount();
    qint64 charge();
    void skipElement();
    bool readWithin(int &depth);
    void checkDepth(int depth);
    void rejectXml(const QString &cause);

    PaymentSink &m_sink;
    const DecimalFormat &m_amountFormat;
    QXmlStreamReader m_xml;
    QString m_groupTimestamp; ///< of the whole file
    QString m_content;        ///< the name of the message within the document
    int m_depth = 0;          ///< of open elements that no other function reads
    bool m_hasReport = false;
    bool m_rootClosed = false;
};

#endif
