#ifndef SHAREDOPTIONS_H
#define SHAREDOPTIONS_H

#include "command.h"
#include "texts.h"

// Options that the commands of several nouns share.

/** Of every `list`. */
inline constexpr Option fullOption[] = {
    {"full", ValueType::flag, TEXT("kaikki kentät, ei vain tavallisia")},
};

/** Of the commands that import a CSV file (RFC 4180), see CsvImport. */
inline constexpr Option importWords[] = {
    {"file", ValueType::file, TEXT("CSV-tiedosto, jossa on otsikkorivi; - on vakiosyöte"),
     Option::plainWord | Option::required | Option::onlyWord},
    {"map", ValueType::text, TEXT("otsikon kenttä: OTSIKKO=KENTTÄ"), Option::list, nullptr, 0, "TITLE=FIELD"},
    {"ignoreUnknown", ValueType::flag, TEXT("ohittaa sarakkeet, joita ohjelma ei tunne")},
    {"update", ValueType::flag, TEXT("muuttaa tietueita, joiden numero on jo käytössä")},
};

/** Of lists that are read at once, see RecordList. */
inline constexpr Option searchOptions[] = {
    {"search", ValueType::text, TEXT("teksti, jonka jokin kenttä sisältää; kirjainkoolla ei ole väliä")},
    {"sort", ValueType::text, TEXT("kenttä, jonka mukaan järjestetään; - edessä laskevasti"), 0, nullptr, 0, "FIELD"},
    {"limit", ValueType::integer, TEXT("enintään näin monta, järjestämisen jälkeen")},
};

#endif
