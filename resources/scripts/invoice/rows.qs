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
