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
    /** A `Stmt`, `Ntfctn` or `Rpt`. */
    struct Report {
        QString timestamp;     ///< the report's own, else the group's CreDtTm
        AccountNumber account; ///< empty, or as written, when its form is not known
    };
    /** An `Ntry` as far as it was read. */
    struct Entry {
        CamtEntryHead head;                ///< complete when the first `TxDtls` begins
        std::optional<CamtEntry> payments; ///< from the first transaction on
    };

    /** An element that is wanted, by its path below the one that is being read. */
    template <class Target> struct Path {
        QLatin1String path;                   ///< local names with slashes between, `RmtInf/Ustrd`
        void (*read)(CamtReader &, Target &); ///< reads up to the element's end
    };
    template <class Target, std::size_t size>
    /**
     * Enters what lies on a path and passes over the rest; returns at the end of the current element. The first path
     * that fits counts. @param parent  the part of the paths that was followed
     */
    void readElement(const Path<Target> (&paths)[size], Target &target, QLatin1String parent = QLatin1String(""));

    /** For paths: stores the element's text, or its amount, in the member. */
    template <auto member, class Target> static void readText(CamtReader &reader, Target &target);
    template <auto member> static void readHeadText(CamtReader &reader, Entry &entry);
    template <auto member> static void readAmount(CamtReader &reader, CamtTransaction &transaction);

    static void readMessage(CamtReader &reader, CamtTransaction &transaction); ///< keeps two at most
    /** Keeps the first that is a reference. */
    static void readReference(CamtReader &reader, CamtTransaction &transaction);

    /** Each begins at the start of its element and returns at its end; damage of the XML stops the whole reading. */
    void readTopElement();
    void readReportElement();
    void readAcctElement(Report &report);
    void readNtryElement(const Report &report);
    void readDtElement(QString &date);
    void readTxDtlsElement(Entry &entry);

    QString text(); ///< of the element and its children, white space simplified; cut at the schemas' 500 characters
    QString identification(); ///< empty for NOTPROVIDED
    CamtAmount amount();      ///< currency by the `Ccy` attribute
    qint64 charge();          ///< cents; 0 for what is no amount
    void skipElement();       ///< without a look at its content
    /**
     * @param depth  counts the open elements, the one read included
     * @return false at its end and at the end of the file
     */
    bool readWithin(int &depth);
    void checkDepth(int depth);           ///< raises an XML error beyond 100
    void rejectXml(const QString &cause); ///< at the place where the parser stands

    PaymentSink &m_sink;                 ///< not owned
    const DecimalFormat &m_amountFormat; ///< not owned
    QXmlStreamReader m_xml;              ///< of the guarded device
    QString m_groupTimestamp;            ///< of the whole file
    QString m_content;                   ///< the name of the message within the document
    int m_depth = 0;                     ///< of open elements that no other function reads
    bool m_hasReport = false;            ///< else the file is rejected at its end
    bool m_rootClosed = false;           ///< what follows is a second document
};

#endif
