// The built-in layout of invoices, interest invoices, credit notes, reminders, receipts and delivery notes, on A4.
// Measures are millimetres from the top left corner of the paper, font sizes are points.

// The paper
var PAGE_WIDTH = 210;
var PAGE_HEIGHT = 297;
var LEFT_MARGIN = 20;
var RIGHT_MARGIN = 15;
var TOP_MARGIN = 10;
var BOTTOM_MARGIN = 10;
var RIGHT_EDGE = PAGE_WIDTH - RIGHT_MARGIN;
var CONTENT_WIDTH = RIGHT_EDGE - LEFT_MARGIN;

// Letters and lines
var FONT = "Arial";
var ADDRESS_SIZE = 12;
var HEADING_SIZE = 14;
var SMALL_SIZE = 8;
var ROW_SIZE = 9;
var NORMAL_SIZE = 10;
var COLOR = "#000";
var THIN_LINE = 0.3;
var THICK_LINE = 0.5;
var POINT = 25.4 / 72;
var ROUNDING = 0.001; // what a sum of measures may be off
var MEASURING_PITCH = 25.4; // of lines to be counted: a whole number of dots at every resolution
var ENDLESS = 1e6; // higher than any text
var WIDEST_EM = 0.95; // almost no letter is wider
var DIGIT_EM = 0.556; // every digit, and about the minus sign
var COMMA_EM = 0.278;
var DATE_FORMAT = "d.M.yyyy";

// Sender and receiver
var ADDRESS_WIDTH = 88;
var ADDRESS_LINE = 5.2;
var ADDRESS_MOST_LINES = 6; // of the sender, of the receiver twice as many
var LOGO_WIDTH = 88;
var LOGO_MOST_HEIGHT = 60;
var LOGO_GAP = 2;
var SENDER_LINE = 4.4;
var RECEIVER_TOP = 48; // the window of the envelope
var RECEIVER_GAP = 6;

// The header box: two columns of cells, each with a caption above its value
var COLUMN_1 = 115;
var COLUMN_2 = 155;
var PAGE_NUMBER_TOP = 17;
var HEADER_TOP = 22;
var HEADER_WIDTH = 80;
var HEADER_ROW_HEIGHT = 9;
var HEADER_PADDING = 1.5;
var HEADER_CAPTION_TOP = 0.9;
var HEADER_VALUE_TOP = 4.1;
var HEADER_SMALL_LINE = 3.4;
var HEADER_MOST_ROWS = 4; // that one value may take
var HEADER_TEXT_WIDTH = HEADER_WIDTH - 2 * HEADER_PADDING;
var HEADER_CELL_WIDTH = COLUMN_2 - COLUMN_1 - 2 * HEADER_PADDING;

// The rows
var BODY_GAP = 8; // above the table and below the closing part
var CONTINUED_TOP = 27; // of the table on following pages
var TABLE_HEAD_HEIGHT = 6;
var TABLE_END_GAP = 1;
var ROW_LINE = 4;
var ROW_TEXT_LINE = 3.6;
var ROW_GAP = 1;
var COLUMN_GAP = 3;
var LEAST_PRODUCT_WIDTH = 30;
var MOST_PRODUCT_WIDTH = 110;
var LEAST_ROWS_ON_LAST_PAGE = 2;
var KEPT_TOGETHER = 25; // a row no higher than this is not divided between pages
var LEAST_LINES = 2; // of a divided row, on either page

// Notice, VAT breakdown and totals
var CLOSING_GAP = 4;
var NOTICE_LINE = 4.5;
var NOTICE_WIDTH = 88;
var NOTICE_MOST_LINES = 10; // beside the totals
var NOTICE_ROWS_ROOM = 15; // what the longest notice leaves for rows
var VAT_LINE = 4.5;
var VAT_RULE_GAP = 1;
var VAT_RIGHT_EDGES = [34, 60, 82, 108];
var TOTAL_LINE = 5.5;
var FRAME_HEIGHT = 8;
var FRAME_LINE = 10;
var FRAME_TEXT_TOP = 1.4;

// The footer
var FOOTER_LINE = 3.5;
var FOOTER_PADDING = 1.5;
var FOOTER_MOST_LINES = 12;
var FOOTER_LEAST_SIZE = 6;
var FOOTER_COLUMNS = [20, 67, 114];
var FOOTER_COLUMN_GAP = 3;
var FOOTER_IBAN = 136;
var FOOTER_BIC = 174;
var ACCOUNT_GAP = 1; // between a bank, its IBAN and its BIC

// The bank transfer form: its rows are multiples of one unit, 48 units make the form
var FORM_HEIGHT = 95;
var FORM_TOP = PAGE_HEIGHT - FORM_HEIGHT;
var FORM_UNIT = FORM_HEIGHT / 48;
var FORM_ACCOUNTS_END = 8;
var FORM_PAYEE_END = 15;
var FORM_REFERENCE_START = 27;
var FORM_SIGNATURE_START = 29;
var FORM_PAYER_END = 31;
var FORM_AMOUNT_END = 35;
var FORM_GAP = 3; // between footer and form
var FORM_LEFT = 4;
var FORM_COLUMN_1 = 20;
var FORM_COLUMN_2 = 111.4;
var FORM_RIGHT = 202.8;
var FORM_VALUES = 129;
var FORM_EURO = 158;
var FORM_PADDING = 2;
var FORM_CAPTION_SIZE = 7;
var FORM_CONDITIONS_SIZE = 6;
var FORM_CAPTION_LINE = 2.7;
var FORM_CAPTION_TOP = 0.8;
var FORM_CAPTION_RIGHT = 19.2;
var FORM_CONDITIONS_LINE = 2.4;
var FORM_HEADING_LEFT = 3.5;
var FORM_LINE = 4.1;
var FORM_LEAST_LINE = 3.2;
var FORM_ACCOUNTS_TOP = 3.5;
var FORM_MOST_ACCOUNTS = 4;
var FORM_MESSAGE_TOP = 2;
var FORM_IBAN = 45;
var FORM_BIC = 86;
var RF_MOST_DIGITS = 14;
var FORM_VALUE_TOP = 1.9;
var FORM_SIGNATURE_LINE = 1; // above the row's end
var FORM_THIN_LINE = 0.13;

// The barcode: 54 digits are 98.4 mm long in a box of this width at 1200 and 600 dots per inch, and its quiet zone of
// 20 mm on both sides stays empty
var BARCODE_LEFT = 20;
var BARCODE_WIDTH = 100;
var BARCODE_HEIGHT = 12;
var BARCODE_TOP = PAGE_HEIGHT - 5 - BARCODE_HEIGHT;
var CONDITIONS_LEFT = 144;
var CONDITIONS_TOP = 4;
var BARCODE_DIGITS = 54;
var BARCODE_AMOUNT_START = 17;
var BARCODE_AMOUNT_DIGITS = 8;
var BARCODE_NO_DATE = "000000";

var MAX_INTEGER = 2147483647; // what formatNumber() takes

var CREDIT_NOTE = 2;
var REMINDER = 3;
var RECEIPT = 4;
var DELIVERY_NOTE = 5;

// What a row may show, from left to right. A column with an `option` is shown when settings/invoiceItemOptions has that
// bit, one with a `without` when it has not; `spare` columns are left out when all their cells are empty.
var OPTION_PRODUCT_NUMBER = 1;
var OPTION_PRICE_WITH_VAT = 2;
var OPTION_VAT = 4;
var OPTION_VAT_EXCLUDED = 8;
var DEFAULT_OPTIONS = OPTION_PRODUCT_NUMBER | OPTION_VAT_EXCLUDED;
var COLUMNS = [
    { key: "productNumber", least: 10, most: 24, option: OPTION_PRODUCT_NUMBER, spare: true },
    { key: "productName", least: LEAST_PRODUCT_WIDTH },
    { key: "quantity", least: 12, format: quantityText },
    { key: "unitCode", least: 7, most: 16, spare: true },
    { key: "amountVatExcluded", least: 21, priced: true, without: OPTION_PRICE_WITH_VAT, format: priceText },
    { key: "amount", least: 21, priced: true, option: OPTION_PRICE_WITH_VAT, format: priceText },
    { key: "discountPercent", least: 12, priced: true, spare: true, format: discountText },
    { key: "vatRate", least: 11, priced: true, format: percentText },
    { key: "totalAmountVatExcluded", least: 16, priced: true, option: OPTION_VAT_EXCLUDED, format: formatCurrency },
    { key: "totalVatAmount", least: 14, priced: true, option: OPTION_VAT, format: formatCurrency },
    { key: "totalAmount", least: 16, priced: true, format: formatCurrency }
];
// Given up in this order when the product names have too little room
var COLUMNS_TO_GIVE_UP = ["totalVatAmount", "totalAmountVatExcluded", "productNumber"];

// The Finnish form has both national languages
var NATIONAL_FORM = {
    heading: "TILISIIRTO. GIRERING",
    account: "Saajan\ntilinumero\nMottagarens\nkontonummer",
    payee: "Saaja\nMottagare",
    payer: "Maksajan\nnimi ja\nosoite\nBetalarens\nnamn och\nadress",
    signature: "Allekirjoitus\nUnderskrift",
    fromAccount: "Tililtä nro\nFrån konto nr",
    reference: "Viitenumero\nRef. nr",
    dueDate: "Eräpäivä\nFörfallodag",
    conditions: "Maksu välitetään saajalle maksujenvälityksen ehtojen mukaisesti ja vain maksajan ilmoittaman "
        + "tilinumeron perusteella.\nBetalningen förmedlas till mottagaren enligt villkoren för betalningsförmedling "
        + "och endast till det kontonummer som betalaren angivit."
};

var TEXTS = {
    fi: {
        titles: ["LASKU", "KORKOLASKU", "HYVITYSLASKU", "MAKSUMUISTUTUS", "KUITTI", "LÄHETE"],
        page: "sivu",
        header: {
            number: "Numero", invoiceNumber: "Laskun numero", date: "Päiväys", reminderDate: "Muistutuspäivä",
            customerNumber: "Asiakasnumero", dueDate: "Eräpäivä", referenceNumber: "Viitenumero",
            paymentTerms: "Maksuehto", interestOnArrears: "Viivästyskorko", buyerRef: "Viitteenne",
            sellerRef: "Viitteemme", deliveryDate: "Toimituspäivä", delivery: "Toimitusehto",
            periodForComplaints: "Huomautusaika", customerBusinessId: "Asiakkaan Y-tunnus",
            customerVatNumber: "Asiakkaan ALV-tunnus"
        },
        columns: {
            productNumber: "Nro", productName: "Tuote", quantity: "Määrä", unitCode: "Yks.",
            amountVatExcluded: "à veroton", amount: "à verollinen", discountPercent: "Ale-%", vatRate: "ALV-%",
            totalAmountVatExcluded: "Veroton", totalVatAmount: "ALV", totalAmount: "Verollinen"
        },
        totals: { vatExcluded: "Veroton", vat: "ALV", total: "Yhteensä EUR", paid: "Maksettu", open: "Avoinna EUR" },
        footer: { phone: "Puh.", businessId: "Y-tunnus", vatNumber: "ALV-tunnus" },
        useReference: "Käyttäkää maksaessanne viitenumeroa.",
        nothingToPay: "Ei maksettavaa.",
        form: NATIONAL_FORM
    },
    sv: {
        titles: ["FAKTURA", "RÄNTEFAKTURA", "KREDITFAKTURA", "BETALNINGSPÅMINNELSE", "KVITTO", "FÖLJESEDEL"],
        page: "sida",
        header: {
            number: "Nummer", invoiceNumber: "Fakturanummer", date: "Datum", reminderDate: "Påminnelsedatum",
            customerNumber: "Kundnummer", dueDate: "Förfallodag", referenceNumber: "Referensnummer",
            paymentTerms: "Betalningsvillkor", interestOnArrears: "Dröjsmålsränta", buyerRef: "Er referens",
            sellerRef: "Vår referens", deliveryDate: "Leveransdatum", delivery: "Leveransvillkor",
            periodForComplaints: "Anmärkningstid", customerBusinessId: "Kundens FO-nummer",
            customerVatNumber: "Kundens momsnummer"
        },
        columns: {
            productNumber: "Nr", productName: "Produkt", quantity: "Antal", unitCode: "Enhet",
            amountVatExcluded: "à exkl. moms", amount: "à inkl. moms", discountPercent: "Rabatt-%", vatRate: "Moms-%",
            totalAmountVatExcluded: "Exkl. moms", totalVatAmount: "Moms", totalAmount: "Inkl. moms"
        },
        totals: { vatExcluded: "Exklusive moms", vat: "Moms", total: "Totalt EUR", paid: "Betalt",
                  open: "Obetalt EUR" },
        footer: { phone: "Tfn", businessId: "FO-nummer", vatNumber: "Momsnummer" },
        useReference: "Använd referensnumret när ni betalar.",
        nothingToPay: "Inget att betala.",
        form: NATIONAL_FORM
    },
    en: {
        titles: ["INVOICE", "INTEREST INVOICE", "CREDIT NOTE", "PAYMENT REMINDER", "RECEIPT", "DELIVERY NOTE"],
        page: "page",
        header: {
            number: "Number", invoiceNumber: "Invoice number", date: "Date", reminderDate: "Reminder date",
            customerNumber: "Customer number", dueDate: "Due date", referenceNumber: "Reference number",
            paymentTerms: "Terms of payment", interestOnArrears: "Interest on arrears", buyerRef: "Your reference",
            sellerRef: "Our reference", deliveryDate: "Delivery date", delivery: "Terms of delivery",
            periodForComplaints: "Period for complaints", customerBusinessId: "Customer's business ID",
            customerVatNumber: "Customer's VAT number"
        },
        columns: {
            productNumber: "No.", productName: "Product", quantity: "Quantity", unitCode: "Unit",
            amountVatExcluded: "Price excl. VAT", amount: "Price incl. VAT", discountPercent: "Disc. %",
            vatRate: "VAT %", totalAmountVatExcluded: "Excl. VAT", totalVatAmount: "VAT", totalAmount: "Incl. VAT"
        },
        totals: { vatExcluded: "Excluding VAT", vat: "VAT", total: "Total EUR", paid: "Paid", open: "Outstanding EUR" },
        footer: { phone: "Tel.", businessId: "Business ID", vatNumber: "VAT number" },
        useReference: "Please quote the reference number when paying.",
        nothingToPay: "Nothing to pay.",
        form: {
            heading: "CREDIT TRANSFER",
            account: "Recipient's\naccount\nnumber",
            payee: "Recipient",
            payer: "Payer's\nname and\naddress",
            signature: "Signature",
            fromAccount: "From account\nno.",
            reference: "Ref. No.",
            dueDate: "Due date",
            conditions: "The payment will be cleared for the recipient in accordance with the General terms for "
                + "payment transmission and only on the basis of the account number given by the payer."
        }
    }
};

function print()
{
    setLocale("fi");
    setTextClipping(false); // numbers are never cut; drawFitted() shortens the other texts
    var seller = readSeller();
    var count = numberAt("invoices/length");
    for (var i = 0; i < count; i++) {
        if (i > 0)
            newPage();
        printInvoice(readInvoice("invoices/" + i + "/", seller), seller);
    }
}

function printInvoice(invoice, seller)
{
    var letterHead = layOutLetterHead(invoice, seller);
    var table = layOutTable(invoice);
    var footer = layOutFooter(invoice, seller);
    var closing = layOutClosing(invoice, footer.height);
    var pages = paginate(table, letterHead.bottom, closing.height, footer.height, invoice.hasForm);
    for (var i = 0; i < pages.length; i++) {
        var last = i == pages.length - 1;
        if (i > 0)
            newPage();
        setPen(COLOR, THIN_LINE);
        drawTitle(invoice, i, pages.length);
        if (i == 0)
            drawLetterHead(invoice, seller, letterHead);
        else
            drawContinuation(invoice, seller);
        var y = drawTable(table, pages[i], i == 0 ? letterHead.bottom : CONTINUED_TOP);
        if (last)
            drawClosing(invoice, closing, y + CLOSING_GAP);
        drawFooter(footer, footerBottom(last && invoice.hasForm));
        if (last && invoice.hasForm)
            drawForm(invoice, seller);
    }
}

// ---------------------------------------------------------------------------------------------------------- Values

// A missing value is an empty text; a tab would leave its column, a line separator its place.
function textAt(path) { return linesAt(path, " "); }

// A text that may have several lines, whatever separates them.
function linesAt(path, separator)
{
    var value = get(path);
    if (value === undefined || value === null)
        return "";
    return String(value).replace(/\s+$/, "").replace(/[\t\r]+/g, " ")
        .replace(/[\x0b\x0c\x85\u2028\u2029]/g, separator || "\n");
}

function numberAt(path)
{
    var value = Number(get(path));
    return isNaN(value) ? 0 : value;
}

function positiveText(path)
{
    var value = numberAt(path);
    return value > 0 ? String(value) : "";
}

function dateText(value) { return value === undefined || isNaN(value) ? "" : formatDate(value, DATE_FORMAT); }

function isTrue(value) { return value === true || value === 1 || value === "true" || value === "1"; }

function joined(parts, separator)
{
    var filled = [];
    for (var i = 0; i < parts.length; i++) {
        if (parts[i] !== "")
            filled.push(parts[i]);
    }
    return filled.join(separator);
}

function prefixed(caption, value) { return value === "" ? "" : caption + " " + value; }

function quantityText(value) { return scaledText(value, QUANTITY_SCALE, 0); }
function priceText(value) { return scaledText(value, AMOUNT_SCALE, 2); }
function percentText(value) { return scaledText(value, PERCENTAGE_SCALE, 0); }
function discountText(value) { return value ? percentText(value) : ""; }

// A price too large for the host's formatter gives up the decimals that it can spare.
function scaledText(value, scale, leastDecimals)
{
    while (Math.abs(value) > MAX_INTEGER && scale > 0) {
        value = Math.round(value / 10);
        scale--;
    }
    return formatNumber(value, scale, Math.min(leastDecimals, scale));
}

function readSeller()
{
    var seller = { accounts: [], logoHeight: 0 };
    var keys = ["name", "streetName", "phoneNumber", "emailAddress", "webAddressShort", "businessId", "vatNumber"];
    for (var i = 0; i < keys.length; i++)
        seller[keys[i]] = textAt("seller/" + keys[i]);
    seller.town = joined([textAt("seller/postCode"), textAt("seller/townName")], " ");
    seller.country = textAt("seller/country");
    if (get("seller/hasLogo"))
        seller.logoHeight = Math.max(0, Math.min(LOGO_MOST_HEIGHT, numberAt("settings/logoHeight")));
    var count = numberAt("seller/bankAccounts/length");
    for (var j = 0; j < count; j++) {
        var path = "seller/bankAccounts/" + j + "/";
        seller.accounts.push({ name: textAt(path + "name"), iban: textAt(path + "iban"), bic: textAt(path + "bic") });
    }
    seller.language = textAt("settings/language");
    seller.barcodeVisible = isTrue(get("settings/barcodeVisible"));
    seller.reminderText = linesAt("settings/reminderText");
    var options = parseInt(get("settings/invoiceItemOptions"), 10);
    seller.itemOptions = isNaN(options) ? DEFAULT_OPTIONS : options;
    seller.footerTexts = [];
    for (var k = 1; k <= 3; k++) {
        var footerText = linesAt("settings/footerText" + k);
        if (footerText !== "")
            seller.footerTexts.push(footerText);
    }
    return seller;
}

// The texts of a language, given as "sv" or "sv - ruotsi".
function textsOf(language)
{
    var code = language.split("-")[0].replace(/\s/g, "").toLowerCase();
    return TEXTS.hasOwnProperty(code) ? TEXTS[code] : TEXTS.fi;
}

function readInvoice(path, seller)
{
    var kind = numberAt(path + "type");
    // A delivery note tells what was delivered: it has neither prices nor sums nor a form.
    var invoice = { path: path, kind: kind, hasForm: kind != DELIVERY_NOTE, itemOptions: seller.itemOptions };
    invoice.texts = textsOf(textAt(path + "customer/language") || seller.language);
    invoice.title = invoice.texts.titles[kind] || invoice.texts.titles[0];
    invoice.numberKey = kind == DELIVERY_NOTE ? "number" : "invoiceNumber";
    invoice.number = positiveText(path + "number");
    invoice.referenceNumber = textAt(path + "referenceNumber");
    invoice.dueDate = dateText(get(path + "dueDate"));
    invoice.customerNumber = positiveText(path + "customer/number");
    invoice.address = joined([
        textAt(path + "customer/name"), textAt(path + "customer/contact"), textAt(path + "customer/streetName"),
        joined([textAt(path + "customer/postCode"), textAt(path + "customer/townName")], " "),
        textAt(path + "customer/country")
    ], "\n");
    invoice.notice = joined([
        kind == REMINDER ? seller.reminderText : "", linesAt(path + "noticeText1"), linesAt(path + "noticeText2")
    ], "\n");
    if (invoice.hasForm)
        readSums(invoice, seller);
    return invoice;
}

function readSums(invoice, seller)
{
    var path = invoice.path;
    invoice.totalVatExcluded = numberAt(path + "totalAmountVatExcluded");
    invoice.totalVat = numberAt(path + "totalVatAmount");
    invoice.total = numberAt(path + "totalAmount");
    invoice.balance = numberAt(path + "balance");
    invoice.vat = [];
    var count = numberAt(path + "vat/length");
    for (var i = 0; i < count; i++) {
        var rate = path + "vat/" + i + "/";
        if (count > 1 && !isRateCharged(path, rate))
            continue;
        invoice.vat.push([percentText(get(rate + "percent")), formatCurrency(get(rate + "amountVatExcluded")),
                          formatCurrency(get(rate + "vatAmount")), formatCurrency(get(rate + "amount"))]);
    }
    // A document that asks for nothing must not invite a payment; of a total of nothing the payer chooses the sum.
    invoice.payable = invoice.kind != CREDIT_NOTE && invoice.kind != RECEIPT
        && (invoice.balance > 0 || invoice.total == 0 && invoice.balance == 0);
    invoice.barcode = seller.barcodeVisible && invoice.payable ? barcodeDigits(invoice) : "";
}

// Whether a VAT rate has a sum or goods, and not only rows of free text.
function isRateCharged(path, rate)
{
    if (numberAt(rate + "amountVatExcluded") != 0 || numberAt(rate + "amount") != 0)
        return true;
    var percent = numberAt(rate + "percent");
    var count = numberAt(path + "items/length");
    for (var i = 0; i < count; i++) {
        var item = path + "items/" + i + "/";
        if (numberAt(item + "vatRate") == percent && !isFreeText(item))
            return true;
    }
    return false;
}

// Whether a row only tells something and sells nothing.
function isFreeText(item)
{
    return numberAt(item + "quantity") == 0 && numberAt(item + "amountVatExcluded") == 0
        && numberAt(item + "amount") == 0 && textAt(item + "productNumber") === "";
}

// The digits of the bank barcode, which are for the whole total, with the open balance in its place; empty when no
// well-formed barcode can be made. A reference is mandatory, a due date is not.
function barcodeDigits(invoice)
{
    var digits = textAt(invoice.path + "barcode");
    if (invoice.dueDate === "")
        digits += BARCODE_NO_DATE;
    if (invoice.referenceNumber === "" || digits.length != BARCODE_DIGITS || !/^[0-9]+$/.test(digits))
        return "";
    var amount = String(invoice.balance);
    while (amount.length < BARCODE_AMOUNT_DIGITS)
        amount = "0" + amount;
    digits = digits.substr(0, BARCODE_AMOUNT_START) + amount
        + digits.substr(BARCODE_AMOUNT_START + BARCODE_AMOUNT_DIGITS);
    return digits.length == BARCODE_DIGITS ? digits : "";
}

// ---------------------------------------------------------------------------------------------------------- Letters

var fontSize; // of the current font, points

// One face serves for all: a second one, such as bold, would make a file a third larger and slower to write.
function font(size)
{
    fontSize = size;
    setFont(FONT, size);
}

// Whether a text fits on a line; most texts are too short to need measuring.
function fits(s, w)
{
    return s.length * fontSize * POINT * WIDEST_EM <= w || boundingRect(0, 0, w, 0, s).width <= w;
}

// The length of the longest start of a text that fits with something behind it, at least 1.
function fittingLength(s, w, end)
{
    var fitting = 1;
    var tooLong = s.length + 1;
    while (tooLong - fitting > 1) {
        var middle = Math.floor((fitting + tooLong) / 2);
        if (fits(s.substr(0, middle) + end, w))
            fitting = middle;
        else
            tooLong = middle;
    }
    return fitting;
}

// One line; a text that is too long ends with an ellipsis.
function drawFitted(x, y, w, s)
{
    if (!fits(s, w))
        s = s.substr(0, fittingLength(s, w, "…")) + "…";
    drawText(x, y, w, 0, s);
}

// A word wider than the line would run out of its box: it goes on on the next line, an e-mail address after its @.
function breakLongWords(s, w)
{
    return s.replace(/[^ \n]+/g, function (word) {
        var pieces = [];
        while (!fits(word, w)) {
            var length = fittingLength(word, w, "");
            length = word.lastIndexOf("@", length - 1) + 1 || length;
            pieces.push(word.substr(0, length));
            word = word.substr(length);
        }
        pieces.push(word);
        return pieces.join("\n");
    });
}

// A text broken into lines in the current font.
function wrap(s, w, pitch)
{
    var block = { text: s, width: w, pitch: pitch, lines: s === "" ? 0 : 1 };
    if (s.indexOf("\n") >= 0 || !fits(s, w)) {
        block.text = breakLongWords(s, w);
        block.lines = countLines(block.text, w, ENDLESS);
    }
    block.height = block.lines * pitch;
    return block;
}

// The lines of a text in a box, of which one more than given may be counted.
function countLines(s, w, most)
{
    setLineHeight(MEASURING_PITCH);
    return Math.floor(boundingRect(0, 0, w, Math.min(ENDLESS, most * MEASURING_PITCH), s).height / MEASURING_PITCH) + 1;
}

// Leaves the first lines in a block, in the font it was made in, and returns a block with the rest.
function cutBlock(block, lines)
{
    if (block.lines <= lines)
        return wrap("", block.width, block.pitch);
    var text = block.text;
    var end = 0;
    var tooLong = text.length;
    while (tooLong - end > 1) {
        var middle = Math.floor((end + tooLong) / 2);
        if (countLines(text.substr(0, middle), block.width, lines) <= lines)
            end = middle;
        else
            tooLong = middle;
    }
    end = Math.max(text.lastIndexOf(" ", end), text.lastIndexOf("\n", end));
    block.text = text.substr(0, end).replace(/[ \n]+$/, "");
    block.lines = countLines(block.text, block.width, lines);
    block.height = block.lines * block.pitch;
    return wrap(text.substr(end).replace(/^[ \n]+/, ""), block.width, block.pitch);
}

function drawBlock(x, y, block)
{
    if (block.lines == 1 && block.text.indexOf("\n") < 0) {
        drawText(x, y, block.width, 0, block.text);
    } else if (block.lines > 0) {
        setLineHeight(block.pitch);
        drawText(x, y, block.width, block.height - block.pitch / 2, block.text);
    }
}

function shortenBlock(block, height)
{
    block.lines = Math.max(0, Math.min(block.lines, wholeLines(height, block.pitch)));
    block.height = block.lines * block.pitch;
}

// ------------------------------------------------------------------------------------- Title, addresses, header box

function drawTitle(invoice, page, pageCount)
{
    font(HEADING_SIZE);
    drawText(COLUMN_1, TOP_MARGIN, HEADER_WIDTH, 0, invoice.title);
    if (pageCount > 1) {
        font(SMALL_SIZE);
        drawTextRight(COLUMN_1, PAGE_NUMBER_TOP, HEADER_WIDTH, 0,
                      invoice.texts.page + " " + (page + 1) + "/" + pageCount);
    }
}

// The top of the first page: where its parts end decides where the rows begin.
function layOutLetterHead(invoice, seller)
{
    var head = { sender: joined([seller.streetName, seller.town, seller.country], "\n") };
    head.senderTop = TOP_MARGIN + (seller.logoHeight > 0 ? seller.logoHeight + LOGO_GAP : 0);
    font(ADDRESS_SIZE);
    head.name = wrap(seller.name, ADDRESS_WIDTH, ADDRESS_LINE);
    font(NORMAL_SIZE);
    head.sender = wrap(head.sender, ADDRESS_WIDTH, SENDER_LINE);
    shortenBlock(head.name, ADDRESS_MOST_LINES * ADDRESS_LINE);
    shortenBlock(head.sender, ADDRESS_MOST_LINES * SENDER_LINE);
    head.receiverTop = Math.max(RECEIVER_TOP, head.senderTop + head.name.height + head.sender.height + RECEIVER_GAP);
    head.header = layOutHeader(headerCells(invoice));
    font(ADDRESS_SIZE);
    head.receiver = wrap(invoice.address, ADDRESS_WIDTH, ADDRESS_LINE);
    shortenBlock(head.receiver, 2 * ADDRESS_MOST_LINES * ADDRESS_LINE);
    head.bottom = Math.max(head.header.bottom, head.receiverTop + head.receiver.height) + BODY_GAP;
    return head;
}

function drawLetterHead(invoice, seller, head)
{
    if (seller.logoHeight > 0)
        drawImage(LEFT_MARGIN, TOP_MARGIN, LOGO_WIDTH, seller.logoHeight, "seller/logo");
    font(ADDRESS_SIZE);
    drawBlock(LEFT_MARGIN, head.senderTop, head.name);
    font(NORMAL_SIZE);
    drawBlock(LEFT_MARGIN, head.senderTop + head.name.height, head.sender);
    font(ADDRESS_SIZE);
    drawBlock(LEFT_MARGIN, head.receiverTop, head.receiver);
    drawHeader(head.header);
}

// Captions and values of the header box, in reading order; the empty ones are not shown.
function headerCells(invoice)
{
    var path = invoice.path;
    var isReminder = invoice.kind == REMINDER;
    var date = dateText(get(path + "date"));
    var deliveryDate = get(path + "hasDeliveryDate") ? dateText(get(path + "deliveryDate")) : "";
    var buyerRef = textAt(path + "buyerRef");
    var sellerRef = textAt(path + "sellerRef");
    var delivery = textAt(path + "delivery");
    if (invoice.kind == DELIVERY_NOTE) {
        return filledCells(invoice.texts.header, [
            invoice.numberKey, invoice.number, "date", date, "customerNumber", invoice.customerNumber,
            "deliveryDate", deliveryDate, "buyerRef", buyerRef, "sellerRef", sellerRef, "delivery", delivery
        ]);
    }
    var interest = numberAt(path + "interestOnArrears");
    var customerId = textAt(path + "customer/businessId");
    var hasVatNumber = get(path + "customer/hasVatNumber") && !get(path + "customer/hasBusinessId");
    return filledCells(invoice.texts.header, [
        invoice.numberKey, invoice.number, "date", date,
        "customerNumber", invoice.customerNumber, "dueDate", invoice.dueDate,
        "reminderDate", isReminder ? dateText(currentDate()) : "",
        "referenceNumber", invoice.referenceNumber, "paymentTerms", textAt(path + "paymentTerms"),
        "interestOnArrears", interest > 0 ? percentText(interest) + "\u00a0%" : "",
        "buyerRef", buyerRef, "sellerRef", sellerRef, "deliveryDate", deliveryDate, "delivery", delivery,
        "periodForComplaints", textAt(path + "periodForComplaints"),
        hasVatNumber ? "customerVatNumber" : "customerBusinessId",
        hasVatNumber ? textAt(path + "customer/vatNumber") : customerId
    ]);
}

function filledCells(captions, keysAndValues)
{
    var cells = [];
    for (var i = 0; i < keysAndValues.length; i += 2) {
        if (keysAndValues[i + 1] !== "")
            cells.push({ caption: captions[keysAndValues[i]], value: keysAndValues[i + 1] });
    }
    return cells;
}

// Puts the cells into rows of two, or of one that needs the whole width. A wide one lets the next narrow one go first,
// so that no hole is left; what is too long even so gets small letters and two rows or more.
function layOutHeader(cells)
{
    var header = { rows: [], bottom: HEADER_TOP };
    var addRow = function (first, second) {
        header.rows.push({ cells: second ? [first, second] : [first], top: header.bottom });
        header.bottom += (first.block ? first.rows : 1) * HEADER_ROW_HEIGHT;
    };
    var single = null;
    var waiting = [];
    font(NORMAL_SIZE);
    for (var i = 0; i < cells.length; i++) {
        var wide = !fits(cells[i].value, HEADER_CELL_WIDTH);
        if (wide)
            wrapHeaderValue(cells[i]);
        if (wide && single) {
            waiting.push(cells[i]);
        } else if (wide) {
            addRow(cells[i]);
        } else if (single) {
            addRow(single, cells[i]);
            single = null;
            while (waiting.length > 0)
                addRow(waiting.shift());
        } else {
            single = cells[i];
        }
    }
    if (single)
        addRow(single);
    while (waiting.length > 0)
        addRow(waiting.shift());
    return header;
}

function wrapHeaderValue(cell)
{
    if (fits(cell.value, HEADER_TEXT_WIDTH))
        return;
    font(SMALL_SIZE);
    cell.block = wrap(cell.value, HEADER_TEXT_WIDTH, HEADER_SMALL_LINE);
    shortenBlock(cell.block, HEADER_MOST_ROWS * HEADER_ROW_HEIGHT - HEADER_VALUE_TOP);
    cell.rows = Math.max(2, Math.ceil((HEADER_VALUE_TOP + cell.block.height) / HEADER_ROW_HEIGHT));
    font(NORMAL_SIZE);
}

function drawHeader(header)
{
    if (header.rows.length == 0)
        return;
    drawRect(COLUMN_1, HEADER_TOP, HEADER_WIDTH, header.bottom - HEADER_TOP);
    font(SMALL_SIZE);
    for (var i = 0; i < header.rows.length; i++) {
        var row = header.rows[i];
        if (i > 0)
            drawLine(COLUMN_1, row.top, COLUMN_1 + HEADER_WIDTH, row.top);
        if (row.cells.length > 1)
            drawLine(COLUMN_2, row.top, COLUMN_2, row.top + HEADER_ROW_HEIGHT);
        for (var j = 0; j < row.cells.length; j++) {
            var cell = row.cells[j];
            cell.x = (j == 0 ? COLUMN_1 : COLUMN_2) + HEADER_PADDING;
            drawText(cell.x, row.top + HEADER_CAPTION_TOP, HEADER_CELL_WIDTH, 0, cell.caption);
            if (cell.block)
                drawBlock(cell.x, row.top + HEADER_VALUE_TOP, cell.block);
        }
    }
    font(NORMAL_SIZE);
    for (var k = 0; k < header.rows.length; k++) {
        for (var m = 0; m < header.rows[k].cells.length; m++) {
            var value = header.rows[k].cells[m];
            if (!value.block)
                drawText(value.x, header.rows[k].top + HEADER_VALUE_TOP, HEADER_TEXT_WIDTH, 0, value.value);
        }
    }
}

// The top of a following page tells whose document it is, should the sheets get mixed.
function drawContinuation(invoice, seller)
{
    font(NORMAL_SIZE);
    drawFitted(LEFT_MARGIN, TOP_MARGIN, ADDRESS_WIDTH, seller.name);
    font(SMALL_SIZE);
    drawText(COLUMN_1, PAGE_NUMBER_TOP, HEADER_WIDTH, 0,
             prefixed(invoice.texts.header[invoice.numberKey], invoice.number));
}

// ------------------------------------------------------------------------------------------------------------- Rows

function layOutTable(invoice)
{
    var path = invoice.path + "items/";
    var table = { count: numberAt(path + "length"), columns: [], rows: [], height: 0 };
    for (var row = 0; row < table.count; row++)
        table.rows.push({ text: linesAt(path + row + "/text"), isFreeText: isFreeText(path + row + "/") });
    for (var i = 0; i < COLUMNS.length; i++) {
        if (isChosen(COLUMNS[i], invoice)) {
            var column = readColumn(COLUMNS[i], path, table.rows);
            if (!COLUMNS[i].spare || column.longest > 0)
                table.columns.push(column);
        }
    }
    placeColumns(table, invoice.texts.columns);
    measureRows(table);
    return table;
}

function isChosen(definition, invoice)
{
    var options = invoice.itemOptions;
    return !(definition.priced && !invoice.hasForm) && !(definition.option && !(options & definition.option))
        && !(definition.without && options & definition.without);
}

// The cells of a column with its width. Numbers are aligned at their decimal comma: `indents` tells how far from the
// right edge each number ends. Rows of free text have nothing but their name.
function readColumn(definition, path, rows)
{
    var column = { key: definition.key, numeric: definition.format !== undefined, cells: [], indents: [], longest: 0 };
    var decimals = [];
    var mostDecimals = 0;
    for (var row = 0; row < rows.length; row++) {
        var value = "";
        if (!rows[row].isFreeText || definition.key == "productName") {
            value = column.numeric ? definition.format(get(path + row + "/" + definition.key))
                                   : textAt(path + row + "/" + definition.key);
        }
        var point = column.numeric ? value.indexOf(",") : -1;
        var whole = point < 0 ? value.length : point;
        decimals.push(value.length - whole - (point < 0 ? 0 : 1));
        column.cells.push(value);
        column.longest = Math.max(column.longest, whole);
        mostDecimals = Math.max(mostDecimals, decimals[row]);
    }
    var digit = DIGIT_EM * ROW_SIZE * POINT;
    var comma = COMMA_EM * ROW_SIZE * POINT;
    for (var i = 0; i < rows.length && column.numeric; i++)
        column.indents.push((mostDecimals - decimals[i]) * digit + (mostDecimals > 0 && decimals[i] == 0 ? comma : 0));
    column.width = Math.max(definition.least, (column.longest + mostDecimals) * digit + (mostDecimals > 0 ? comma : 0));
    if (definition.most)
        column.width = Math.min(definition.most, column.width + digit);
    return column;
}

// The product names get the room that the other columns leave.
function placeColumns(table, captions)
{
    var room = CONTENT_WIDTH + COLUMN_GAP;
    var columns = table.columns;
    for (var i = 0; i < columns.length; i++)
        room -= COLUMN_GAP + (columns[i].key == "productName" ? LEAST_PRODUCT_WIDTH : columns[i].width);
    for (var j = 0; j < COLUMNS_TO_GIVE_UP.length && room < 0; j++) {
        for (var k = columns.length - 1; k >= 0; k--) {
            if (columns[k].key == COLUMNS_TO_GIVE_UP[j])
                room += COLUMN_GAP + columns.splice(k, 1)[0].width;
        }
    }
    var x = LEFT_MARGIN;
    for (var m = 0; m < columns.length; m++) {
        if (columns[m].key == "productName") {
            columns[m].width = Math.min(MOST_PRODUCT_WIDTH, LEAST_PRODUCT_WIDTH + Math.max(0, room));
            table.product = columns[m];
        }
        columns[m].caption = captions[columns[m].key];
        columns[m].x = x;
        x += columns[m].width + COLUMN_GAP;
    }
}

function measureRows(table)
{
    font(ROW_SIZE);
    for (var i = 0; i < table.columns.length; i++) {
        var column = table.columns[i];
        column.blocks = [];
        for (var row = 0; row < table.count && !column.numeric; row++) {
            var measured = table.rows[row];
            var width = measured.isFreeText ? RIGHT_EDGE - column.x : column.width;
            column.blocks.push(wrap(column.cells[row], width, ROW_LINE));
            var least = measured.isFreeText && measured.text !== "" ? 0 : ROW_LINE;
            measured.height = Math.max(measured.height || least, column.blocks[row].height);
        }
    }
    font(SMALL_SIZE);
    table.textX = table.product.x;
    for (var j = 0; j < table.count; j++) {
        var withText = table.rows[j];
        withText.text = wrap(withText.text, RIGHT_EDGE - table.textX, ROW_TEXT_LINE);
        withText.height += withText.text.height + ROW_GAP;
        table.height += withText.height;
    }
}

// Draws the rows of one page under their captions and returns where they end.
function drawTable(table, page, top)
{
    if (page.first == page.end && table.count > 0)
        return top;
    font(SMALL_SIZE);
    for (var i = 0; i < table.columns.length; i++) {
        var column = table.columns[i];
        (column.numeric ? drawTextRight : drawText)(column.x, top, column.width, 0, column.caption);
    }
    var y = top + TABLE_HEAD_HEIGHT;
    setPen(COLOR, THICK_LINE);
    drawLine(LEFT_MARGIN, y - ROW_GAP, RIGHT_EDGE, y - ROW_GAP);
    setPen(COLOR, THIN_LINE);
    font(ROW_SIZE);
    for (var row = page.first; row < page.end; row++) {
        drawRow(table, row, y);
        y += table.rows[row].height;
    }
    y += TABLE_END_GAP;
    if (page.end > page.first)
        drawLine(LEFT_MARGIN, y, RIGHT_EDGE, y);
    return y;
}

function drawRow(table, row, y)
{
    for (var i = 0; i < table.columns.length; i++) {
        var column = table.columns[i];
        if (column.numeric)
            drawTextRight(column.x, y, column.width - column.indents[row], 0, column.cells[row]);
        else
            drawBlock(column.x, y, column.blocks[row]);
    }
    var text = table.rows[row].text;
    if (text.lines > 0) {
        font(SMALL_SIZE);
        drawBlock(table.textX, y + table.rows[row].height - ROW_GAP - text.height, text);
        font(ROW_SIZE);
    }
}

// ------------------------------------------------------------------------------------------------------------ Pages

function footerBottom(aboveForm) { return aboveForm ? FORM_TOP - FORM_GAP : PAGE_HEIGHT - BOTTOM_MARGIN; }

// The room for rows between what stands above and below them, on a page without the closing part.
function rowsRoom(top, footerHeight, aboveForm)
{
    return footerBottom(aboveForm) - footerHeight - BODY_GAP - TABLE_END_GAP - TABLE_HEAD_HEIGHT - top;
}

// Shares the rows out over the pages. The closing part, and the form, stand on the last page with some of the rows.
function paginate(table, firstTop, closingHeight, footerHeight, hasForm)
{
    var room = function (page, last) {
        return rowsRoom(page == 0 ? firstTop : CONTINUED_TOP, footerHeight, last && hasForm)
            - (last ? CLOSING_GAP + closingHeight : 0);
    };
    var pages = [];
    var first = 0;
    var placed = 0;
    while (table.height - placed > room(pages.length, true) && (first < table.count || pages.length == 0)) {
        var end = filledEnd(table, first, room(pages.length, false));
        if (end == table.count && end > first && !splitRow(table, end - 1, table.rows[end - 1].height - ROUNDING))
            end = Math.max(first + 1, end - LEAST_ROWS_ON_LAST_PAGE);
        for (var j = first; j < end; j++)
            placed += table.rows[j].height;
        pages.push({ first: first, end: end });
        first = end;
    }
    pages.push({ first: first, end: table.count });
    return pages;
}

// The end of the rows that a page has room for. A high row that does not fit as a whole is divided.
function filledEnd(table, first, room)
{
    var end = first;
    while (end < table.count && (table.rows[end].height <= room || splitRow(table, end, room)))
        room -= table.rows[end++].height;
    return end;
}

// Divides a high row: what is higher than the room becomes a row of its own behind it, first the free text and, when
// the names alone need the room, they too. Returns false for a row that is better kept together.
function splitRow(table, row, room)
{
    var split = table.rows[row];
    if (split.height <= KEPT_TOGETHER)
        return false;
    var namesHeight = split.height - split.text.height - ROW_GAP;
    var textLines = Math.min(split.text.lines - LEAST_LINES, wholeLines(room - ROW_GAP - namesHeight, ROW_TEXT_LINE));
    var nameLines = wholeLines(namesHeight, ROW_LINE);
    if (textLines < LEAST_LINES)
        nameLines = Math.min(nameLines - LEAST_LINES, wholeLines(room - ROW_GAP, ROW_LINE));
    if (nameLines < LEAST_LINES && textLines < LEAST_LINES)
        return false;
    var rest = { text: split.text, height: 0 };
    font(SMALL_SIZE);
    if (textLines < LEAST_LINES)
        split.text = wrap("", rest.text.width, ROW_TEXT_LINE);
    else
        rest.text = cutBlock(split.text, textLines);
    table.height -= split.height;
    split.height = 0;
    font(ROW_SIZE);
    for (var i = 0; i < table.columns.length; i++)
        splitCell(table.columns[i], row, nameLines, split, rest);
    split.height = (split.height || Math.min(namesHeight, ROW_LINE)) + split.text.height + ROW_GAP;
    rest.height += rest.text.height + ROW_GAP;
    table.height += split.height + rest.height;
    table.rows.splice(row + 1, 0, rest);
    table.count++;
    return true;
}

function wholeLines(height, pitch) { return Math.floor(height / pitch + ROUNDING); }

// Numbers stay on the first line of the row.
function splitCell(column, row, lines, split, rest)
{
    column.cells.splice(row + 1, 0, "");
    if (column.numeric) {
        column.indents.splice(row + 1, 0, 0);
        return;
    }
    var restBlock = cutBlock(column.blocks[row], lines);
    column.blocks.splice(row + 1, 0, restBlock);
    split.height = Math.max(split.height, column.blocks[row].height);
    rest.height = Math.max(rest.height, restBlock.height);
}

// -------------------------------------------------------------------------------- Notice, VAT breakdown and totals

// The notice stands beside the totals, a long one below them in the whole width.
function layOutClosing(invoice, footerHeight)
{
    var closing = { totals: invoice.hasForm ? totalLines(invoice) : [], noticeTop: 0, vatTop: 0 };
    closing.hasVat = invoice.hasForm && invoice.vat.length > 1;
    var totalsHeight = closing.totals.length == 0 ? 0 : (closing.totals.length - 1) * TOTAL_LINE + FRAME_LINE;
    var vatHeight = closing.hasVat ? (invoice.vat.length + 1) * VAT_LINE + VAT_RULE_GAP : 0;
    font(NORMAL_SIZE);
    closing.notice = wrap(invoice.notice, invoice.hasForm ? NOTICE_WIDTH : CONTENT_WIDTH, NOTICE_LINE);
    if (closing.notice.lines > NOTICE_MOST_LINES && invoice.hasForm) {
        closing.notice = wrap(invoice.notice, CONTENT_WIDTH, NOTICE_LINE);
        closing.noticeTop = Math.max(totalsHeight, vatHeight) + CLOSING_GAP;
    }
    shortenBlock(closing.notice, rowsRoom(CONTINUED_TOP, footerHeight, invoice.hasForm) - CLOSING_GAP
                 - closing.noticeTop - (closing.noticeTop > 0 ? 0 : vatHeight + CLOSING_GAP) - NOTICE_ROWS_ROOM);
    if (closing.noticeTop == 0 && closing.notice.height > 0)
        closing.vatTop = closing.notice.height + CLOSING_GAP;
    closing.height = Math.max(closing.noticeTop + closing.notice.height, closing.vatTop + vatHeight, totalsHeight);
    return closing;
}

function totalLines(invoice)
{
    var captions = invoice.texts.totals;
    var vatCaption = captions.vat + (invoice.vat.length == 1 ? " " + invoice.vat[0][0] + "\u00a0%" : "");
    var lines = [
        { caption: captions.vatExcluded, amount: invoice.totalVatExcluded },
        { caption: vatCaption, amount: invoice.totalVat },
        { caption: captions.total, amount: invoice.total }
    ];
    if (invoice.balance != invoice.total) {
        lines.push({ caption: captions.paid, amount: invoice.balance - invoice.total });
        lines.push({ caption: captions.open, amount: invoice.balance });
    }
    lines[invoice.payable ? lines.length - 1 : 2].framed = true;
    return lines;
}

function drawClosing(invoice, closing, top)
{
    font(NORMAL_SIZE);
    drawBlock(LEFT_MARGIN, top + closing.noticeTop, closing.notice);
    if (closing.hasVat)
        drawVat(invoice, top + closing.vatTop);
    var y = top;
    for (var i = 0; i < closing.totals.length; i++)
        y = drawTotal(closing.totals[i], y);
}

// The sum that the document is about stands in a frame. Returns where the line ends.
function drawTotal(total, y)
{
    if (total.framed) {
        setPen(COLOR, THICK_LINE);
        drawRect(COLUMN_1, y, HEADER_WIDTH, FRAME_HEIGHT);
        setPen(COLOR, THIN_LINE);
    }
    font(total.framed ? ADDRESS_SIZE : NORMAL_SIZE);
    var textTop = y + (total.framed ? FRAME_TEXT_TOP : 0);
    drawText(COLUMN_1 + HEADER_PADDING, textTop, HEADER_WIDTH, 0, total.caption);
    drawTextRight(COLUMN_1, textTop, HEADER_WIDTH - HEADER_PADDING, 0, formatCurrency(total.amount));
    return y + (total.framed ? FRAME_LINE : TOTAL_LINE);
}

function drawVat(invoice, top)
{
    var captions = invoice.texts.columns;
    font(SMALL_SIZE);
    drawVatLine([captions.vatRate, captions.totalAmountVatExcluded, captions.totalVatAmount, captions.totalAmount],
                top);
    var y = top + VAT_LINE;
    drawLine(LEFT_MARGIN, y, VAT_RIGHT_EDGES[VAT_RIGHT_EDGES.length - 1], y);
    y += VAT_RULE_GAP;
    font(ROW_SIZE);
    for (var i = 0; i < invoice.vat.length; i++)
        drawVatLine(invoice.vat[i], y + i * VAT_LINE);
}

function drawVatLine(cells, y)
{
    for (var i = 0; i < cells.length; i++)
        drawTextRight(LEFT_MARGIN, y, VAT_RIGHT_EDGES[i] - LEFT_MARGIN, 0, cells[i]);
}

// ----------------------------------------------------------------------------------------------------------- Footer

function layOutFooter(invoice, seller)
{
    var captions = invoice.texts.footer;
    var footer = { accounts: seller.accounts.slice(0, FOOTER_MOST_LINES), texts: [] };
    footer.columns = [
        layOutFooterColumn(0, [seller.name, seller.streetName, seller.town,
                               prefixed(captions.businessId, seller.businessId)]),
        layOutFooterColumn(1, [prefixed(captions.phone, seller.phoneNumber), seller.emailAddress,
                               seller.webAddressShort, prefixed(captions.vatNumber, seller.vatNumber)])
    ];
    footer.textTop = FOOTER_PADDING + Math.max(footer.columns[0].height, footer.columns[1].height,
                                               footer.accounts.length * FOOTER_LINE);
    footer.textWidth = CONTENT_WIDTH / Math.max(1, seller.footerTexts.length);
    font(SMALL_SIZE);
    var textHeight = 0;
    for (var i = 0; i < seller.footerTexts.length; i++) {
        footer.texts.push(wrap(seller.footerTexts[i], footer.textWidth - FOOTER_COLUMN_GAP, FOOTER_LINE));
        shortenBlock(footer.texts[i], FOOTER_MOST_LINES * FOOTER_LINE);
        textHeight = Math.max(textHeight, footer.texts[i].height);
    }
    footer.height = footer.textTop + (textHeight > 0 ? FOOTER_PADDING + textHeight : 0);
    return footer;
}

// The filled values below one another. One that is too long gets smaller letters, or else several lines.
function layOutFooterColumn(column, values)
{
    var laidOut = { x: FOOTER_COLUMNS[column], blocks: [], height: 0 };
    var width = FOOTER_COLUMNS[column + 1] - FOOTER_COLUMNS[column] - FOOTER_COLUMN_GAP;
    for (var i = 0; i < values.length; i++) {
        var size = SMALL_SIZE;
        font(size);
        while (!fits(values[i], width) && size > FOOTER_LEAST_SIZE)
            font(--size);
        if (!fits(values[i], width))
            font(size = SMALL_SIZE);
        var block = wrap(values[i], width, FOOTER_LINE);
        shortenBlock(block, FOOTER_MOST_LINES * FOOTER_LINE - laidOut.height);
        block.size = size;
        laidOut.blocks.push(block);
        laidOut.height += block.height;
    }
    return laidOut;
}

function drawFooter(footer, bottom)
{
    var top = bottom - footer.height;
    drawLine(LEFT_MARGIN, top, RIGHT_EDGE, top);
    var y = top + FOOTER_PADDING;
    for (var i = 0; i < footer.columns.length; i++)
        drawFooterColumn(footer.columns[i], y);
    font(SMALL_SIZE);
    for (var j = 0; j < footer.accounts.length; j++)
        drawAccount(footer.accounts[j], y + j * FOOTER_LINE, FOOTER_COLUMNS[2], FOOTER_IBAN, FOOTER_BIC, RIGHT_EDGE);
    for (var k = 0; k < footer.texts.length; k++)
        drawBlock(LEFT_MARGIN + k * footer.textWidth, top + footer.textTop + FOOTER_PADDING, footer.texts[k]);
}

function drawFooterColumn(column, y)
{
    for (var i = 0; i < column.blocks.length; i++) {
        font(column.blocks[i].size);
        drawBlock(column.x, y, column.blocks[i]);
        y += column.blocks[i].height;
    }
}

// Bank, IBAN and BIC on one line. A long IBAN needs the place of the bank's name, or smaller letters: it is never cut.
function drawAccount(account, y, left, ibanX, bicX, right)
{
    if (fits(account.iban, bicX - ibanX - ACCOUNT_GAP)) {
        drawFitted(left, y, ibanX - left - ACCOUNT_GAP, account.name);
        drawText(ibanX, y, bicX - ibanX, 0, account.iban);
    } else {
        var size = fontSize;
        if (!fits(account.iban, bicX - left - ACCOUNT_GAP))
            font(SMALL_SIZE);
        drawText(left, y, bicX - left, 0, account.iban);
        font(size);
    }
    drawFitted(bicX, y, right - bicX, account.bic);
}

// ---------------------------------------------------------------------------------------------- Bank transfer form

function formY(units) { return FORM_TOP + units * FORM_UNIT; }

function drawForm(invoice, seller)
{
    var form = invoice.texts.form;
    drawFormLines();
    drawFormCaptions(form);
    drawFormParties(invoice, seller);
    drawFormPayment(invoice);
    if (invoice.barcode !== "")
        drawBarcode128C(BARCODE_LEFT, BARCODE_TOP, BARCODE_WIDTH, BARCODE_HEIGHT, invoice.barcode);
    font(FORM_CONDITIONS_SIZE);
    drawBlock(CONDITIONS_LEFT, formY(FORM_AMOUNT_END) + CONDITIONS_TOP,
              wrap(form.conditions, FORM_RIGHT - CONDITIONS_LEFT, FORM_CONDITIONS_LINE));
}

function drawFormLines()
{
    var bottom = formY(FORM_AMOUNT_END);
    var signature = formY(FORM_PAYER_END) - FORM_SIGNATURE_LINE;
    setPen(COLOR, FORM_THIN_LINE);
    drawLine(FORM_LEFT, FORM_TOP, FORM_RIGHT, FORM_TOP);
    drawLine(FORM_COLUMN_1 + FORM_PADDING, signature, FORM_COLUMN_2 - FORM_PADDING, signature);
    drawLine(FORM_VALUES, formY(FORM_REFERENCE_START), FORM_VALUES, bottom);
    drawLine(FORM_EURO, formY(FORM_PAYER_END), FORM_EURO, bottom);
    setPen(COLOR, THICK_LINE);
    drawLine(FORM_LEFT, formY(FORM_ACCOUNTS_END), FORM_COLUMN_2, formY(FORM_ACCOUNTS_END));
    drawLine(FORM_LEFT, formY(FORM_PAYEE_END), FORM_COLUMN_2, formY(FORM_PAYEE_END));
    drawLine(FORM_COLUMN_2, formY(FORM_REFERENCE_START), FORM_RIGHT, formY(FORM_REFERENCE_START));
    drawLine(FORM_LEFT, formY(FORM_PAYER_END), FORM_RIGHT, formY(FORM_PAYER_END));
    drawLine(FORM_LEFT, bottom, FORM_RIGHT, bottom);
    drawLine(FORM_COLUMN_1, FORM_TOP, FORM_COLUMN_1, bottom);
    drawLine(FORM_COLUMN_2, FORM_TOP, FORM_COLUMN_2, bottom);
}

function drawFormCaptions(form)
{
    font(FORM_CAPTION_SIZE);
    setLineHeight(FORM_CAPTION_LINE);
    drawSideCaption(form.account, formY(0));
    drawSideCaption(form.payee, formY(FORM_ACCOUNTS_END));
    drawSideCaption(form.payer, formY(FORM_PAYEE_END));
    drawSideCaption(form.fromAccount, formY(FORM_PAYER_END));
    drawCaption(FORM_COLUMN_2 + FORM_PADDING, formY(FORM_REFERENCE_START), form.reference);
    drawCaption(FORM_COLUMN_2 + FORM_PADDING, formY(FORM_PAYER_END), form.dueDate);
    drawCaption(FORM_EURO + FORM_PADDING, formY(FORM_PAYER_END), "Euro");
    drawCaption(FORM_IBAN, FORM_TOP, "IBAN");
    drawCaption(FORM_BIC, FORM_TOP, "BIC");
    font(FORM_CONDITIONS_SIZE); // smaller, to keep clear of the heading
    drawSideCaption(form.signature, formY(FORM_PAYER_END) - captionHeight(form.signature));
    // Upwards along the left edge, beginning at the thick line below the payer
    font(SMALL_SIZE);
    rotate(-90);
    drawText(-formY(FORM_PAYER_END) + FORM_CAPTION_TOP, FORM_HEADING_LEFT, FORM_HEIGHT, 0, form.heading);
    rotate(90);
}

function captionHeight(caption) { return caption.split("\n").length * FORM_CAPTION_LINE + 2 * FORM_CAPTION_TOP; }

function drawCaption(x, y, caption)
{
    drawText(x, y + FORM_CAPTION_TOP, FORM_COLUMN_2, captionHeight(caption) - FORM_CAPTION_LINE, caption);
}

function drawSideCaption(caption, y)
{
    drawTextRight(FORM_LEFT - FORM_PADDING, y + FORM_CAPTION_TOP, FORM_CAPTION_RIGHT - FORM_LEFT + FORM_PADDING,
                  captionHeight(caption) - FORM_CAPTION_LINE, caption);
}

function drawFormParties(invoice, seller)
{
    var x = FORM_COLUMN_1 + FORM_PADDING;
    var width = FORM_COLUMN_2 - FORM_PADDING - x;
    font(ROW_SIZE);
    var count = Math.min(seller.accounts.length, FORM_MOST_ACCOUNTS);
    var line = Math.min(FORM_LINE, (FORM_ACCOUNTS_END * FORM_UNIT - FORM_ACCOUNTS_TOP) / Math.max(1, count));
    for (var i = 0; i < count; i++)
        drawAccount(seller.accounts[i], FORM_TOP + FORM_ACCOUNTS_TOP + i * line, x, FORM_IBAN, FORM_BIC, FORM_COLUMN_2);
    drawParty(joined([seller.name, seller.streetName, seller.town], "\n"), x, width, FORM_ACCOUNTS_END, FORM_PAYEE_END);
    drawParty(invoice.address, x, width, FORM_PAYEE_END, FORM_SIGNATURE_START);
}

// A name and address in the rows of the form between two heights, given in units; many lines stand closer.
function drawParty(address, x, width, start, end)
{
    var room = (end - start) * FORM_UNIT - FORM_CAPTION_TOP;
    var block = wrap(address, width, FORM_LINE);
    if (block.height > room)
        block.pitch = Math.max(FORM_LEAST_LINE, room / block.lines);
    shortenBlock(block, room);
    drawBlock(x, formY(start) + FORM_CAPTION_TOP, block);
}

function drawFormPayment(invoice)
{
    var texts = invoice.texts;
    var x = FORM_COLUMN_2 + FORM_PADDING;
    var width = FORM_RIGHT - FORM_PADDING - x;
    var useReference = invoice.payable && invoice.referenceNumber !== "";
    font(ROW_SIZE);
    drawBlock(x, FORM_TOP + FORM_MESSAGE_TOP, wrap(joined([
        prefixed(texts.header.invoiceNumber, invoice.number),
        prefixed(texts.header.customerNumber, invoice.customerNumber),
        invoice.payable ? "" : "\n" + texts.nothingToPay,
        useReference ? "\n" + texts.useReference : ""
    ], "\n"), width, FORM_LINE));
    font(NORMAL_SIZE);
    var valueX = FORM_VALUES + FORM_PADDING;
    drawText(valueX, formY(FORM_REFERENCE_START) + FORM_VALUE_TOP, FORM_RIGHT - valueX, 0, formReference(invoice));
    if (!invoice.payable)
        return;
    var y = formY(FORM_PAYER_END) + FORM_VALUE_TOP;
    drawText(valueX, y, FORM_EURO - valueX, 0, invoice.dueDate);
    if (invoice.balance > 0)
        drawTextRight(FORM_EURO, y, FORM_RIGHT - FORM_PADDING - FORM_EURO, 0, formatCurrency(invoice.balance));
}

// The international form of the reference on English documents, where its check digits are those of ISO 11649: the
// system weighs the last twenty digits only, so with a reference of more than 14 they are its own.
function formReference(invoice)
{
    var isNational = /^[0-9]+$/.test(textAt(invoice.path + "referenceNumberRaw"));
    var digits = invoice.referenceNumber.replace(/ /g, "").length;
    if (invoice.texts === TEXTS.en && isNational && digits <= RF_MOST_DIGITS)
        return textAt(invoice.path + "referenceNumberRf");
    return invoice.referenceNumber;
}
