#ifndef CSVOPREADER_H
#define CSVOPREADER_H

class DecimalFormat;
class PaymentSink;
class QIODevice;
class QTextCodec;

/**
 * Reads the account export of OP, and every other one whose first title is "Kirjauspäivä": semicolons, the newer ones
 * with all fields quoted and `ref=` in front of references.
 */
class CSVOpReader {
public:
    /** Neither is owned. @param amountFormat  of cents */
    CSVOpReader(PaymentSink &sink, const DecimalFormat &amountFormat) : m_sink(sink), m_amountFormat(amountFormat) {}

    /** @param device  open for reading */
    void read(QIODevice &device, QTextCodec *codec);

private:
    PaymentSink &m_sink;                 ///< not owned
    const DecimalFormat &m_amountFormat; ///< not owned
};

#endif
