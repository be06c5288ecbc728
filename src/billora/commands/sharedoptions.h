#ifndef SHAREDOPTIONS_H
#define SHAREDOPTIONS_H

#include "command.h"
#include "texts.h"

// Options that the commands of several nouns share.

inline constexpr Option fullOption[] = {
    {"full", ValueType::flag, TEXT("kaikki kentät, ei vain tavallisia")},
};

inline constexpr Option searchOptions[] = {
    {"search", ValueType::text, TEXT("teksti, jonka jokin kenttä sisältää; kirjainkoolla ei ole väliä")},
    {"sort", ValueType::text, TEXT("kenttä, jonka mukaan järjestetään; - edessä laskevasti"), 0, nullptr, 0, "FIELD"},
    {"limit", ValueType::integer, TEXT("enintään näin monta, järjestämisen jälkeen")},
};

#endif
