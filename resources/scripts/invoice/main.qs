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
