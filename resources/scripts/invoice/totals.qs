// -------------------------------------------------------------------------------- Notice, VAT breakdown and totals

// The notice stands beside the totals, a long one below them in the whole width.
function layOutClosing(invoice, footerHeight)
{
    var closing = { totals: invoice.hasForm ? totalLines(invoice) : [], noticeTop: 0, vatTop: 0 };
    closing.hasVat = invoice.hasForm && invoice.vat.length > 1;
    var totalsHeight = closing.totals.length == 0 ? 0 : (closing.totals.length - 1) * TOTAL_LINE + FRAME_LINE;
    var vatHeight = closing.hasVat ? (invoice.vat.length + 1) * VAT_LINE + VAT_RULE_GAP : 0;
    font(NORMAL_SIZE);
    closing.notice = wrap(invoice.notice, invoice.hasForm ? NOTICE_WIDTH : CONTENT_WIDTH, NOTICE_LINE);
    if (closing.notice.lines > NOTICE_MOST_LINES && invoice.hasForm) {
        closing.notice = wrap(invoice.notice, CONTENT_WIDTH, NOTICE_LINE);
        closing.noticeTop = Math.max(totalsHeight, vatHeight) + CLOSING_GAP;
    }
    shortenBlock(closing.notice, rowsRoom(CONTINUED_TOP, footerHeight, invoice.hasForm) - CLOSING_GAP
                 - closing.noticeTop - (closing.noticeTop > 0 ? 0 : vatHeight + CLOSING_GAP) - NOTICE_ROWS_ROOM);
    if (closing.noticeTop == 0 && closing.notice.height > 0)
        closing.vatTop = closing.notice.height + CLOSING_GAP;
    closing.height = Math.max(closing.noticeTop + closing.notice.height, closing.vatTop + vatHeight, totalsHeight);
    return closing;
}

function totalLines(invoice)
{
    var captions = invoice.texts.totals;
    var vatCaption = captions.vat + (invoice.vat.length == 1 ? " " + invoice.vat[0][0] + "\u00a0%" : "");
    var lines = [
        { caption: captions.vatExcluded, amount: invoice.totalVatExcluded },
        { caption: vatCaption, amount: invoice.totalVat },
        { caption: captions.total, amount: invoice.total }
    ];
    if (invoice.balance != invoice.total) {
        lines.push({ caption: captions.paid, amount: invoice.balance - invoice.total });
        lines.push({ caption: captions.open, amount: invoice.balance });
    }
    lines[invoice.payable ? lines.length - 1 : 2].framed = true;
    return lines;
}

function drawClosing(invoice, closing, top)
{
    font(NORMAL_SIZE);
    drawBlock(LEFT_MARGIN, top + closing.noticeTop, closing.notice);
    if (closing.hasVat)
        drawVat(invoice, top + closing.vatTop);
    var y = top;
    for (var i = 0; i < closing.totals.length; i++)
        y = drawTotal(closing.totals[i], y);
}

// The sum that the document is about stands in a frame. Returns where the line ends.
function drawTotal(total, y)
{
    if (total.framed) {
        setPen(COLOR, THICK_LINE);
        drawRect(COLUMN_1, y, HEADER_WIDTH, FRAME_HEIGHT);
        setPen(COLOR, THIN_LINE);
    }
    font(total.framed ? ADDRESS_SIZE : NORMAL_SIZE);
    var textTop = y + (total.framed ? FRAME_TEXT_TOP : 0);
    drawText(COLUMN_1 + HEADER_PADDING, textTop, HEADER_WIDTH, 0, total.caption);
    drawTextRight(COLUMN_1, textTop, HEADER_WIDTH - HEADER_PADDING, 0, formatCurrency(total.amount));
    return y + (total.framed ? FRAME_LINE : TOTAL_LINE);
}

function drawVat(invoice, top)
{
    var captions = invoice.texts.columns;
    font(SMALL_SIZE);
    drawVatLine([captions.vatRate, captions.totalAmountVatExcluded, captions.totalVatAmount, captions.totalAmount],
                top);
    var y = top + VAT_LINE;
    drawLine(LEFT_MARGIN, y, VAT_RIGHT_EDGES[VAT_RIGHT_EDGES.length - 1], y);
    y += VAT_RULE_GAP;
    font(ROW_SIZE);
    for (var i = 0; i < invoice.vat.length; i++)
        drawVatLine(invoice.vat[i], y + i * VAT_LINE);
}

function drawVatLine(cells, y)
{
    for (var i = 0; i < cells.length; i++)
        drawTextRight(LEFT_MARGIN, y, VAT_RIGHT_EDGES[i] - LEFT_MARGIN, 0, cells[i]);
}
