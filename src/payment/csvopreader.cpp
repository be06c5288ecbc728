#include "csvopreader.h"

#include "csvpaymentreader.h"

void CSVOpReader::read(QIODevice &device, QTextCodec *codec)
{
    CSVPaymentReader reader(m_sink, m_amountFormat);
    reader.read(device, QStringLiteral(";"), codec);
}
