// The product list: a line per product with its price without and with VAT.

var TITLE = "Tuoteluettelo";
var ENTRIES = "products";
var NO_ENTRIES = "Ei tuotteita";
var ONE_ENTRY = "1 tuote";
var MANY_ENTRIES = "tuotetta";

// isOptional: left out where no product has it
var COLUMNS = [
    { name: "number", caption: "Nro", minimum: 12, path: "number", format: texts },
    { name: "name", caption: "Nimi", minimum: 40, path: "name", format: texts },
    { name: "category", caption: "Tuoteryhmä", minimum: 18, path: "category", format: texts, isOptional: true },
    { name: "unitCode", caption: "Yksikkö", minimum: 12, path: "unitCode", format: texts },
    { name: "amountVatExcluded", caption: "Veroton", minimum: 18, path: "amountVatExcluded", format: prices },
    { name: "vatRate", caption: "ALV-%", minimum: 12, path: "vatRate", format: percentages },
    { name: "amount", caption: "Verollinen", minimum: 18, path: "amount", format: prices }
];

var LARGEST_NUMBER = 2147483647; // that formatNumber takes

// All values with as many decimals as the longest of them needs, so that the decimal commas stand below each other.
function decimals(values, scale, fewest) {
    var most = fewest;
    for (var i = 0; i < values.length; ++i) {
        while (most < scale && values[i] % Math.pow(10, scale - most) != 0)
            ++most;
    }
    return convertEach(values, function (value) {
        return Math.abs(value) > LARGEST_NUMBER ? formatCurrency(Math.round(value / Math.pow(10, scale - 2)))
                                                : formatNumber(value, scale, most);
    });
}

function prices(values) { return decimals(values, AMOUNT_SCALE, 2); }

function percentages(values) { return decimals(values, PERCENTAGE_SCALE, 0); }

function closingLines(table) { return totalsLines(table); }
