#include "csvexport.h"

#include "constants.h"
#include "outputfile.h"

CsvExport::CsvExport(OutputFile &file, const QString &delimiter)
    : m_stream(file.device()), m_csv(&m_stream),
      m_priceFormat(Constants::amountFractionDigits, Constants::amountMinFractionDigits),
      m_sumFormat(Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits),
      m_quantityFormat(Constants::quantityFractionDigits, Constants::quantityMinFractionDigits),
      m_percentageFormat(Constants::percentageFractionDigits, Constants::percentageMinFractionDigits)
{
    m_stream.setCodec("UTF-8");
    m_csv.setDelimiters(delimiter);
}

bool CsvExport::save(const QString &fileName, const QString &delimiter, QString &error,
                     const std::function<void(CsvExport &)> &write)
{
    OutputFile file(fileName);
    bool ok = file.open();
    if (ok) {
        CsvExport out(file, delimiter);
        write(out);
        out.m_stream.flush();
        ok = file.commit();
    }
    if (!ok)
        error = file.errorString();
    return ok;
}

QString CsvExport::price(long long amount) const { return m_priceFormat.formatWithoutGrouping(amount); }

QString CsvExport::sum(long long cents) const { return m_sumFormat.formatWithoutGrouping(cents); }

QString CsvExport::quantity(long long amount) const { return m_quantityFormat.formatWithoutGrouping(amount); }

QString CsvExport::percentage(int hundredths) const { return m_percentageFormat.formatWithoutGrouping(hundredths); }

QString CsvExport::date(const QDate &date) { return QLocale::system().toString(date, QLocale::ShortFormat); }
