#include "failuresentences.h"

#include "texts.h"

namespace {

struct FailureRow {
    Failure::Code code;
    Problem::Code problem;
    const char *option; ///< at fault, null for none
    const char *see;    ///< a command that shows more, null for none
    const char *text;
};

struct NoticeRow {
    Notice::Code code;
    const char *text;
};

constexpr FailureRow failures[] = {
    {Failure::database, Problem::database, nullptr, nullptr, "%1"},
    {Failure::connectionLost, Problem::database, nullptr, nullptr, TEXT("yhteys tietokantaan katkesi")},
    {Failure::databaseLocked, Problem::locked, nullptr, nullptr, TEXT("toinen ohjelma varaa tietokantaa: %1")},
    {Failure::databaseNumberTaken, Problem::exists, "number", "billora company list",
     TEXT("yrityksen numero on jo käytössä: %1")},
    {Failure::databaseNumberUnknown, Problem::notFound, "company", "billora company list",
     TEXT("yritystä ei löytynyt: %1")},
    {Failure::settingsFileUnwritable, Problem::file, nullptr, nullptr, TEXT("asetustiedostoa ei voi kirjoittaa: %1")},
    {Failure::layoutNameTaken, Problem::exists, "name", "billora layout list",
     TEXT("laskupohjan nimi on jo käytössä: \"%1\"")},
    {Failure::fileUnreadable, Problem::file, "file", nullptr, TEXT("tiedostoa %1 ei voi lukea: %2")},
    {Failure::paymentFormatUnknown, Problem::badValue, "file", nullptr, TEXT("tiedostoa %1 ei voi lukea: %2")},
    {Failure::noDatabaseListed, Problem::noCompany, nullptr, "billora init", TEXT("yritystä ei ole vielä luotu")},
    {Failure::databaseMissing, Problem::noCompany, nullptr, "billora company list",
     TEXT("tietokantaa ei löytynyt: %1")},
    {Failure::bankAccountIdUnknown, Problem::notFound, "account", "billora account list",
     TEXT("pankkitiliä ei löytynyt: id:%1")},
    {Failure::bankAccountNameUnknown, Problem::notFound, "account", "billora account list",
     TEXT("pankkitiliä ei löytynyt: \"%1\"")},
    {Failure::bankAccountNameAmbiguous, Problem::ambiguous, "account", "billora account list",
     TEXT("pankkitilejä on useita: \"%1\"")},
    {Failure::customerIdUnknown, Problem::notFound, "customer", "billora customer list",
     TEXT("asiakasta ei löytynyt: id:%1")},
    {Failure::customerNumberUnknown, Problem::notFound, "customer", "billora customer list",
     TEXT("asiakasta ei löytynyt numerolla %1")},
    {Failure::customerNameUnknown, Problem::notFound, "customer", "billora customer list",
     TEXT("asiakasta ei löytynyt: \"%1\"")},
    {Failure::customerNameAmbiguous, Problem::ambiguous, "customer", "billora customer list",
     TEXT("asiakkaita on useita: \"%1\"")},
    {Failure::productIdUnknown, Problem::notFound, "product", "billora product list",
     TEXT("tuotetta ei löytynyt: id:%1")},
    {Failure::productNumberUnknown, Problem::notFound, "product", "billora product list",
     TEXT("tuotetta ei löytynyt: \"%1\"")},
    {Failure::productNumberAmbiguous, Problem::ambiguous, "product", "billora product list",
     TEXT("tuotteita on useita: \"%1\"")},
    {Failure::productNameUnknown, Problem::notFound, "product", "billora product list",
     TEXT("tuotetta ei löytynyt: \"%1\"")},
    {Failure::productNameAmbiguous, Problem::ambiguous, "product", "billora product list",
     TEXT("tuotteita on useita: \"%1\"")},
    {Failure::invoiceIdUnknown, Problem::notFound, "invoice", "billora invoice list",
     TEXT("laskua ei löytynyt: id:%1")},
    {Failure::invoiceNumberUnknown, Problem::notFound, "invoice", "billora invoice list",
     TEXT("laskua ei löytynyt numerolla %1")},
    {Failure::invoiceItemIdUnknown, Problem::notFound, "row", "billora invoice show",
     TEXT("laskuriviä ei löytynyt: id:%1")},
    {Failure::paymentIdUnknown, Problem::notFound, "payment", "billora payment list",
     TEXT("suoritusta ei löytynyt: id:%1")},
    {Failure::documentsUnavailable, Problem::file, nullptr, nullptr,
     TEXT("asiakirjoja tekevää osaa ei voi ladata: %1")},
    {Failure::layoutUnknown, Problem::notFound, "layout", "billora layout list",
     TEXT("laskupohjaa ei löytynyt: \"%1\"")},
    {Failure::scriptUnreadable, Problem::file, nullptr, nullptr, TEXT("laskupohjaa ei voi lukea")},
    {Failure::scriptException, Problem::rule, nullptr, nullptr, TEXT("laskupohjan virhe: %1 (rivi %2)")},
    {Failure::scriptWithoutFunction, Problem::rule, nullptr, nullptr,
     TEXT("laskupohjassa ei ole tulostavaa funktiota")},
    {Failure::fileUnwritable, Problem::file, nullptr, nullptr, TEXT("tiedostoa %1 ei voi kirjoittaa: %2")},
    {Failure::fileExists, Problem::exists, nullptr, nullptr, TEXT("tiedosto on jo olemassa: %1")},
    {Failure::invoiceTotalTooLarge, Problem::rule, nullptr, nullptr, TEXT("laskun loppusumma on liian suuri")},
    {Failure::rowTotalTooLarge, Problem::rule, "quantity", nullptr, TEXT("rivin summa on liian suuri")},
    {Failure::invoiceCustomerMissing, Problem::missingOption, "customer", nullptr, TEXT("asiakas puuttuu")},
    {Failure::noNextInvoiceNumber, Problem::rule, "number", nullptr, TEXT("seuraavaa laskunumeroa ei ole")},
    {Failure::noNextCustomerNumber, Problem::rule, "number", nullptr, TEXT("seuraavaa asiakasnumeroa ei ole")},
    {Failure::paymentTermsBeyondCalendar, Problem::badValue, "paymentTerms", nullptr,
     TEXT("maksuehto vie kalenterin yli: \"%1\"")},
};

constexpr NoticeRow notices[] = {
    {Notice::openingSqlite, TEXT("avataan SQLite-tietokanta %1")},
    {Notice::openingPostgresql, TEXT("avataan PostgreSQL-tietokanta %1")},
    {Notice::savingInvoice, TEXT("tallennetaan lasku %1")},
    {Notice::savingRow, TEXT("tallennetaan laskun id:%1 rivi %2")},
    {Notice::savingPayment, TEXT("tallennetaan suoritus")},
};

QString filled(const char *finnish, const QStringList &arguments)
{
    const QString sentence = ::text(finnish);
    switch (arguments.size()) { // in one step: a "%2" inside an argument stays as it is
    case 0:
        return sentence;
    case 1:
        return sentence.arg(arguments.at(0));
    default:
        return sentence.arg(arguments.at(0), arguments.at(1));
    }
}

} // namespace

Problem FailureSentences::problem(Failure::Code code, const QStringList &arguments)
{
    Problem problem;
    for (const FailureRow &row : failures) {
        if (row.code != code)
            continue;
        problem.code = row.problem;
        problem.message = filled(row.text, arguments);
        problem.option = QLatin1String(row.option);
        problem.see = QLatin1String(row.see);
        if (row.option && !arguments.isEmpty())
            problem.value = arguments.first();
        return problem;
    }
    problem.code = Problem::internal;
    problem.message = QString::number(code);
    return problem;
}

QString FailureSentences::text(Notice::Code code, const QStringList &arguments)
{
    for (const NoticeRow &row : notices) {
        if (row.code == code)
            return filled(row.text, arguments);
    }
    return QString();
}
