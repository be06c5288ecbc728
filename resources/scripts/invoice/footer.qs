// ----------------------------------------------------------------------------------------------------------- Footer

function layOutFooter(invoice, seller)
{
    var captions = invoice.texts.footer;
    var footer = { accounts: seller.accounts.slice(0, FOOTER_MOST_LINES), texts: [] };
    footer.columns = [
        layOutFooterColumn(0, [seller.name, seller.streetName, seller.town,
                               prefixed(captions.businessId, seller.businessId)]),
        layOutFooterColumn(1, [prefixed(captions.phone, seller.phoneNumber), seller.emailAddress,
                               seller.webAddressShort, prefixed(captions.vatNumber, seller.vatNumber)])
    ];
    footer.textTop = FOOTER_PADDING + Math.max(footer.columns[0].height, footer.columns[1].height,
                                               footer.accounts.length * FOOTER_LINE);
    footer.textWidth = CONTENT_WIDTH / Math.max(1, seller.footerTexts.length);
    font(SMALL_SIZE);
    var textHeight = 0;
    for (var i = 0; i < seller.footerTexts.length; i++) {
        footer.texts.push(wrap(seller.footerTexts[i], footer.textWidth - FOOTER_COLUMN_GAP, FOOTER_LINE));
        shortenBlock(footer.texts[i], FOOTER_MOST_LINES * FOOTER_LINE);
        textHeight = Math.max(textHeight, footer.texts[i].height);
    }
    footer.height = footer.textTop + (textHeight > 0 ? FOOTER_PADDING + textHeight : 0);
    return footer;
}

// The filled values below one another. One that is too long gets smaller letters, or else several lines.
function layOutFooterColumn(column, values)
{
    var laidOut = { x: FOOTER_COLUMNS[column], blocks: [], height: 0 };
    var width = FOOTER_COLUMNS[column + 1] - FOOTER_COLUMNS[column] - FOOTER_COLUMN_GAP;
    for (var i = 0; i < values.length; i++) {
        var size = SMALL_SIZE;
        font(size);
        while (!fits(values[i], width) && size > FOOTER_LEAST_SIZE)
            font(--size);
        if (!fits(values[i], width))
            font(size = SMALL_SIZE);
        var block = wrap(values[i], width, FOOTER_LINE);
        shortenBlock(block, FOOTER_MOST_LINES * FOOTER_LINE - laidOut.height);
        block.size = size;
        laidOut.blocks.push(block);
        laidOut.height += block.height;
    }
    return laidOut;
}

function drawFooter(footer, bottom)
{
    var top = bottom - footer.height;
    drawLine(LEFT_MARGIN, top, RIGHT_EDGE, top);
    var y = top + FOOTER_PADDING;
    for (var i = 0; i < footer.columns.length; i++)
        drawFooterColumn(footer.columns[i], y);
    font(SMALL_SIZE);
    for (var j = 0; j < footer.accounts.length; j++)
        drawAccount(footer.accounts[j], y + j * FOOTER_LINE, FOOTER_COLUMNS[2], FOOTER_IBAN, FOOTER_BIC, RIGHT_EDGE);
    for (var k = 0; k < footer.texts.length; k++)
        drawBlock(LEFT_MARGIN + k * footer.textWidth, top + footer.textTop + FOOTER_PADDING, footer.texts[k]);
}

function drawFooterColumn(column, y)
{
    for (var i = 0; i < column.blocks.length; i++) {
        font(column.blocks[i].size);
        drawBlock(column.x, y, column.blocks[i]);
        y += column.blocks[i].height;
    }
}

// Bank, IBAN and BIC on one line. A long IBAN needs the place of the bank's name, or smaller letters: it is never cut.
function drawAccount(account, y, left, ibanX, bicX, right)
{
    if (fits(account.iban, bicX - ibanX - ACCOUNT_GAP)) {
        drawFitted(left, y, ibanX - left - ACCOUNT_GAP, account.name);
        drawText(ibanX, y, bicX - ibanX, 0, account.iban);
    } else {
        var size = fontSize;
        if (!fits(account.iban, bicX - left - ACCOUNT_GAP))
            font(SMALL_SIZE);
        drawText(left, y, bicX - left, 0, account.iban);
        font(size);
    }
    drawFitted(bicX, y, right - bicX, account.bic);
}
