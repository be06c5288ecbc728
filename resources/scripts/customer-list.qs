// The customer list: a line per customer. Landscape paper has room for what portrait leaves out.

var TITLE = "Asiakasluettelo";
var ENTRIES = "customers";
var NO_ENTRIES = "Ei asiakkaita";
var ONE_ENTRY = "1 asiakas";
var MANY_ENTRIES = "asiakasta";

// isOptional: left out where no customer has it; isLandscape: only there on landscape paper
var COLUMNS = [
    { name: "number", caption: "Nro", minimum: 9, path: "number", format: numbers },
    { name: "name", caption: "Nimi", minimum: 25, path: "name", format: texts },
    { name: "streetName", caption: "Lähiosoite", minimum: 20, path: "streetName", format: texts },
    { name: "postCode", caption: "Postinro", minimum: 10, path: "postCode", format: texts },
    { name: "townName", caption: "Postitoimipaikka", minimum: 15, path: "townName", format: texts },
    { name: "country", caption: "Maa", minimum: 8, path: "country", format: texts, isOptional: true },
    { name: "contact", caption: "Yhteyshenkilö", minimum: 15, path: "contact", format: texts, isOptional: true },
    { name: "phoneNumber", caption: "Puhelin", minimum: 15, path: "phoneNumber", format: texts, isOptional: true,
      isLandscape: true },
    { name: "emailAddress", caption: "Sähköposti", minimum: 20, path: "emailAddress", format: texts, isOptional: true,
      isLandscape: true },
    { name: "vatNumber", caption: "Y-tunnus", minimum: 16, path: "vatNumber", format: texts, isOptional: true,
      isLandscape: true }
];

function closingLines(table) { return totalsLines(table); }
