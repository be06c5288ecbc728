#include "paymentfilereader.h"

#include "camtreader.h"
#include "constants.h"
#include "csvnordeareader.h"
#include "csvopreader.h"
#include "easreader.h"
#include "irpreader.h"
#include "paymentlistener.h"
#include "paymenttext.h"

#include <QFile>
#include <QTextCodec>

namespace {

constexpr int sampleSize = 200;
constexpr int maxFoundLength = 200; // of a text in a message
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";
constexpr char latin1LetterAe = '\xE4';

struct Format {
    const char *beginning;
    void (*read)(PaymentFileReader &, QFile &, const QByteArray &sample);
};

void readNordea(PaymentFileReader &reader, QFile &file, const QByteArray &sample)
{
    const QString delimiter = sample.contains('\t') ? QStringLiteral("\t") : QStringLiteral(",");
    reader.readCSVNordeaFile(file, delimiter, PaymentFileReader::guessCharset(sample));
}

template <void (PaymentFileReader::*function)(QFile &)>
void call(PaymentFileReader &reader, QFile &file, const QByteArray &)
{
    (reader.*function)(file);
}

// The first that fits decides.
constexpr Format formats[] = {
    {"T00", call<&PaymentFileReader::readEASFile>},
    {"Kir", call<&PaymentFileReader::readCSVOpFile>},
    {"Til", readNordea},
    {"Siirron", readNordea},
    {"0", call<&PaymentFileReader::readIRPFile>},
};

} // namespace

PaymentFileReader::PaymentFileReader(PaymentListener *listener, QObject *parent)
    : QObject(parent), m_listener(listener),
      m_amountFormat(Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits)
{
}

bool PaymentFileReader::readFile(QFile &file)
{
    m_lastError.clear();
    m_payment = PaymentRecord();
    if (!file.isSequential())
        file.seek(0);
    QByteArray sample = file.peek(sampleSize); // leaves the position, also in a pipe
    if (sample.startsWith(byteOrderMark))
        sample.remove(0, 3);
    if (sample.startsWith('"'))
        sample.remove(0, 1);
    for (const Format &format : formats) {
        if (sample.startsWith(format.beginning)) {
            format.read(*this, file, sample);
            return true;
        }
    }
    if (sample.contains("xml") || sample.contains("Document")) {
        readXMLFile(file);
        return true;
    }
    m_lastError = tr("Tuntematon tiedostomuoto");
    return false;
}

void PaymentFileReader::readEASFile(QFile &file)
{
    m_format = "eas";
    EASReader(*this).read(file);
}

void PaymentFileReader::readIRPFile(QFile &file)
{
    m_format = "irp";
    IRPReader(*this).read(file);
}

void PaymentFileReader::readCSVOpFile(QFile &file)
{
    m_format = "op";
    CSVOpReader(*this, m_amountFormat).read(file, guessCharset(file.peek(sampleSize)));
}

void PaymentFileReader::readCSVNordeaFile(QFile &file, const QString &delimiter, QTextCodec *codec)
{
    m_format = "nordea";
    CSVNordeaReader(*this, m_amountFormat).read(file, delimiter, codec);
}

void PaymentFileReader::readXMLFile(QFile &file)
{
    m_format = "camt";
    CamtReader(*this, m_amountFormat).read(file);
}

QTextCodec *PaymentFileReader::guessCharset(const QByteArray &sample)
{
    return QTextCodec::codecForName(sample.contains(latin1LetterAe) ? "ISO-8859-1" : "UTF-8");
}

QDate PaymentFileReader::parseCSVDate(const QString &text) { return PaymentText::parseCSVDate(text); }

QString PaymentFileReader::parseCSVReferenceNumber(const QString &text)
{
    return PaymentText::parseCSVReferenceNumber(text);
}

void PaymentFileReader::accept(const PaymentRecord &payment)
{
    m_payment = payment;
    m_listener->payment(*this);
}

void PaymentFileReader::reject(qint64 lineNumber, const char *field, const QString &found)
{
    // Both arguments in one call: a "%2" in the file's text stays as it is.
    m_lastError = tr("Invalid %1: %2").arg(QLatin1String(field), found.left(maxFoundLength));
    m_listener->error(lineNumber, m_lastError);
}
