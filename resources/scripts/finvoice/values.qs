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
