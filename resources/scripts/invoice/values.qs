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
