// The built-in writer of Finvoice 1.3: one invoice, interest invoice, credit note, reminder, receipt or delivery note.
// Elements without data are left out and texts are cut or split to the lengths of the schema; an invoice that lacks
// what the schema demands is refused with a message that names it.

var VERSION = "1.3";
var SCHEMA = "Finvoice.xsd";
var STYLE_SHEET = "type=\"text/xsl\" href=\"Finvoice.xsl\"";
var CURRENCY = "EUR";
var DATE_PATTERN = "CCYYMMDD";
var DATE_FORMAT = "yyyyMMdd";
var SHOWN_DATE_FORMAT = "d.M.yyyy";

// Lengths, in characters
var NAME_LENGTH = 35; // of names and address lines, which are at least two characters long
var IDENTIFIER_LENGTH = 35;
var EMAIL_LENGTH = 70;
var ARTICLE_NAME_LENGTH = 100;
var FREE_TEXT_LENGTH = 512;
var TERMS_LENGTH = 35;
var UNIT_LENGTH = 14;
var MOST_STREET_LINES = 3;
var MOST_TERMS_LINES = 2;
var LEAST_REST = 6; // what is left over when a text is split, so that it never is a single character
var REFERENCE_DIGITS = 20;

// Numbers
var WHOLE = 10000; // of prices, quantities and percentages: four decimals, or 100 % with two
var PRICE_DECIMALS = 4;
var MOST_PERCENT = 99999; // 999,99 %

// The bank barcode: 54 digits, the amount in cents stands at this place
var BARCODE = /^[0-9]{54}$/;
var BARCODE_AMOUNT_START = 17;
var BARCODE_AMOUNT_DIGITS = 8;

var IBAN = /^[A-Z]{2}[0-9]{2}[0-9A-Z]{6,30}$/;
var BIC = /^[0-9A-Z]{8}([0-9A-Z]{3})?$/;
var RF_REFERENCE = /^RF[0-9]{2}[0-9A-Z]{1,21}$/;
var NATIONAL_REFERENCE = /^[0-9]{2,20}$/;
var BUSINESS_ID = /^[0-9]{7}-[0-9]$/;
var INTERMEDIATOR = /^[0-9A-Za-z._:\-]{8,11}$/;
var INSTRUCTION = /^[0-9A-Za-z._:\-]{1,35}$/;
var DATE = /^[0-9]{8}$/;

// By the model's type codes: invoice, interest invoice, credit note, reminder, receipt, delivery note. Only a payable
// one asks for money, a negative one has a total below zero, a repeated one concerns the invoice of its own number.
var KINDS = [
    { code: "INV01", payable: true },
    { code: "INV03", payable: true },
    { code: "INV02", negative: true },
    { code: "INV08", payable: true, repeated: true },
    { code: "INV01", paid: true },
    { code: "DEV01" }
];

var TEXTS = {
    fi: {
        titles: ["LASKU", "KORKOLASKU", "HYVITYSLASKU", "MAKSUMUISTUTUS", "KUITTI", "LÄHETE"],
        vatRegistered: "Alv. rek", dueDate: "Eräpäivä", interestOnArrears: "Viivästyskorko", buyerRef: "Viitteenne",
        sellerRef: "Viitteemme", periodForComplaints: "Huomautusaika", surcharge: "Korotus"
    },
    sv: {
        titles: ["FAKTURA", "RÄNTEFAKTURA", "KREDITFAKTURA", "BETALNINGSPÅMINNELSE", "KVITTO", "FÖLJESEDEL"],
        vatRegistered: "Momsreg.", dueDate: "Förfallodag", interestOnArrears: "Dröjsmålsränta", buyerRef: "Er referens",
        sellerRef: "Vår referens", periodForComplaints: "Reklamationstid", surcharge: "Tillägg"
    },
    en: {
        titles: ["INVOICE", "INTEREST INVOICE", "CREDIT NOTE", "PAYMENT REMINDER", "RECEIPT", "DELIVERY NOTE"],
        vatRegistered: "VAT registered", dueDate: "Due date", interestOnArrears: "Interest on arrears",
        buyerRef: "Your reference", sellerRef: "Our reference", periodForComplaints: "Period for complaints",
        surcharge: "Surcharge"
    }
};

// Countries are typed as names in Finnish, Swedish or English, or as their codes.
var COUNTRY_CODES = {
    suomi: "FI", finland: "FI", ruotsi: "SE", sverige: "SE", sweden: "SE", norja: "NO", norge: "NO", norway: "NO",
    tanska: "DK", danmark: "DK", denmark: "DK", islanti: "IS", island: "IS", iceland: "IS", viro: "EE", estland: "EE",
    estonia: "EE", eesti: "EE", latvia: "LV", lettland: "LV", liettua: "LT", litauen: "LT", lithuania: "LT",
    saksa: "DE", tyskland: "DE", germany: "DE", deutschland: "DE", "itävalta": "AT", "österrike": "AT", austria: "AT",
    belgia: "BE", belgien: "BE", belgium: "BE", bulgaria: "BG", bulgarien: "BG", kypros: "CY", cypern: "CY",
    cyprus: "CY", "tšekki": "CZ", tjeckien: "CZ", czechia: "CZ", espanja: "ES", spanien: "ES", spain: "ES",
    ranska: "FR", frankrike: "FR", france: "FR", kreikka: "GR", grekland: "GR", greece: "GR", kroatia: "HR",
    kroatien: "HR", croatia: "HR", unkari: "HU", ungern: "HU", hungary: "HU", irlanti: "IE", irland: "IE",
    ireland: "IE", italia: "IT", italien: "IT", italy: "IT", luxemburg: "LU", luxembourg: "LU", malta: "MT",
    alankomaat: "NL", "nederländerna": "NL", netherlands: "NL", puola: "PL", polen: "PL", poland: "PL", portugali: "PT",
    portugal: "PT", romania: "RO", "rumänien": "RO", slovenia: "SI", slovenien: "SI", slovakia: "SK", slovakien: "SK",
    sveitsi: "CH", schweiz: "CH", switzerland: "CH"
};

function write()
{
    var invoice = readInvoice();
    processingInstruction("xml-stylesheet", STYLE_SHEET);
    startElement("Finvoice");
    attribute("Version", VERSION);
    attribute("xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance");
    attribute("xsi:noNamespaceSchemaLocation", SCHEMA);
    writeTransmission(invoice);
    writeSeller(invoice);
    writeSellerInformation(invoice);
    textElement("InvoiceRecipientLanguageCode", invoice.language.toUpperCase());
    writeBuyer(invoice);
    writeDelivery();
    writeInvoiceDetails(invoice);
    writePaymentStatus(invoice);
    writeBarcode(invoice);
    writeRows(invoice);
    writeEpi(invoice);
    endElement("Finvoice");
}
