// ---------------------------------------------------------------------------------------------- Bank transfer form

function formY(units) { return FORM_TOP + units * FORM_UNIT; }

function drawForm(invoice, seller)
{
    var form = invoice.texts.form;
    drawFormLines();
    drawFormCaptions(form);
    drawFormParties(invoice, seller);
    drawFormPayment(invoice);
    if (invoice.barcode !== "")
        drawBarcode128C(BARCODE_LEFT, BARCODE_TOP, BARCODE_WIDTH, BARCODE_HEIGHT, invoice.barcode);
    font(FORM_CONDITIONS_SIZE);
    drawBlock(CONDITIONS_LEFT, formY(FORM_AMOUNT_END) + CONDITIONS_TOP,
              wrap(form.conditions, FORM_RIGHT - CONDITIONS_LEFT, FORM_CONDITIONS_LINE));
}

function drawFormLines()
{
    var bottom = formY(FORM_AMOUNT_END);
    var signature = formY(FORM_PAYER_END) - FORM_SIGNATURE_LINE;
    setPen(COLOR, FORM_THIN_LINE);
    drawLine(FORM_LEFT, FORM_TOP, FORM_RIGHT, FORM_TOP);
    drawLine(FORM_COLUMN_1 + FORM_PADDING, signature, FORM_COLUMN_2 - FORM_PADDING, signature);
    drawLine(FORM_VALUES, formY(FORM_REFERENCE_START), FORM_VALUES, bottom);
    drawLine(FORM_EURO, formY(FORM_PAYER_END), FORM_EURO, bottom);
    setPen(COLOR, THICK_LINE);
    drawLine(FORM_LEFT, formY(FORM_ACCOUNTS_END), FORM_COLUMN_2, formY(FORM_ACCOUNTS_END));
    drawLine(FORM_LEFT, formY(FORM_PAYEE_END), FORM_COLUMN_2, formY(FORM_PAYEE_END));
    drawLine(FORM_COLUMN_2, formY(FORM_REFERENCE_START), FORM_RIGHT, formY(FORM_REFERENCE_START));
    drawLine(FORM_LEFT, formY(FORM_PAYER_END), FORM_RIGHT, formY(FORM_PAYER_END));
    drawLine(FORM_LEFT, bottom, FORM_RIGHT, bottom);
    drawLine(FORM_COLUMN_1, FORM_TOP, FORM_COLUMN_1, bottom);
    drawLine(FORM_COLUMN_2, FORM_TOP, FORM_COLUMN_2, bottom);
}

function drawFormCaptions(form)
{
    font(FORM_CAPTION_SIZE);
    setLineHeight(FORM_CAPTION_LINE);
    drawSideCaption(form.account, formY(0));
    drawSideCaption(form.payee, formY(FORM_ACCOUNTS_END));
    drawSideCaption(form.payer, formY(FORM_PAYEE_END));
    drawSideCaption(form.fromAccount, formY(FORM_PAYER_END));
    drawCaption(FORM_COLUMN_2 + FORM_PADDING, formY(FORM_REFERENCE_START), form.reference);
    drawCaption(FORM_COLUMN_2 + FORM_PADDING, formY(FORM_PAYER_END), form.dueDate);
    drawCaption(FORM_EURO + FORM_PADDING, formY(FORM_PAYER_END), "Euro");
    drawCaption(FORM_IBAN, FORM_TOP, "IBAN");
    drawCaption(FORM_BIC, FORM_TOP, "BIC");
    font(FORM_CONDITIONS_SIZE); // smaller, to keep clear of the heading
    drawSideCaption(form.signature, formY(FORM_PAYER_END) - captionHeight(form.signature));
    // Upwards along the left edge, beginning at the thick line below the payer
    font(SMALL_SIZE);
    rotate(-90);
    drawText(-formY(FORM_PAYER_END) + FORM_CAPTION_TOP, FORM_HEADING_LEFT, FORM_HEIGHT, 0, form.heading);
    rotate(90);
}

function captionHeight(caption) { return caption.split("\n").length * FORM_CAPTION_LINE + 2 * FORM_CAPTION_TOP; }

function drawCaption(x, y, caption)
{
    drawText(x, y + FORM_CAPTION_TOP, FORM_COLUMN_2, captionHeight(caption) - FORM_CAPTION_LINE, caption);
}

function drawSideCaption(caption, y)
{
    drawTextRight(FORM_LEFT - FORM_PADDING, y + FORM_CAPTION_TOP, FORM_CAPTION_RIGHT - FORM_LEFT + FORM_PADDING,
                  captionHeight(caption) - FORM_CAPTION_LINE, caption);
}

function drawFormParties(invoice, seller)
{
    var x = FORM_COLUMN_1 + FORM_PADDING;
    var width = FORM_COLUMN_2 - FORM_PADDING - x;
    font(ROW_SIZE);
    var count = Math.min(seller.accounts.length, FORM_MOST_ACCOUNTS);
    var line = Math.min(FORM_LINE, (FORM_ACCOUNTS_END * FORM_UNIT - FORM_ACCOUNTS_TOP) / Math.max(1, count));
    for (var i = 0; i < count; i++)
        drawAccount(seller.accounts[i], FORM_TOP + FORM_ACCOUNTS_TOP + i * line, x, FORM_IBAN, FORM_BIC, FORM_COLUMN_2);
    drawParty(joined([seller.name, seller.streetName, seller.town], "\n"), x, width, FORM_ACCOUNTS_END, FORM_PAYEE_END);
    drawParty(invoice.address, x, width, FORM_PAYEE_END, FORM_SIGNATURE_START);
}

// A name and address in the rows of the form between two heights, given in units; many lines stand closer.
function drawParty(address, x, width, start, end)
{
    var room = (end - start) * FORM_UNIT - FORM_CAPTION_TOP;
    var block = wrap(address, width, FORM_LINE);
    if (block.height > room)
        block.pitch = Math.max(FORM_LEAST_LINE, room / block.lines);
    shortenBlock(block, room);
    drawBlock(x, formY(start) + FORM_CAPTION_TOP, block);
}

function drawFormPayment(invoice)
{
    var texts = invoice.texts;
    var x = FORM_COLUMN_2 + FORM_PADDING;
    var width = FORM_RIGHT - FORM_PADDING - x;
    var useReference = invoice.payable && invoice.referenceNumber !== "";
    font(ROW_SIZE);
    drawBlock(x, FORM_TOP + FORM_MESSAGE_TOP, wrap(joined([
        prefixed(texts.header.invoiceNumber, invoice.number),
        prefixed(texts.header.customerNumber, invoice.customerNumber),
        invoice.payable ? "" : "\n" + texts.nothingToPay,
        useReference ? "\n" + texts.useReference : ""
    ], "\n"), width, FORM_LINE));
    font(NORMAL_SIZE);
    var valueX = FORM_VALUES + FORM_PADDING;
    drawText(valueX, formY(FORM_REFERENCE_START) + FORM_VALUE_TOP, FORM_RIGHT - valueX, 0, formReference(invoice));
    if (!invoice.payable)
        return;
    var y = formY(FORM_PAYER_END) + FORM_VALUE_TOP;
    drawText(valueX, y, FORM_EURO - valueX, 0, invoice.dueDate);
    if (invoice.balance > 0)
        drawTextRight(FORM_EURO, y, FORM_RIGHT - FORM_PADDING - FORM_EURO, 0, formatCurrency(invoice.balance));
}

// The international form of the reference on English documents, where its check digits are those of ISO 11649: the
// system weighs the last twenty digits only, so with a reference of more than 14 they are its own.
function formReference(invoice)
{
    var isNational = /^[0-9]+$/.test(textAt(invoice.path + "referenceNumberRaw"));
    var digits = invoice.referenceNumber.replace(/ /g, "").length;
    if (invoice.texts === TEXTS.en && isNational && digits <= RF_MOST_DIGITS)
        return textAt(invoice.path + "referenceNumberRf");
    return invoice.referenceNumber;
}
