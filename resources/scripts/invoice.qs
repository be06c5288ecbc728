var left = 20;
var top = 20;
var width = 170;
var rowHeight = 6;

function printInvoice(path) {
    setFont("Arial", 14, "bold");
    drawText(left, top, width, 0, "LASKU " + get(path + "number"));
    setFont("Arial", 9);
    drawText(left, top + 10, width, 0, get(path + "customer/name"));
    var count = get(path + "items/length");
    for (var i = 0; i < count; i++) {
        var row = path + "items/" + i + "/";
        var y = top + 20 + i * rowHeight;
        drawText(left, y, 100, 0, get(row + "productName"));
        drawTextRight(left + 100, y, 70, 0, formatCurrency(get(row + "totalAmount")));
    }
}

function print() {
    setLocale("fi");
    var count = get("invoices/length");
    for (var i = 0; i < count; i++) {
        if (i > 0)
            newPage();
        printInvoice("invoices/" + i + "/");
    }
}
