#ifndef SELECTION_H
#define SELECTION_H

#include "command.h"
#include "invoiceselection.h"
#include "records.h"
#include "texts.h"

class Task;

/** How invoices and payments are selected, the same for every command that works on several. */
namespace Selection {

/** The words of a command that works on invoices; none is required. */
inline constexpr Option invoiceWords[] = {
    {"invoices", ValueType::invoices, TEXT("laskujen numeroita ja välejä: 1001 1010-1020 1030-; - lukee lisää"),
     Option::plainWord | Option::list | Option::onlyWord},
};

/** Every filter that is given must hold. */
inline constexpr Option invoiceFilters[] = {
    {"open", ValueType::flag, TEXT("joilla on avointa")},
    {"paid", ValueType::flag, TEXT("joilla ei ole avointa")},
    {"overdue", ValueType::flag, TEXT("joiden eräpäivä on mennyt")},
    {"state", ValueType::word, TEXT("jotka ovat tässä tilassa"), 0, invoiceStates},
    {"customer", ValueType::customer, TEXT("asiakkaan laskut")},
    {"type", ValueType::word, TEXT("laskun laji"), 0, invoiceTypes},
    {"reference", ValueType::text, TEXT("viitenumero")},
    {"date", ValueType::period, TEXT("laskun päivä tai ajanjakso")},
    {"dueDate", ValueType::period, TEXT("eräpäivä tai ajanjakso")},
    {"deliveryDate", ValueType::period, TEXT("toimituspäivä tai ajanjakso")},
    {"since", ValueType::date, TEXT("tästä päivästä alkaen")},
    {"until", ValueType::date, TEXT("tähän päivään asti")},
    {"asOf", ValueType::date, TEXT("avoimet ja maksetut sellaisina kuin ne olivat tänä päivänä")},
    {"search", ValueType::text, TEXT("teksti riveillä, asiakkaan nimessä tai viitteissä")},
    {"sort", ValueType::text, TEXT("kenttä, jonka mukaan järjestetään; - edessä laskevasti"), 0, nullptr, 0, "FIELD"},
    {"limit", ValueType::integer, TEXT("enintään näin monta, järjestämisen jälkeen")},
};

/** For commands that must not take all because a variable was empty. */
inline constexpr Option allOption[] = {
    {"all", ValueType::flag, TEXT("kaikki")},
};

/**
 * Reads the words and filters of a command. A number that no invoice has is a problem.
 * @param needsSome  without any condition `--all` must be given
 */
[[nodiscard]] bool readInvoices(Task &task, InvoiceSelection &selection, bool needsSome);

/** Reads an option into the place among its choices; unchanged when it is not given. */
[[nodiscard]] bool readChoice(Task &task, const char *name, const Choice *choices, int &index);
/** `-balance`: reads `sort` by the keys that there are. */
[[nodiscard]] bool readSort(Task &task, const QStringList &keys, QString &sort, bool &descending);
/** `limit`: unchanged when not given. */
[[nodiscard]] bool readLimit(Task &task, int &limit);
/** The days of options named `since` and `until`, and of a period. */
[[nodiscard]] bool readDays(Task &task, const char *period, QDate &from, QDate &to);
/** Words that name invoices, into numbers and ids. @param option  the name of what holds the words */
[[nodiscard]] bool readInvoiceWords(Task &task, const char *option, InvoiceSelection &selection);

} // namespace Selection

#endif
