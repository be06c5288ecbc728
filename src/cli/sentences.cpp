#include "sentences.h"

#include <QCoreApplication>

#include <cstddef>

namespace {

struct FailureSentence {
    Failure::Code code;
    ExitCode exitCode;
    const char *text;
};

struct NoticeSentence {
    Notice::Code code;
    const char *text;
};

constexpr char context[] = "Sentences";
constexpr ExitCode badData = ExitCode::badData;

#define TEXT(sentence) QT_TRANSLATE_NOOP("Sentences", sentence)

constexpr FailureSentence failures[] = {
    {Failure::database, ExitCode::databaseFailure, "%1"},
    {Failure::connectionLost, ExitCode::databaseFailure, TEXT("Yhteys tietokantaan katkesi")},
    {Failure::databaseLocked, ExitCode::databaseFailure, "%1"},
    // The exit code stays: a data command without any database answers nothing.
    {Failure::noDatabaseListed, ExitCode::success, TEXT("Tietokanta-asetuksia ei löytynyt")},
    {Failure::databaseMissing, ExitCode::databaseFailure, TEXT("Tietokantaa ei löytynyt: %1")},
    {Failure::bankAccountIdUnknown, badData, TEXT("Pankkitiliä ei löytynyt tunnisteella %1")},
    {Failure::bankAccountNameUnknown, badData, TEXT("Pankkitiliä ei löytynyt nimellä %1")},
    {Failure::bankAccountNameAmbiguous, badData, TEXT("Nimellä %1 löytyi useita pankkitilejä")},
    {Failure::customerIdUnknown, badData, TEXT("Asiakasta ei löytynyt tunnisteella %1")},
    {Failure::customerNumberUnknown, badData, TEXT("Asiakasta ei löytynyt numerolla %1")},
    {Failure::customerNameUnknown, badData, TEXT("Asiakasta ei löytynyt nimellä %1")},
    {Failure::customerNameAmbiguous, badData, TEXT("Nimellä %1 löytyi useita asiakkaita")},
    {Failure::productIdUnknown, badData, TEXT("Tuotetta ei löytynyt tunnisteella %1")},
    {Failure::productNumberUnknown, badData, TEXT("Tuotetta ei löytynyt numerolla %1")},
    {Failure::productNumberAmbiguous, badData, TEXT("Numerolla %1 löytyi useita tuotteita")},
    {Failure::productNameUnknown, badData, TEXT("Tuotetta ei löytynyt nimellä %1")},
    {Failure::productNameAmbiguous, badData, TEXT("Nimellä %1 löytyi useita tuotteita")},
    {Failure::invoiceIdUnknown, badData, TEXT("Laskua ei löytynyt tunnisteella %1")},
    {Failure::invoiceNumberUnknown, badData, TEXT("Laskua ei löytynyt numerolla %1")},
    {Failure::invoiceItemIdUnknown, badData, TEXT("Laskuriviä ei löytynyt tunnisteella %1")},
    {Failure::paymentIdUnknown, badData, TEXT("Maksusuoritusta ei löytynyt tunnisteella %1")},
    {Failure::documentsUnavailable, ExitCode::databaseFailure, TEXT("Asiakirjoja tekevää osaa ei voi ladata: %1")},
    {Failure::layoutUnknown, ExitCode::badCommandLine, TEXT("Laskupohjaa ei löytynyt nimellä %1")},
    {Failure::scriptUnreadable, ExitCode::databaseFailure, TEXT("Tulostuspohjaa ei voi lukea")},
    {Failure::scriptException, badData, TEXT("%1 (rivi %2)")},
    {Failure::scriptWithoutFunction, badData, TEXT("Tulostuspohjassa ei ole tulostavaa funktiota")},
    {Failure::fileUnwritable, ExitCode::databaseFailure, TEXT("Tiedostoa %1 ei voi kirjoittaa: %2")},
    {Failure::fileExists, badData, TEXT("Tiedosto on jo olemassa: %1")},
    {Failure::invoiceTotalTooLarge, badData, TEXT("Laskun loppusumma on liian suuri")},
    {Failure::rowTotalTooLarge, badData, TEXT("Laskurivin summa on liian suuri")},
    {Failure::invoiceCustomerMissing, badData,
     TEXT("Jokin parametreista findCustomerById, findCustomerByNumber tai findCustomerByName on pakollinen")},
    {Failure::noNextInvoiceNumber, badData, TEXT("Seuraavaa laskunumeroa ei ole")},
    {Failure::noNextCustomerNumber, badData, TEXT("Seuraavaa asiakasnumeroa ei ole")},
    {Failure::paymentTermsBeyondCalendar, badData, TEXT("Virheellinen luku: paymentTerms=%1")},
};

constexpr NoticeSentence notices[] = {
    {Notice::openingSqlite, TEXT("Avataan SQLite-tietokanta %1")},
    {Notice::openingPostgresql, TEXT("Avataan PostgreSQL-tietokanta %1")},
    {Notice::savingInvoice, TEXT("Tallennetaan laskun %1 tiedot")},
    {Notice::savingRow, TEXT("Tallennetaan laskurivin %1 %2 tiedot")},
    {Notice::savingPayment, TEXT("Tallennetaan maksusuorituksen tiedot")},
};

template <class Row, std::size_t n, class Code> const Row &rowOf(const Row (&table)[n], Code code)
{
    for (const Row &row : table) {
        if (row.code == code)
            return row;
    }
    Q_UNREACHABLE(); // each code has a row
}

QString translated(const char *text) { return QCoreApplication::translate(context, text); }

} // namespace

QString Sentences::fill(const QString &sentence, const QStringList &arguments)
{
    switch (arguments.size()) {
    case 0:
        return sentence;
    case 1:
        return sentence.arg(arguments.at(0));
    case 2:
        return sentence.arg(arguments.at(0), arguments.at(1));
    default:
        return sentence.arg(arguments.at(0), arguments.at(1), arguments.at(2));
    }
}

QString Sentences::text(Failure::Code code, const QStringList &arguments)
{
    return fill(translated(rowOf(failures, code).text), arguments);
}

ExitCode Sentences::exitCode(Failure::Code code) { return rowOf(failures, code).exitCode; }

QString Sentences::text(Notice::Code code, const QStringList &arguments)
{
    return fill(translated(rowOf(notices, code).text), arguments);
}
