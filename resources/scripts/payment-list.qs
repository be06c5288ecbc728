// The payment journal: a line per payment with its invoice, the sum of the payments and that of the invoices.

var TITLE = "Suorituspäiväkirja";
var ENTRIES = "payments";
var NO_ENTRIES = "Ei suorituksia";
var ONE_ENTRY = "1 suoritus";
var MANY_ENTRIES = "suoritusta";

// name: of the flag that shows the column; total: the path of its sum
var COLUMNS = [
    { name: "paymentDate", caption: "Maksupäivä", minimum: 16, path: "date", format: dates },
    { name: "number", caption: "Lasku", minimum: 9, path: "invoice/number", format: numbers },
    { name: "date", caption: "Päiväys", minimum: 16, path: "invoice/date", format: dates },
    { name: "dueDate", caption: "Eräpäivä", minimum: 16, path: "invoice/dueDate", format: dates },
    { name: "deliveryDate", caption: "Toimitettu", minimum: 16, path: "invoice/deliveryDate", format: dates },
    { name: "customerNumber", caption: "As.nro", minimum: 9, path: "customer/number", format: numbers },
    { name: "customerName", caption: "Asiakas", minimum: 25, path: "customer/name", format: texts },
    { name: "bankAccount", caption: "Pankkitili", minimum: 18, path: "bankAccount/name", format: texts },
    { name: "totalAmount", caption: "Laskusumma", minimum: 16, path: "invoice/totalAmount",
      format: amounts },
    { name: "paymentAmount", caption: "Suoritus", minimum: 16, path: "amount", format: amounts,
      total: "totalPaymentAmount" }
];

// The invoices' sum is no sum of a column: an invoice that was paid in parts stands there several times. A sum whose
// column is not shown gets a line of its own.
function closingLines(table) {
    var lines = totalsLines(table);
    lines.push(function () {}); // blank
    function addSumLine(label, path) {
        var text = label + " " + formatCurrency(get(path));
        lines.push(function (y) {
            setFont(FONT, table.size, "bold");
            drawTextRight(table.left, y + ROW_TEXT_TOP * table.scale, table.right - table.left, 0, text);
        });
    }
    if (!isShown(COLUMNS[COLUMNS.length - 1]))
        addSumLine("Suoritukset yhteensä", "totalPaymentAmount");
    addSumLine("Laskut yhteensä, kukin kerran", "totalAmount");
    return lines;
}
