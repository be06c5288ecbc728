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

// --------------------------------------------------------------------------------------------------------- Reading

// What more than one block needs. Throws when something is missing or cannot be written.
function readInvoice()
{
    var type = numberAt("invoice/type");
    var invoice = { kind: KINDS[type] || KINDS[0], number: numberAt("invoice/number") };
    invoice.language = languageOf(textAt("invoice/customer/language") || textAt("settings/language"));
    invoice.texts = TEXTS[invoice.language];
    invoice.title = invoice.texts.titles[type] || invoice.texts.titles[0];
    invoice.date = dateAt("invoice/date");
    invoice.dueDate = dateAt("invoice/dueDate");
    invoice.sellerNames = names(textAt("seller/name"));
    invoice.buyerNames = names(textAt("invoice/customer/name"));
    invoice.accounts = readAccounts();
    invoice.sellerId = businessId(identifierAt("seller/businessId"));
    invoice.reference = compact(textAt("invoice/referenceNumberRaw"));
    invoice.buyerRef = textAt("invoice/buyerRef");
    invoice.sellerRef = textAt("invoice/sellerRef");
    invoice.terms = pieces(linesAt("invoice/paymentTerms"), TERMS_LENGTH);
    requireData(invoice);
    readSums(invoice);
    readRows(invoice);
    invoice.sellerVatNumber = sellerVatNumber(invoice);
    return invoice;
}

function requireData(invoice)
{
    var missing = [];
    if (invoice.number <= 0)
        missing.push("laskun numero");
    if (invoice.date === "")
        missing.push("laskun päivämäärä");
    if (invoice.reference === "")
        missing.push("viitenumero");
    if (invoice.buyerNames.length == 0)
        missing.push("asiakkaan nimi");
    if (invoice.sellerNames.length == 0)
        missing.push("myyjän nimi");
    if (invoice.accounts.length == 0)
        missing.push("laskulla näkyvän pankkitilin IBAN-tilinumero");
    if (missing.length > 0)
        throw "Finvoice-laskua ei voi kirjoittaa, tiedoista puuttuu: " + missing.join(", ");
    if (!RF_REFERENCE.test(invoice.reference) && !NATIONAL_REFERENCE.test(invoice.reference))
        throw "Finvoice-laskua ei voi kirjoittaa, viitenumero ei kelpaa: " + invoice.reference;
}

// The accounts that are shown on invoices, as far as they have an IBAN; the first is the one to pay to.
function readAccounts()
{
    var accounts = [];
    var count = numberAt("seller/bankAccounts/length");
    for (var i = 0; i < count; i++) {
        var path = "seller/bankAccounts/" + i + "/";
        var iban = compact(textAt(path + "ibanRaw"));
        var bic = compact(textAt(path + "bic"));
        if (IBAN.test(iban))
            accounts.push({ iban: iban, bic: BIC.test(bic) ? bic : "" });
    }
    return accounts;
}

// A credit note is written with a total below zero, however its rows were entered. Nothing is to be paid by it, nor by
// an invoice that is paid, and a negative payment does not exist.
function readSums(invoice)
{
    var kind = invoice.kind;
    var total = numberAt("invoice/totalAmount");
    if (kind.negative && total == 0)
        throw "Finvoice-laskua ei voi kirjoittaa, hyvityslaskun loppusumma on nolla";
    invoice.sign = kind.negative && total > 0 ? -1 : 1;
    invoice.total = total * invoice.sign;
    invoice.totalVatExcluded = numberAt("invoice/totalAmountVatExcluded") * invoice.sign;
    invoice.totalVat = numberAt("invoice/totalVatAmount") * invoice.sign;
    invoice.balance = numberAt("invoice/balance");
    invoice.toPay = kind.payable ? Math.max(0, invoice.balance) : 0;
    invoice.vat = [];
    var count = numberAt("invoice/vat/length");
    for (var i = 0; i < count; i++) {
        var path = "invoice/vat/" + i + "/";
        invoice.vat.push({
            rate: numberAt(path + "percent"),
            vatExcluded: numberAt(path + "amountVatExcluded") * invoice.sign,
            vat: numberAt(path + "vatAmount") * invoice.sign,
            rows: []
        });
    }
}

function readRows(invoice)
{
    invoice.rows = [];
    var count = numberAt("invoice/items/length");
    for (var i = 0; i < count; i++)
        invoice.rows.push(readRow("invoice/items/" + i + "/", invoice.sign));
    for (var j = 0; j < invoice.vat.length; j++) {
        var part = invoice.vat[j];
        for (var k = 0; k < invoice.rows.length; k++) {
            if (invoice.rows[k].rate == part.rate && !invoice.rows[k].isText)
                part.rows.push(invoice.rows[k]);
        }
        agree(part.rows, part.vatExcluded);
    }
}

function readRow(path, sign)
{
    var row = {
        number: textAt(path + "productNumber"), name: textAt(path + "productName"), lines: linesAt(path + "text"),
        quantity: numberAt(path + "quantity"), unit: cut(textAt(path + "unitCode"), UNIT_LENGTH),
        rate: numberAt(path + "vatRate"), discount: numberAt(path + "discountPercent"),
        total: numberAt(path + "totalAmount"), vatExcluded: numberAt(path + "totalAmountVatExcluded")
    };
    row.price = unitPrice(row, numberAt(path + "amountVatExcluded"), numberAt(path + "amount"));
    row.isText = row.price == 0 && row.total == 0
        && (row.quantity == 0 || row.number === "" && row.name === "");
    row.quantity *= sign;
    row.total *= sign;
    row.vatExcluded *= sign;
    return row;
}

// The unit price without VAT, before the discount. The model tells it with as few decimals as the typed price has;
// where that is too coarse to give the row's sum, it is taken out of the price with VAT. The schema knows no negative
// discount: a surcharge goes into the price.
function unitPrice(row, vatExcluded, vatIncluded)
{
    var derived = Math.round(vatIncluded * WHOLE / (WHOLE + row.rate));
    var sum = priceSum(row, vatExcluded);
    var isRight = Math.round(sum) == Math.abs(row.vatExcluded)
        || Math.abs(sum - Math.abs(row.vatExcluded)) <= Math.abs(priceSum(row, derived) - Math.abs(row.vatExcluded));
    var price = isRight ? vatExcluded : derived;
    return row.discount < 0 ? Math.round(price * (WHOLE - row.discount) / WHOLE) : price;
}

// The cents that a row comes to at a price, with the two decimals more that the model rounds first.
function priceSum(row, price)
{
    return Math.round(Math.abs(row.quantity * price * (WHOLE - row.discount)) / (WHOLE * WHOLE)) / 100;
}

// Rows are rounded one by one, the VAT of a rate as the invoice's rounding mode says. The cents between the two go to
// the largest rows, which they change least: the rows of a rate then sum up to its total.
function agree(rows, vatExcluded)
{
    var rest = vatExcluded;
    var priced = [];
    for (var i = 0; i < rows.length; i++) {
        rest -= rows[i].vatExcluded;
        if (rows[i].total != 0)
            priced.push(rows[i]);
    }
    if (rest == 0)
        return;
    priced.sort(function(a, b) { return Math.abs(b.total) - Math.abs(a.total); });
    for (var j = 0; j < priced.length; j++) {
        var share = rest / (priced.length - j);
        share = share > 0 ? Math.ceil(share) : Math.floor(share);
        priced[j].vatExcluded += share;
        rest -= share;
    }
}

// ---------------------------------------------------------------------------------------------------------- Blocks

// The addresses of the transmission frame, which are told inside the document only when all are known.
function writeTransmission(invoice)
{
    var sender = identifierAt("settings/senderId");
    var senderIntermediator = identifierAt("settings/intermediatorId");
    var receiver = identifierAt("invoice/customer/receiverId") || identifierAt("settings/defaultReceiverId");
    var receiverIntermediator = identifierAt("invoice/customer/intermediatorId");
    if (isShort(sender) || isShort(senderIntermediator) || isShort(receiver) || isShort(receiverIntermediator))
        return;
    startElement("MessageTransmissionDetails");
    startElement("MessageSenderDetails");
    textElement("FromIdentifier", sender);
    textElement("FromIntermediator", senderIntermediator);
    endElement("MessageSenderDetails");
    startElement("MessageReceiverDetails");
    textElement("ToIdentifier", receiver);
    textElement("ToIntermediator", receiverIntermediator);
    endElement("MessageReceiverDetails");
    startElement("MessageDetails");
    textElement("MessageIdentifier", padded(invoice.number, 2));
    textElement("MessageTimeStamp", timeStamp());
    endElement("MessageDetails");
    endElement("MessageTransmissionDetails");
}

function writeSeller(invoice)
{
    startElement("SellerPartyDetails");
    optional("SellerPartyIdentifier", invoice.sellerId);
    repeated("SellerOrganisationName", invoice.sellerNames);
    optional("SellerOrganisationTaxCode", invoice.sellerVatNumber);
    writeAddress("Seller", "seller/");
    endElement("SellerPartyDetails");
    optional("SellerOrganisationUnitNumber", identifierAt("seller/edi"));
    writeCommunication("Seller", "seller/");
}

function writeSellerInformation(invoice)
{
    startElement("SellerInformationDetails");
    if (invoice.sellerVatNumber !== "")
        textElement("SellerVatRegistrationText", invoice.texts.vatRegistered);
    optional("SellerPhoneNumber", identifierAt("seller/phoneNumber"));
    optional("SellerCommonEmailaddressIdentifier", fitting(textAt("seller/emailAddress"), EMAIL_LENGTH));
    optional("SellerWebaddressIdentifier", identifierAt("seller/webAddressShort"));
    var footers = linesAt("settings/footerText1");
    footers = footers.concat(linesAt("settings/footerText2"), linesAt("settings/footerText3"));
    optional("SellerFreeText", cut(footers.join(" "), FREE_TEXT_LENGTH));
    for (var i = 0; i < invoice.accounts.length; i++)
        writeSellerAccount(invoice.accounts[i]);
    writeRecipientAddress();
    endElement("SellerInformationDetails");
}

// The schema has no place for an account without its bank.
function writeSellerAccount(account)
{
    if (account.bic === "")
        return;
    startElement("SellerAccountDetails");
    attributed("SellerAccountID", "IdentificationSchemeName", "IBAN", account.iban);
    attributed("SellerBic", "IdentificationSchemeName", "BIC", account.bic);
    endElement("SellerAccountDetails");
}

// Where the seller itself receives e-invoices.
function writeRecipientAddress()
{
    var address = identifierAt("seller/edi") || identifierAt("settings/senderId");
    var intermediator = textAt("settings/intermediatorId");
    if (address === "" || !INTERMEDIATOR.test(intermediator))
        return;
    startElement("InvoiceRecipientDetails");
    textElement("InvoiceRecipientAddress", address);
    textElement("InvoiceRecipientIntermediatorAddress", intermediator);
    endElement("InvoiceRecipientDetails");
}

function writeBuyer(invoice)
{
    startElement("BuyerPartyDetails");
    optional("BuyerPartyIdentifier", identifierAt("invoice/customer/businessId"));
    repeated("BuyerOrganisationName", invoice.buyerNames);
    optional("BuyerOrganisationTaxCode", identifierAt("invoice/customer/vatNumber"));
    writeAddress("Buyer", "invoice/customer/");
    endElement("BuyerPartyDetails");
    optional("BuyerOrganisationUnitNumber", identifierAt("invoice/customer/edi"));
    optional("BuyerContactPersonName", cut(textAt("invoice/customer/contact"), NAME_LENGTH));
    writeCommunication("Buyer", "invoice/customer/");
}

// All or nothing: an address without street, town or post code is left out.
function writeAddress(party, path)
{
    var streets = pieces(linesAt(path + "streetName"), NAME_LENGTH);
    var town = cut(textAt(path + "townName"), NAME_LENGTH);
    var postCode = cut(textAt(path + "postCode"), NAME_LENGTH);
    for (var i = streets.length - 1; i >= 0; i--) {
        if (isShort(streets[i]))
            streets.splice(i, 1);
    }
    if (streets.length == 0 || isShort(town) || isShort(postCode))
        return;
    startElement(party + "PostalAddressDetails");
    repeated(party + "StreetName", streets.slice(0, MOST_STREET_LINES));
    textElement(party + "TownName", town);
    textElement(party + "PostCodeIdentifier", postCode);
    writeCountry(textAt(path + "country"));
    endElement(party + "PostalAddressDetails");
}

function writeCountry(country)
{
    var isCode = /^[A-Za-z]{2}$/.test(country);
    var name = country.toLowerCase();
    if (isCode)
        textElement("CountryCode", country.toUpperCase());
    else if (COUNTRY_CODES.hasOwnProperty(name))
        textElement("CountryCode", COUNTRY_CODES[name]);
    if (!isCode)
        optional("CountryName", cut(country, NAME_LENGTH));
}

function writeCommunication(party, path)
{
    var phone = identifierAt(path + "phoneNumber");
    var email = fitting(textAt(path + "emailAddress"), EMAIL_LENGTH);
    if (phone === "" && email === "")
        return;
    startElement(party + "CommunicationDetails");
    optional(party + "PhoneNumberIdentifier", phone);
    optional(party + "EmailaddressIdentifier", email);
    endElement(party + "CommunicationDetails");
}

function writeDelivery()
{
    var date = dateAt("invoice/deliveryDate");
    var terms = cut(textAt("invoice/delivery"), FREE_TEXT_LENGTH);
    if (date === "" && terms === "")
        return;
    startElement("DeliveryDetails");
    dateElement("DeliveryDate", date);
    optional("DeliveryTermsText", terms);
    endElement("DeliveryDetails");
}

function writeInvoiceDetails(invoice)
{
    startElement("InvoiceDetails");
    textElement("InvoiceTypeCode", invoice.kind.code);
    textElement("InvoiceTypeText", invoice.title);
    textElement("OriginCode", "Original");
    textElement("InvoiceNumber", String(invoice.number));
    dateElement("InvoiceDate", invoice.date);
    if (invoice.kind.repeated)
        textElement("OriginalInvoiceNumber", String(invoice.number));
    optional("SellerReferenceIdentifier", cut(invoice.sellerRef, IDENTIFIER_LENGTH));
    var customer = numberAt("invoice/customer/number");
    optional("SellersBuyerIdentifier", customer > 0 ? String(customer) : "");
    optional("BuyerReferenceIdentifier", cut(invoice.buyerRef, IDENTIFIER_LENGTH));
    writeTotals(invoice);
    for (var i = 0; i < invoice.vat.length; i++)
        writeVatSpecification(invoice.vat[i]);
    writeFreeTexts(invoice);
    writePaymentTerms(invoice);
    endElement("InvoiceDetails");
}

// The stored total is what the buyer is asked for; should it differ from the sum of the rows, the schema's roundoff
// tells by how much.
function writeTotals(invoice)
{
    amount("InvoiceTotalVatExcludedAmount", invoice.totalVatExcluded);
    amount("InvoiceTotalVatAmount", invoice.totalVat);
    amount("InvoiceTotalVatIncludedAmount", invoice.total);
    var roundoff = invoice.total - invoice.totalVatExcluded - invoice.totalVat;
    if (roundoff != 0)
        amount("InvoiceTotalRoundoffAmount", roundoff);
}

// The rate of rows that are only text is no rate of the invoice.
function writeVatSpecification(part)
{
    if (part.rows.length == 0)
        return;
    startElement("VatSpecificationDetails");
    amount("VatBaseAmount", part.vatExcluded);
    textElement("VatRatePercent", percentText(part.rate));
    amount("VatRateAmount", part.vat);
    endElement("VatSpecificationDetails");
}

function writeFreeTexts(invoice)
{
    var lines = invoice.kind.repeated ? linesAt("settings/reminderText") : [];
    lines = lines.concat(linesAt("invoice/noticeText1"), linesAt("invoice/noticeText2"));
    var complaints = textAt("invoice/periodForComplaints");
    if (complaints !== "")
        lines.push(invoice.texts.periodForComplaints + ": " + complaints);
    // What has to be cut elsewhere is told whole.
    if (invoice.buyerRef.length > IDENTIFIER_LENGTH)
        lines.push(invoice.texts.buyerRef + ": " + invoice.buyerRef);
    if (invoice.sellerRef.length > IDENTIFIER_LENGTH)
        lines.push(invoice.texts.sellerRef + ": " + invoice.sellerRef);
    if (invoice.terms.length > MOST_TERMS_LINES)
        lines.push(textAt("invoice/paymentTerms"));
    repeated("InvoiceFreeText", pieces(lines, FREE_TEXT_LENGTH));
}

function writePaymentTerms(invoice)
{
    var terms = invoice.terms.slice(0, MOST_TERMS_LINES);
    if (terms.length == 0)
        terms.push(invoice.texts.dueDate + " " + formatDate(dueDateOf(invoice), SHOWN_DATE_FORMAT));
    startElement("PaymentTermsDetails");
    repeated("PaymentTermsFreeText", terms);
    dateElement("InvoiceDueDate", invoice.dueDate || invoice.date);
    var interest = numberAt("invoice/interestOnArrears");
    if (invoice.kind.payable && interest != 0) {
        startElement("PaymentOverDueFineDetails");
        textElement("PaymentOverDueFineFreeText", invoice.texts.interestOnArrears + " " + percentText(interest) + " %");
        textElement("PaymentOverDueFinePercent", percentText(interest));
        endElement("PaymentOverDueFineDetails");
    }
    endElement("PaymentTermsDetails");
}

function writePaymentStatus(invoice)
{
    var kind = invoice.kind;
    var status = kind.paid ? "PAID" : "";
    if (kind.payable && invoice.total > 0 && invoice.balance < invoice.total)
        status = invoice.balance > 0 ? "PARTLYPAID" : "PAID";
    if (status === "")
        return;
    startElement("PaymentStatusDetails");
    textElement("PaymentStatusCode", status);
    endElement("PaymentStatusDetails");
}

// The model's barcode asks for the whole total; here the sum that is still to be paid stands in its place.
function writeBarcode(invoice)
{
    var digits = textAt("invoice/barcode4");
    var sum = padded(invoice.toPay, BARCODE_AMOUNT_DIGITS);
    if (invoice.toPay == 0 || sum.length > BARCODE_AMOUNT_DIGITS || !BARCODE.test(digits))
        return;
    textElement("VirtualBankBarcode", digits.substr(0, BARCODE_AMOUNT_START) + sum
        + digits.substr(BARCODE_AMOUNT_START + BARCODE_AMOUNT_DIGITS));
}

// The schema demands at least one row, but nothing in it.
function writeRows(invoice)
{
    for (var i = 0; i < invoice.rows.length; i++)
        writeRow(invoice, invoice.rows[i]);
    if (invoice.rows.length == 0) {
        startElement("InvoiceRow");
        endElement("InvoiceRow");
    }
}

function writeRow(invoice, row)
{
    var end = row.name.length > ARTICLE_NAME_LENGTH ? splitPosition(row.name, ARTICLE_NAME_LENGTH) : row.name.length;
    var lines = row.lines;
    if (end < row.name.length)
        lines.unshift(trimmed(row.name.substr(end)));
    if (row.number.length > IDENTIFIER_LENGTH)
        lines.unshift(row.number);
    if (row.discount < 0 && !row.isText)
        lines.push(invoice.texts.surcharge + " " + percentText(-row.discount) + " %");
    startElement("InvoiceRow");
    optional("ArticleIdentifier", cut(row.number, IDENTIFIER_LENGTH));
    optional("ArticleName", trimmed(row.name.substr(0, end)));
    if (!row.isText)
        writeQuantity(row);
    repeated("RowFreeText", pieces(lines, FREE_TEXT_LENGTH));
    if (!row.isText)
        writeRowSums(row);
    endElement("InvoiceRow");
}

function writeQuantity(row)
{
    startElement("DeliveredQuantity");
    if (row.unit !== "")
        attribute("QuantityUnitCode", row.unit);
    characters(formatNumber(row.quantity, QUANTITY_SCALE, 0));
    endElement("DeliveredQuantity");
    startElement("UnitPriceAmount");
    attribute("AmountCurrencyIdentifier", CURRENCY);
    if (row.unit !== "")
        attribute("UnitPriceUnitCode", row.unit);
    characters(priceText(row.price));
    endElement("UnitPriceAmount");
}

function writeRowSums(row)
{
    if (row.discount > 0)
        textElement("RowDiscountPercent", percentText(row.discount));
    textElement("RowVatRatePercent", percentText(row.rate));
    amount("RowVatAmount", row.total - row.vatExcluded);
    amount("RowVatExcludedAmount", row.vatExcluded);
    amount("RowAmount", row.total);
}

// The payment order that the payer's bank makes of the invoice.
function writeEpi(invoice)
{
    var account = invoice.accounts[0];
    startElement("EpiDetails");
    startElement("EpiIdentificationDetails");
    dateElement("EpiDate", invoice.date);
    textElement("EpiReference", String(invoice.number));
    endElement("EpiIdentificationDetails");
    startElement("EpiPartyDetails");
    startElement("EpiBfiPartyDetails");
    if (account.bic !== "")
        attributed("EpiBfiIdentifier", "IdentificationSchemeName", "BIC", account.bic);
    endElement("EpiBfiPartyDetails");
    startElement("EpiBeneficiaryPartyDetails");
    textElement("EpiNameAddressDetails", invoice.sellerNames[0]);
    attributed("EpiAccountID", "IdentificationSchemeName", "IBAN", account.iban);
    endElement("EpiBeneficiaryPartyDetails");
    endElement("EpiPartyDetails");
    writePaymentInstruction(invoice);
    endElement("EpiDetails");
}

function writePaymentInstruction(invoice)
{
    startElement("EpiPaymentInstructionDetails");
    var instruction = textAt("settings/epiPaymentInstructionId");
    if (INSTRUCTION.test(instruction))
        textElement("EpiPaymentInstructionId", instruction);
    if (RF_REFERENCE.test(invoice.reference))
        attributed("EpiRemittanceInfoIdentifier", "IdentificationSchemeName", "ISO", invoice.reference);
    else
        attributed("EpiRemittanceInfoIdentifier", "IdentificationSchemeName", "SPY",
                   padded(invoice.reference, REFERENCE_DIGITS));
    amount("EpiInstructedAmount", invoice.toPay);
    attributed("EpiCharge", "ChargeOption", "SHA", "SHA");
    dateElement("EpiDateOptionDate", invoice.dueDate || invoice.date);
    endElement("EpiPaymentInstructionDetails");
}

// -------------------------------------------------------------------------------------------------------- Elements

function optional(name, text)
{
    if (text !== "")
        textElement(name, text);
}

function repeated(name, texts)
{
    for (var i = 0; i < texts.length; i++)
        textElement(name, texts[i]);
}

function attributed(name, attributeName, attributeValue, text)
{
    startElement(name);
    attribute(attributeName, attributeValue);
    characters(text);
    endElement(name);
}

function amount(name, cents) { attributed(name, "AmountCurrencyIdentifier", CURRENCY, formatCurrency(cents)); }

function dateElement(name, date)
{
    if (date !== "")
        attributed(name, "Format", DATE_PATTERN, date);
}

// ---------------------------------------------------------------------------------------------------------- Values

function numberAt(path)
{
    var value = Number(get(path));
    return isNaN(value) ? 0 : value;
}

// The text on one line, empty for a missing value.
function textAt(path)
{
    var value = get(path);
    return value === undefined || value === null ? "" : clean(String(value));
}

// The lines of a text that are not empty.
function linesAt(path)
{
    var value = get(path);
    var result = [];
    if (value === undefined || value === null || value === "")
        return result;
    var lines = String(value).split(/[\r\n\u2028\u2029]+/);
    for (var i = 0; i < lines.length; i++) {
        var line = clean(lines[i]);
        if (line !== "")
            result.push(line);
    }
    return result;
}

// A machine does not know a cut identifier: one that is too long is left out.
function identifierAt(path) { return fitting(textAt(path), IDENTIFIER_LENGTH); }
function fitting(text, length) { return text.length <= length ? text : ""; }

// The date as eight digits, empty for a missing one.
function dateAt(path)
{
    var text = formatDate(get(path), DATE_FORMAT);
    return DATE.test(text) ? text : "";
}

function dueDateOf(invoice) { return invoice.dueDate === "" ? get("invoice/date") : get("invoice/dueDate"); }

// A moment of the invoice's day: the same invoice makes the same document on any day.
function timeStamp()
{
    return formatDate(get("invoice/date"), "yyyy-MM-dd") + "T00:00:00";
}

function priceText(price)
{
    var magnitude = Math.abs(price);
    var decimals = padded(magnitude % WHOLE, PRICE_DECIMALS).replace(/0{1,2}$/, "");
    return (price < 0 ? "-" : "") + Math.floor(magnitude / WHOLE) + "," + decimals;
}

function percentText(value)
{
    var text = formatNumber(value, PERCENTAGE_SCALE, 0);
    if (value < 0 || value > MOST_PERCENT)
        throw "Finvoice-laskua ei voi kirjoittaa, prosenttiluku ei kelpaa: " + text;
    return text;
}

function padded(value, digits)
{
    var text = String(value);
    while (text.length < digits)
        text = "0" + text;
    return text;
}

function compact(text) { return text.replace(/ /g, "").toUpperCase(); }

// The business ID, also of a Finnish VAT number.
function businessId(text) { return text.replace(/^FI([0-9]{7})([0-9])$/, "$1-$2"); }

// One that charges VAT has a VAT number, which follows from the business ID.
function sellerVatNumber(invoice)
{
    var vatNumber = identifierAt("seller/vatNumber");
    if (vatNumber === "" && invoice.totalVat != 0 && BUSINESS_ID.test(invoice.sellerId))
        vatNumber = "FI" + invoice.sellerId.replace("-", "");
    return vatNumber;
}

// The language of the texts, given as "sv" or "sv - ruotsi".
function languageOf(language)
{
    var code = language.split("-")[0].replace(/ /g, "").toLowerCase();
    return TEXTS.hasOwnProperty(code) ? code : "fi";
}

// ----------------------------------------------------------------------------------------------------------- Texts

// On one line, with a single blank for every run of blanks and control characters, and with none at the ends.
function clean(text) { return trimmed(text.replace(/[\s\u0000-\u0020\u007F-\u009F]+/g, " ")); }

function trimmed(text) { return text.replace(/^ +| +$/g, ""); }

function startsPair(text, position)
{
    var code = text.charCodeAt(position);
    return code >= 0xD800 && code <= 0xDBFF;
}

// Names and addresses are at least two characters long.
function isShort(text) { return text.length < 2 || text.length == 2 && startsPair(text, 0); }

// The lines of a name, none for an empty one.
function names(text) { return pieces([text !== "" && isShort(text) ? text + "." : text], NAME_LENGTH); }

function cut(text, length)
{
    if (text.length <= length)
        return text;
    return trimmed(text.substr(0, startsPair(text, length - 1) ? length - 1 : length));
}

// The lines, with those that are too long split into several.
function pieces(lines, length)
{
    var result = [];
    for (var i = 0; i < lines.length; i++) {
        var rest = lines[i];
        while (rest.length > length) {
            var end = splitPosition(rest, length);
            result.push(trimmed(rest.substr(0, end)));
            rest = trimmed(rest.substr(end));
        }
        if (rest !== "")
            result.push(rest);
    }
    return result;
}

// At the last blank of the second half, else inside the word.
function splitPosition(text, length)
{
    var last = Math.min(length, text.length - LEAST_REST);
    for (var i = last; i > length / 2; i--) {
        if (text.charAt(i) == " ")
            return i;
    }
    return startsPair(text, last - 1) ? last - 1 : last;
}
