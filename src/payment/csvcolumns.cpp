#include "csvcolumns.h"

namespace {

struct Title {
    CSVColumns::Column column;
    const char *text; ///< UTF-8, in lower case
};

// In a row of titles the first that fits takes the column, so the order here does not matter. A title may go on with
// further words: "määrä euroa", "saajan tilinumero ja pankin BIC".
constexpr Title allTitles[] = {
    {CSVColumns::entryDate, "kirjauspäivä"},
    {CSVColumns::entryDate, "kirjauspäivämäärä"},
    {CSVColumns::entryDate, "kirjauspvm"},
    {CSVColumns::entryDate, "booking date"},
    {CSVColumns::paymentDate, "maksupäivä"},
    {CSVColumns::paymentDate, "maksupvm"},
    {CSVColumns::paymentDate, "payment date"},
    {CSVColumns::valueDate, "arvopäivä"},
    {CSVColumns::valueDate, "arvopvm"},
    {CSVColumns::valueDate, "value date"},
    {CSVColumns::amount, "määrä"},
    {CSVColumns::amount, "summa"},
    {CSVColumns::amount, "amount"},
    {CSVColumns::reference, "viite"},
    {CSVColumns::reference, "viitenumero"},
    {CSVColumns::reference, "reference"},
    {CSVColumns::name, "saaja/maksaja"},
    {CSVColumns::name, "maksaja/saaja"},
    {CSVColumns::name, "saajan/maksajan nimi"},
    {CSVColumns::name, "maksajan nimi"},
    {CSVColumns::name, "nimi"},
    {CSVColumns::name, "name"},
    {CSVColumns::title, "otsikko"},
    {CSVColumns::title, "title"},
    {CSVColumns::payer, "maksaja"},
    {CSVColumns::payer, "sender"},
    {CSVColumns::payeeAccount, "maksunsaaja"},
    {CSVColumns::payeeAccount, "saajan tilinumero"},
    {CSVColumns::payeeAccount, "recipient"},
    {CSVColumns::account, "tilinumero"},
    {CSVColumns::account, "account number"},
    {CSVColumns::currency, "valuutta"},
    {CSVColumns::currency, "currency"},
    {CSVColumns::archiveId, "arkistointitunnus"},
    {CSVColumns::archiveId, "arkistotunnus"},
    {CSVColumns::archiveId, "arkistointikoodi"},
    {CSVColumns::archiveId, "archive id"},
};

QString plainTitle(const QString &text) { return text.simplified().normalized(QString::NormalizationForm_C).toLower(); }

bool matches(const QString &plain, const Title &title)
{
    const QString wanted = QString::fromUtf8(title.text);
    return plain == wanted || (plain.startsWith(wanted) && !plain.at(wanted.size()).isLetterOrNumber() &&
                               plain.at(wanted.size()) != QLatin1Char('/'));
}

} // namespace

CSVColumns::CSVColumns(const QStringList &titles) : CSVColumns()
{
    m_width = titles.size();
    for (int i = 0; i < titles.size(); ++i) {
        const QString plain = plainTitle(titles.at(i));
        for (const Title &title : allTitles) {
            if (!has(title.column) && matches(plain, title)) {
                m_indexes[title.column] = i;
                break;
            }
        }
    }
    if (!has(entryDate))
        m_indexes[entryDate] = m_indexes[valueDate]; // older files have no other date
}

bool CSVColumns::isTitle(const QString &text, Column column)
{
    const QString plain = plainTitle(text);
    for (const Title &title : allTitles) {
        if (title.column == column && matches(plain, title))
            return true;
    }
    return false;
}

QString CSVColumns::value(const QStringList &fields, Column column) const
{
    const int at = m_indexes[column];
    return at >= 0 && at < fields.size() ? fields.at(at).trimmed() : QString();
}

QString CSVColumns::missingTitle() const
{
    struct Needed {
        Column column;
        const char *title;
    };
    static constexpr Needed needed[] = {{entryDate, "Kirjauspäivä"}, {amount, "Määrä"}, {reference, "Viite"}};
    for (const Needed &one : needed) {
        if (!has(one.column))
            return QString::fromUtf8(one.title);
    }
    return QString();
}
