#include "csvexport.h"

#include "constants.h"

CsvExport::CsvExport(const QString &fileName, const QString &delimiter)
    : m_file(fileName), m_csv(&m_stream),
      m_priceFormat(Constants::amountFractionDigits, Constants::amountMinFractionDigits),
      m_sumFormat(Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits),
      m_quantityFormat(Constants::quantityFractionDigits, Constants::quantityMinFractionDigits),
      m_percentageFormat(Constants::percentageFractionDigits, Constants::percentageMinFractionDigits)
{
    m_csv.setDelimiters(delimiter);
}

bool CsvExport::open()
{
    if (!m_file.open())
        return false;
    m_stream.setDevice(m_file.device());
    m_stream.setCodec("UTF-8");
    return true;
}

bool CsvExport::finish()
{
    m_stream.flush();
    m_stream.setDevice(nullptr);
    return m_file.commit();
}

QString CsvExport::price(long long amount) const
{
    return m_priceFormat.formatWithoutGrouping(static_cast<int>(amount));
}

QString CsvExport::sum(long long cents) const { return m_sumFormat.formatWithoutGrouping(static_cast<int>(cents)); }

QString CsvExport::quantity(long long amount) const
{
    return m_quantityFormat.formatWithoutGrouping(static_cast<int>(amount));
}

QString CsvExport::percentage(int hundredths) const { return m_percentageFormat.formatWithoutGrouping(hundredths); }

QString CsvExport::date(const QDate &date) { return QLocale::system().toString(date, QLocale::ShortFormat); }
