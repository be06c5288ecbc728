// ------------------------------------------------------------------------------------------------------------ Pages

function footerBottom(aboveForm) { return aboveForm ? FORM_TOP - FORM_GAP : PAGE_HEIGHT - BOTTOM_MARGIN; }

// The room for rows between what stands above and below them, on a page without the closing part.
function rowsRoom(top, footerHeight, aboveForm)
{
    return footerBottom(aboveForm) - footerHeight - BODY_GAP - TABLE_END_GAP - TABLE_HEAD_HEIGHT - top;
}

// Shares the rows out over the pages. The closing part, and the form, stand on the last page with some of the rows.
function paginate(table, firstTop, closingHeight, footerHeight, hasForm)
{
    var room = function (page, last) {
        return rowsRoom(page == 0 ? firstTop : CONTINUED_TOP, footerHeight, last && hasForm)
            - (last ? CLOSING_GAP + closingHeight : 0);
    };
    var pages = [];
    var first = 0;
    var placed = 0;
    while (table.height - placed > room(pages.length, true) && (first < table.count || pages.length == 0)) {
        var end = filledEnd(table, first, room(pages.length, false));
        if (end == table.count && end > first && !splitRow(table, end - 1, table.rows[end - 1].height - ROUNDING))
            end = Math.max(first + 1, end - LEAST_ROWS_ON_LAST_PAGE);
        for (var j = first; j < end; j++)
            placed += table.rows[j].height;
        pages.push({ first: first, end: end });
        first = end;
    }
    pages.push({ first: first, end: table.count });
    return pages;
}

// The end of the rows that a page has room for. A high row that does not fit as a whole is divided.
function filledEnd(table, first, room)
{
    var end = first;
    while (end < table.count && (table.rows[end].height <= room || splitRow(table, end, room)))
        room -= table.rows[end++].height;
    return end;
}

// Divides a high row: what is higher than the room becomes a row of its own behind it, first the free text and, when
// the names alone need the room, they too. Returns false for a row that is better kept together.
function splitRow(table, row, room)
{
    var split = table.rows[row];
    if (split.height <= KEPT_TOGETHER)
        return false;
    var namesHeight = split.height - split.text.height - ROW_GAP;
    var textLines = Math.min(split.text.lines - LEAST_LINES, wholeLines(room - ROW_GAP - namesHeight, ROW_TEXT_LINE));
    var nameLines = wholeLines(namesHeight, ROW_LINE);
    if (textLines < LEAST_LINES)
        nameLines = Math.min(nameLines - LEAST_LINES, wholeLines(room - ROW_GAP, ROW_LINE));
    if (nameLines < LEAST_LINES && textLines < LEAST_LINES)
        return false;
    var rest = { text: split.text, height: 0 };
    font(SMALL_SIZE);
    if (textLines < LEAST_LINES)
        split.text = wrap("", rest.text.width, ROW_TEXT_LINE);
    else
        rest.text = cutBlock(split.text, textLines);
    table.height -= split.height;
    split.height = 0;
    font(ROW_SIZE);
    for (var i = 0; i < table.columns.length; i++)
        splitCell(table.columns[i], row, nameLines, split, rest);
    split.height = (split.height || Math.min(namesHeight, ROW_LINE)) + split.text.height + ROW_GAP;
    rest.height += rest.text.height + ROW_GAP;
    table.height += split.height + rest.height;
    table.rows.splice(row + 1, 0, rest);
    table.count++;
    return true;
}

function wholeLines(height, pitch) { return Math.floor(height / pitch + ROUNDING); }

// Numbers stay on the first line of the row.
function splitCell(column, row, lines, split, rest)
{
    column.cells.splice(row + 1, 0, "");
    if (column.numeric) {
        column.indents.splice(row + 1, 0, 0);
        return;
    }
    var restBlock = cutBlock(column.blocks[row], lines);
    column.blocks.splice(row + 1, 0, restBlock);
    split.height = Math.max(split.height, column.blocks[row].height);
    rest.height = Math.max(rest.height, restBlock.height);
}
