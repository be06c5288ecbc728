// The table of a list, shared by the four list scripts: it ends the one file that each of them is built to. A script
// gives TITLE, ENTRIES, COLUMNS, the words for the number of entries, and closingLines(table).

// Millimetres
var MARGIN_LEFT = 15;
var MARGIN_RIGHT = 15;
var MARGIN_TOP = 12;
var MARGIN_BOTTOM = 14;
var TITLE_HEIGHT = 7;
var TITLE_BASELINE_SHIFT = 1.6; // brings small text beside the title onto its baseline
var HEADER_LINE_HEIGHT = 4.5;
var HEADER_GAP = 4;
var HEADER_COLUMN_GAP = 10;
var RULE_WIDTH = 0.3;

// Points
var FONT = "Arial";
var TITLE_SIZE = 14;
var BASE_SIZE = 9; // of the header; the measures of the table are for rows of this size and shrink with it
var MEASURING_SIZE = 100; // large, so that the rounding of measured widths does not count

// Millimetres at BASE_SIZE
var ROW_HEIGHT = 5;
var ROW_TEXT_TOP = 0.7;
var COLUMN_GAP = 3;
var WIDEST_COLUMN_GAP = 8;
var FINEST_CUT = 0.1;
var LONG_TEXT = 50; // beyond it a text is rather cut than makes all rows small

// The first that fits is taken: the size of the rows, and to which width long texts may be cut for it. The last fits
// whatever numbers there are.
var FITTINGS = [
    { size: 9, cutTo: Infinity }, { size: 8, cutTo: Infinity }, { size: 8, cutTo: LONG_TEXT },
    { size: 7, cutTo: LONG_TEXT }, { size: 7, cutTo: 0 }, { size: 6, cutTo: 0 }
];

var LANDSCAPE = 2; // of orientation()
var ROWS_WITH_TOTALS = 3; // at least so many rows stand on the page of the totals
var INK = "#000";
var ZEBRA = "#f0f0f0";

var characterWidths = {}; // by character, millimetres at BASE_SIZE

// The formats turn the values of a column into texts, in place.

function convertEach(values, convert) {
    for (var i = 0; i < values.length; ++i)
        values[i] = convert(values[i]);
    return values;
}

// A row has one line: what would begin another is a blank.
function oneLine(value) {
    return value == undefined ? "" : String(value).replace(/[\t\n\r\x0b\x0c\x85\u2028\u2029]+/g, " ");
}

function texts(values) { return convertEach(values, oneLine); }

function numbers(values) { // -1 stands for none
    return convertEach(values, function (value) { return value == undefined || value < 0 ? "" : String(value); });
}

function amounts(values) { return convertEach(values, formatCurrency); }

function dates(values) {
    var known = {};
    return convertEach(values, function (value) {
        if (value == undefined)
            return "";
        var time = value.getTime();
        if (!(time in known))
            known[time] = formatDate(value, "d.M.yyyy");
        return known[time];
    });
}

// Measuring

function boldWidth(text) {
    setFont(FONT, BASE_SIZE, "bold");
    return boundingRect(0, 0, MEASURING_SIZE, 0, text).width;
}

function characterWidth(character) {
    if (!(character in characterWidths)) {
        setFont(FONT, MEASURING_SIZE);
        var measured = boundingRect(0, 0, MEASURING_SIZE, 0, character).width;
        characterWidths[character] = measured * BASE_SIZE / MEASURING_SIZE;
    }
    return characterWidths[character];
}

// The sum of the characters: kerning makes a text narrower, if anything, and characters are measured only once.
function textWidth(text) {
    var width = 0;
    for (var i = 0; i < text.length; ++i)
        width += characterWidth(text.charAt(i));
    return width;
}

// The text, or as much of its start as fits before an ellipsis.
function fitted(text, width) {
    if (textWidth(text) <= width)
        return text;
    var room = width - characterWidth("…");
    var end = 0;
    while ((room -= characterWidth(text.charAt(end))) >= 0)
        ++end;
    return text.substring(0, end).replace(/[\s,.\-\uD800-\uDBFF]+$/, "") + "…";
}

// The table's columns

function readColumn(column, count) {
    var values = [];
    for (var i = 0; i < count; ++i)
        values.push(get(ENTRIES + "/" + i + "/" + column.path));
    column.cells = column.format(values);
    column.isText = column.format == texts;
    column.sum = column.total ? formatCurrency(get(column.total)) : "";
    column.least = Math.max(column.minimum, boldWidth(column.caption), column.sum ? boldWidth(column.sum) : 0);
    column.width = column.least;
    for (var row = 0; row < count; ++row)
        column.width = Math.max(column.width, textWidth(column.cells[row]));
}

// A model without column flags shows all columns.
function isShown(column) {
    return get("columns/" + column.name) !== false && (!column.isLandscape || orientation() == LANDSCAPE);
}

function readColumns(columns, count) {
    var shown = [];
    for (var i = 0; i < columns.length; ++i) {
        if (!isShown(columns[i]))
            continue;
        readColumn(columns[i], count);
        if (!columns[i].isOptional || count == 0 || columns[i].cells.join("") != "")
            shown.push(columns[i]);
    }
    return shown;
}

function neededWidth(columns, cutTo) {
    var width = COLUMN_GAP * Math.max(columns.length - 1, 0);
    for (var i = 0; i < columns.length; ++i) {
        var column = columns[i];
        width += column.isText ? Math.min(column.width, Math.max(column.least, cutTo)) : column.width;
    }
    return width;
}

function chooseSize(columns, width) {
    var last = FITTINGS.length - 1;
    for (var i = 0; i < last; ++i) {
        if (neededWidth(columns, FITTINGS[i].cutTo) * FITTINGS[i].size <= width * BASE_SIZE)
            return FITTINGS[i].size;
    }
    return FITTINGS[last].size;
}

// Cuts the widest texts, all to the same width, so that the columns fit; the narrower ones stay whole.
function cutTexts(columns, width) {
    var cutTo = 0;
    for (var step = width; step > FINEST_CUT; step /= 2) {
        if (neededWidth(columns, cutTo + step) <= width)
            cutTo += step;
    }
    for (var i = 0; i < columns.length; ++i) {
        var column = columns[i];
        var limit = Math.max(column.least, cutTo);
        if (!column.isText || column.width <= limit)
            continue;
        column.width = limit;
        for (var row = 0; row < column.cells.length; ++row)
            column.cells[row] = fitted(column.cells[row], limit);
    }
}

// Fits the columns into the width: cuts texts, or widens first the gaps and then the texts. Sets x of each.
function placeColumns(columns, width) {
    if (neededWidth(columns, Infinity) > width)
        cutTexts(columns, width);
    var textWidths = 0;
    for (var i = 0; i < columns.length; ++i)
        textWidths += columns[i].isText ? columns[i].width : 0;
    var gapCount = Math.max(columns.length - 1, 1);
    var spare = Math.max(width - neededWidth(columns, Infinity), 0);
    var widening = spare / gapCount;
    if (textWidths > 0)
        widening = Math.min(widening, WIDEST_COLUMN_GAP - COLUMN_GAP);
    var x = 0;
    for (var k = 0; k < columns.length; ++k) {
        if (columns[k].isText)
            columns[k].width *= 1 + (spare - widening * gapCount) / textWidths;
        columns[k].x = x;
        x += columns[k].width + COLUMN_GAP + widening;
    }
}

// All that is known before the first page is drawn: the columns with their cells, the measures and the header's texts.
function layOutTable() {
    var paper = paperRect();
    var count = get(ENTRIES + "/length");
    var table = { left: MARGIN_LEFT, right: paper.width - MARGIN_RIGHT, bottom: paper.height - MARGIN_BOTTOM };
    var width = table.right - table.left;
    table.columns = readColumns(COLUMNS, count);
    table.size = chooseSize(table.columns, width);
    table.scale = table.size / BASE_SIZE;
    table.rowHeight = ROW_HEIGHT * table.scale;
    placeColumns(table.columns, width / table.scale);
    table.count = count;
    table.rowCount = table.columns.length > 0 ? count : 0;
    table.date = "Tulostettu " + formatDate(currentDate(), "d.M.yyyy");
    table.seller = fitted(oneLine(get("name")), width - textWidth(table.date) - HEADER_COLUMN_GAP);
    table.criteria = [];
    for (var i = 0; i < (get("criteria/length") || 0); ++i)
        table.criteria.push(fitted(oneLine(get("criteria/" + i)), width));
    table.top = MARGIN_TOP + TITLE_HEIGHT + (1 + table.criteria.length) * HEADER_LINE_HEIGHT + HEADER_GAP;
    return table;
}

// The pages

function drawHeader(table, pageText) {
    var width = table.right - table.left;
    setFont(FONT, TITLE_SIZE, "bold");
    drawText(table.left, MARGIN_TOP, width, 0, TITLE);
    setFont(FONT, BASE_SIZE);
    drawTextRight(table.left, MARGIN_TOP + TITLE_BASELINE_SHIFT, width, 0, pageText);
    var y = MARGIN_TOP + TITLE_HEIGHT;
    drawTextRight(table.left, y, width, 0, table.date);
    drawText(table.left, y, width, 0, table.seller);
    for (var i = 0; i < table.criteria.length; ++i)
        drawText(table.left, y += HEADER_LINE_HEIGHT, width, 0, table.criteria[i]);
}

function drawCell(table, column, y, text) {
    var draw = column.isText ? drawText : drawTextRight;
    draw(table.left + column.x * table.scale, y + ROW_TEXT_TOP * table.scale, column.width * table.scale, 0, text);
}

function drawCaptions(table) {
    setFont(FONT, table.size, "bold");
    for (var i = 0; i < table.columns.length; ++i)
        drawCell(table, table.columns[i], table.top, table.columns[i].caption);
    drawLine(table.left, table.top + table.rowHeight, table.right, table.top + table.rowHeight);
}

function drawZebra(table, y, rowCount) {
    setPen(ZEBRA);
    setBrush(ZEBRA);
    for (var i = 1; i < rowCount; i += 2)
        drawRect(table.left, y + i * table.rowHeight, table.right - table.left, table.rowHeight);
    setPen(INK, RULE_WIDTH);
}

function drawRows(table, y, page) {
    setFont(FONT, table.size);
    for (var row = page.row; row < page.endRow; ++row) {
        for (var i = 0; i < table.columns.length; ++i)
            drawCell(table, table.columns[i], y, table.columns[i].cells[row]);
        y += table.rowHeight;
    }
}

// The number of entries and the sums of the columns between two rules, as lines of the closing: two lines where the
// first sum leaves no room for the number beside it.
function totalsLines(table) {
    var label = "Yhteensä " + (table.count == 1 ? ONE_ENTRY : formatNumber(table.count, 0, 0) + " " + MANY_ENTRIES);
    if (table.count == 0)
        label = NO_ENTRIES;
    var room = Infinity;
    for (var i = table.columns.length - 1; i >= 0; --i) {
        if (table.columns[i].sum)
            room = table.columns[i].x - COLUMN_GAP;
    }
    function drawLabel(y) {
        drawLine(table.left, y, table.right, y);
        setFont(FONT, table.size, "bold");
        drawText(table.left, y + ROW_TEXT_TOP * table.scale, table.right - table.left, 0, label);
    }
    function drawSums(y) {
        setFont(FONT, table.size, "bold");
        for (var i = 0; i < table.columns.length; ++i)
            drawCell(table, table.columns[i], y, table.columns[i].sum);
        drawLine(table.left, y + table.rowHeight, table.right, y + table.rowHeight);
    }
    if (boldWidth(label) > room)
        return [drawLabel, drawSums];
    return [function (y) { drawLabel(y); drawSums(y); }];
}

// Which rows and closing lines stand on which page. The closing is kept together and never stands alone: where it does
// not fit below the last rows, some of them go with it to the next page.
function paginate(rowCount, lineCount, capacity) {
    var pages = [];
    var row = 0;
    while (rowCount - row + lineCount > capacity) {
        var endRow = Math.min(row + capacity, rowCount - ROWS_WITH_TOTALS);
        if (endRow <= row)
            break;
        pages.push({ row: row, endRow: endRow, line: 0, endLine: 0 });
        row = endRow;
    }
    var line = 0;
    do {
        var endLine = Math.min(line + capacity - (rowCount - row), lineCount);
        pages.push({ row: row, endRow: rowCount, line: line, endLine: endLine });
        row = rowCount;
        line = endLine;
    } while (line < lineCount);
    return pages;
}

function drawPage(table, page, closing) {
    var y = table.top;
    if (table.columns.length > 0) {
        drawCaptions(table);
        y += table.rowHeight;
    }
    drawZebra(table, y, page.endRow - page.row);
    drawRows(table, y, page);
    y += (page.endRow - page.row) * table.rowHeight;
    for (var line = page.line; line < page.endLine; ++line) {
        closing[line](y);
        y += table.rowHeight;
    }
}

function supportedOrientations() {
    return 3; // portrait and landscape
}

function print() {
    setLocale("fi");
    setTextClipping(false); // all texts have been measured
    setPen(INK, RULE_WIDTH);
    var table = layOutTable();
    var closing = closingLines(table);
    var capacity = Math.floor((table.bottom - table.top) / table.rowHeight) - 1; // lines below the captions
    var pages = paginate(table.rowCount, closing.length, Math.max(capacity, ROWS_WITH_TOTALS + 1));
    for (var i = 0; i < pages.length; ++i) {
        if (i > 0)
            newPage();
        drawHeader(table, (i + 1) + " / " + pages.length);
        drawPage(table, pages[i], closing);
    }
}
