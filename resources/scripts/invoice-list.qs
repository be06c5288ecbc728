// The invoice list: a line per invoice, the sums of the columns, and the VAT by rate with the open balance.

var TITLE = "Laskuluettelo";
var ENTRIES = "invoices";
var NO_ENTRIES = "Ei laskuja";
var ONE_ENTRY = "1 lasku";
var MANY_ENTRIES = "laskua";

// name: of the flag that shows the column; total: the path of its sum
var COLUMNS = [
    { name: "number", caption: "Nro", minimum: 9, path: "number", format: numbers },
    { name: "date", caption: "Päiväys", minimum: 16, path: "date", format: dates },
    { name: "dueDate", caption: "Eräpäivä", minimum: 16, path: "dueDate", format: dates },
    { name: "deliveryDate", caption: "Toimitettu", minimum: 16, path: "deliveryDate", format: dates },
    { name: "referenceNumber", caption: "Viitenumero", minimum: 20, path: "referenceNumber", format: references },
    { name: "customerNumber", caption: "As.nro", minimum: 9, path: "customer/number", format: numbers },
    { name: "customerName", caption: "Asiakas", minimum: 25, path: "customer/name", format: texts },
    { name: "totalAmountVatExcluded", caption: "Veroton", minimum: 16, path: "totalAmountVatExcluded",
      format: amounts, total: "totalAmountVatExcluded" },
    { name: "totalVatAmount", caption: "ALV", minimum: 14, path: "totalVatAmount",
      format: amounts, total: "totalVatAmount" },
    { name: "totalAmountVatIncluded", caption: "Verollinen", minimum: 16, path: "totalAmount",
      format: amounts, total: "totalAmount" },
    { name: "balance", caption: "Avoin saldo", minimum: 16, path: "balance", format: amounts, total: "totalBalance" }
];

// The closing's table of VAT, in millimetres at BASE_SIZE
var VAT_LABEL_WIDTH = 30;
var VAT_COLUMN_WIDTH = 23;
var VAT_COLUMN_GAP = 3;

function references(values) { return texts(values); } // to the right, as numbers are

function vatRow(path, label) {
    var sums = [get(path + "amountVatExcluded"), get(path + "vatAmount"), get(path + "amount")];
    return { label: label, cells: amounts(sums) };
}

// The rows of the table of VAT; `isHeavy` ones stand in bold type, `isRuled` ones below a rule, empty ones are blank.
function vatRows() {
    var rows = [{}, { label: "ALV-erittely", cells: ["Veroton", "ALV", "Verollinen"], isHeavy: true }];
    var count = get("vat/length");
    for (var i = 0; i < count; ++i) {
        var path = "vat/" + i + "/";
        rows.push(vatRow(path, formatNumber(get(path + "percent"), PERCENTAGE_SCALE, 0) + " %"));
    }
    var totals = [get("totalAmountVatExcluded"), get("totalVatAmount"), get("totalAmount")];
    rows.push({ label: "Yhteensä", cells: amounts(totals), isHeavy: true });
    rows[2].isRuled = rows[rows.length - 1].isRuled = true;
    rows.push({});
    rows.push({ label: "Avoin saldo", cells: ["", "", formatCurrency(get("totalBalance"))], isHeavy: true });
    return rows;
}

function drawVatRow(table, row, y) {
    var width = VAT_COLUMN_WIDTH * table.scale;
    var step = width + VAT_COLUMN_GAP * table.scale;
    var left = table.right - VAT_LABEL_WIDTH * table.scale - 3 * step;
    if (row.isRuled)
        drawLine(left, y, table.right, y);
    setFont(FONT, table.size, row.isHeavy ? "bold" : "normal");
    y += ROW_TEXT_TOP * table.scale;
    drawText(left, y, VAT_LABEL_WIDTH * table.scale, 0, row.label);
    for (var i = 0; i < row.cells.length; ++i)
        drawTextRight(table.right - (row.cells.length - i) * step + step - width, y, width, 0, row.cells[i]);
}

function closingLines(table) {
    var lines = totalsLines(table);
    function addVatLine(row) {
        lines.push(function (y) {
            if (row.cells)
                drawVatRow(table, row, y);
        });
    }
    var rows = vatRows();
    for (var i = 0; i < rows.length; ++i)
        addVatLine(rows[i]);
    return lines;
}
