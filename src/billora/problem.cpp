#include "problem.h"

#include "jsonwriter.h"
#include "texts.h"

// In the order of the enumeration, without `none`.
const ProblemCode problemCodes[] = {
    {Problem::unknownCommand, "unknown-command", 1},
    {Problem::unknownOption, "unknown-option", 1},
    {Problem::missingOption, "missing-option", 1},
    {Problem::missingSelection, "missing-selection", 1},
    {Problem::missingValue, "missing-value", 1},
    {Problem::conflict, "conflict", 1},
    {Problem::unknownField, "unknown-field", 1},
    {Problem::noCompany, "no-company", 2},
    {Problem::database, "database", 2},
    {Problem::file, "file", 2},
    {Problem::internal, "internal", 2},
    {Problem::badValue, "bad-value", 3},
    {Problem::badJson, "bad-json", 3},
    {Problem::notFound, "not-found", 3},
    {Problem::ambiguous, "ambiguous", 3},
    {Problem::rule, "rule", 3},
    {Problem::exists, "exists", 3},
    {Problem::keyReused, "key-reused", 3},
    {Problem::changedMeanwhile, "changed-meanwhile", 3},
    {Problem::needsConfirmation, "needs-confirmation", 4},
    {Problem::declined, "declined", 4},
    {Problem::locked, "locked", 5},
};
const int problemCodeCount = sizeof problemCodes / sizeof problemCodes[0];

const ExitMeaning exitMeanings[] = {
    {0, TEXT("tehty")},
    {1, TEXT("virheellinen komentorivi")},
    {2, TEXT("tietokanta, tiedosto tai järjestelmä ei toimi")},
    {3, TEXT("virheellinen tai puuttuva tieto")},
    {4, TEXT("vahvistus puuttuu tai vastaus oli ei")},
    {5, TEXT("toinen ohjelma varaa tietokantaa; yritä uudelleen")},
    {6, TEXT("tehty, mutta jokin vaatii huomiota")},
    {exitInterrupted, TEXT("keskeytetty")},
};
const int exitMeaningCount = sizeof exitMeanings / sizeof exitMeanings[0];

const char *Problem::codeName() const { return isSet() ? problemCodes[code - 1].name : ""; }

int Problem::exitCode() const { return isSet() ? problemCodes[code - 1].exitCode : 0; }

void Problem::write(JsonWriter &json) const
{
    json.beginObject();
    json.member("code", codeName());
    json.member("message", message);
    json.member("option", option.isEmpty() ? QString() : option);
    json.member("value", value);
    json.name("suggestions");
    json.beginArray();
    for (const Suggestion &suggestion : suggestions)
        json.string(suggestion.word);
    json.endArray();
    json.member("exit", exitCode());
    json.endObject();
}
