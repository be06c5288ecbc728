#ifndef CSVNORDEAREADER_H
#define CSVNORDEAREADER_H

#include <QString>

class DecimalFormat;
class PaymentSink;
class QIODevice;
class QTextCodec;

/**
 * Reads the account export of Nordea that begins with the account's number or with a title "Tilinumero" or
 * "Siirron …". The export that begins with "Kirjauspäivä" goes to CSVOpReader; the same titles serve both.
 */
class CSVNordeaReader {
public:
    /** Neither is owned. @param amountFormat  of cents */
    CSVNordeaReader(PaymentSink &sink, const DecimalFormat &amountFormat) : m_sink(sink), m_amountFormat(amountFormat)
    {
    }

    /**
     * @param device     open for reading
     * @param delimiter  a tab or a comma; text in a tab file holds commas
     */
    void read(QIODevice &device, const QString &delimiter, QTextCodec *codec);

private:
    PaymentSink &m_sink;                 ///< not owned
    const DecimalFormat &m_amountFormat; ///< not owned
};

#endif
