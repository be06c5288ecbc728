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
