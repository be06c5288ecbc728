#include "csvnordeareader.h"

#include "csvpaymentreader.h"

void CSVNordeaReader::read(QIODevice &device, const QString &delimiter, QTextCodec *codec)
{
    CSVPaymentReader reader(m_sink, m_amountFormat);
    reader.read(device, delimiter, codec);
}
