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
