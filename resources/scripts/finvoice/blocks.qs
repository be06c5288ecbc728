// ---------------------------------------------------------------------------------------------------------- Blocks

// The addresses of the transmission frame, which are told inside the document only when all are known.
function writeTransmission(invoice)
{
    var sender = identifierAt("settings/senderId");
    var senderIntermediator = identifierAt("settings/intermediatorId");
    var receiver = identifierAt("invoice/customer/receiverId") || identifierAt("settings/defaultReceiverId");
    var receiverIntermediator = identifierAt("invoice/customer/intermediatorId");
    if (isShort(sender) || isShort(senderIntermediator) || isShort(receiver) || isShort(receiverIntermediator))
        return;
    startElement("MessageTransmissionDetails");
    startElement("MessageSenderDetails");
    textElement("FromIdentifier", sender);
    textElement("FromIntermediator", senderIntermediator);
    endElement("MessageSenderDetails");
    startElement("MessageReceiverDetails");
    textElement("ToIdentifier", receiver);
    textElement("ToIntermediator", receiverIntermediator);
    endElement("MessageReceiverDetails");
    startElement("MessageDetails");
    textElement("MessageIdentifier", padded(invoice.number, 2));
    textElement("MessageTimeStamp", timeStamp());
    endElement("MessageDetails");
    endElement("MessageTransmissionDetails");
}

function writeSeller(invoice)
{
    startElement("SellerPartyDetails");
    optional("SellerPartyIdentifier", invoice.sellerId);
    repeated("SellerOrganisationName", invoice.sellerNames);
    optional("SellerOrganisationTaxCode", invoice.sellerVatNumber);
    writeAddress("Seller", "seller/");
    endElement("SellerPartyDetails");
    optional("SellerOrganisationUnitNumber", identifierAt("seller/edi"));
    writeCommunication("Seller", "seller/");
}

function writeSellerInformation(invoice)
{
    startElement("SellerInformationDetails");
    if (invoice.sellerVatNumber !== "")
        textElement("SellerVatRegistrationText", invoice.texts.vatRegistered);
    optional("SellerPhoneNumber", identifierAt("seller/phoneNumber"));
    optional("SellerCommonEmailaddressIdentifier", fitting(textAt("seller/emailAddress"), EMAIL_LENGTH));
    optional("SellerWebaddressIdentifier", identifierAt("seller/webAddressShort"));
    var footers = linesAt("settings/footerText1");
    footers = footers.concat(linesAt("settings/footerText2"), linesAt("settings/footerText3"));
    optional("SellerFreeText", cut(footers.join(" "), FREE_TEXT_LENGTH));
    for (var i = 0; i < invoice.accounts.length; i++)
        writeSellerAccount(invoice.accounts[i]);
    writeRecipientAddress();
    endElement("SellerInformationDetails");
}

// The schema has no place for an account without its bank.
function writeSellerAccount(account)
{
    if (account.bic === "")
        return;
    startElement("SellerAccountDetails");
    attributed("SellerAccountID", "IdentificationSchemeName", "IBAN", account.iban);
    attributed("SellerBic", "IdentificationSchemeName", "BIC", account.bic);
    endElement("SellerAccountDetails");
}

// Where the seller itself receives e-invoices.
function writeRecipientAddress()
{
    var address = identifierAt("seller/edi") || identifierAt("settings/senderId");
    var intermediator = textAt("settings/intermediatorId");
    if (address === "" || !INTERMEDIATOR.test(intermediator))
        return;
    startElement("InvoiceRecipientDetails");
    textElement("InvoiceRecipientAddress", address);
    textElement("InvoiceRecipientIntermediatorAddress", intermediator);
    endElement("InvoiceRecipientDetails");
}

function writeBuyer(invoice)
{
    startElement("BuyerPartyDetails");
    optional("BuyerPartyIdentifier", identifierAt("invoice/customer/businessId"));
    repeated("BuyerOrganisationName", invoice.buyerNames);
    optional("BuyerOrganisationTaxCode", identifierAt("invoice/customer/vatNumber"));
    writeAddress("Buyer", "invoice/customer/");
    endElement("BuyerPartyDetails");
    optional("BuyerOrganisationUnitNumber", identifierAt("invoice/customer/edi"));
    optional("BuyerContactPersonName", cut(textAt("invoice/customer/contact"), NAME_LENGTH));
    writeCommunication("Buyer", "invoice/customer/");
}

// All or nothing: an address without street, town or post code is left out.
function writeAddress(party, path)
{
    var streets = pieces(linesAt(path + "streetName"), NAME_LENGTH);
    var town = cut(textAt(path + "townName"), NAME_LENGTH);
    var postCode = cut(textAt(path + "postCode"), NAME_LENGTH);
    for (var i = streets.length - 1; i >= 0; i--) {
        if (isShort(streets[i]))
            streets.splice(i, 1);
    }
    if (streets.length == 0 || isShort(town) || isShort(postCode))
        return;
    startElement(party + "PostalAddressDetails");
    repeated(party + "StreetName", streets.slice(0, MOST_STREET_LINES));
    textElement(party + "TownName", town);
    textElement(party + "PostCodeIdentifier", postCode);
    writeCountry(textAt(path + "country"));
    endElement(party + "PostalAddressDetails");
}

function writeCountry(country)
{
    var isCode = /^[A-Za-z]{2}$/.test(country);
    var name = country.toLowerCase();
    if (isCode)
        textElement("CountryCode", country.toUpperCase());
    else if (COUNTRY_CODES.hasOwnProperty(name))
        textElement("CountryCode", COUNTRY_CODES[name]);
    if (!isCode)
        optional("CountryName", cut(country, NAME_LENGTH));
}

function writeCommunication(party, path)
{
    var phone = identifierAt(path + "phoneNumber");
    var email = fitting(textAt(path + "emailAddress"), EMAIL_LENGTH);
    if (phone === "" && email === "")
        return;
    startElement(party + "CommunicationDetails");
    optional(party + "PhoneNumberIdentifier", phone);
    optional(party + "EmailaddressIdentifier", email);
    endElement(party + "CommunicationDetails");
}

function writeDelivery()
{
    var date = dateAt("invoice/deliveryDate");
    var terms = cut(textAt("invoice/delivery"), FREE_TEXT_LENGTH);
    if (date === "" && terms === "")
        return;
    startElement("DeliveryDetails");
    dateElement("DeliveryDate", date);
    optional("DeliveryTermsText", terms);
    endElement("DeliveryDetails");
}

function writeInvoiceDetails(invoice)
{
    startElement("InvoiceDetails");
    textElement("InvoiceTypeCode", invoice.kind.code);
    textElement("InvoiceTypeText", invoice.title);
    textElement("OriginCode", "Original");
    textElement("InvoiceNumber", String(invoice.number));
    dateElement("InvoiceDate", invoice.date);
    if (invoice.kind.repeated)
        textElement("OriginalInvoiceNumber", String(invoice.number));
    optional("SellerReferenceIdentifier", cut(invoice.sellerRef, IDENTIFIER_LENGTH));
    var customer = numberAt("invoice/customer/number");
    optional("SellersBuyerIdentifier", customer > 0 ? String(customer) : "");
    optional("BuyerReferenceIdentifier", cut(invoice.buyerRef, IDENTIFIER_LENGTH));
    writeTotals(invoice);
    for (var i = 0; i < invoice.vat.length; i++)
        writeVatSpecification(invoice.vat[i]);
    writeFreeTexts(invoice);
    writePaymentTerms(invoice);
    endElement("InvoiceDetails");
}

// The stored total is what the buyer is asked for; should it differ from the sum of the rows, the schema's roundoff
// tells by how much.
function writeTotals(invoice)
{
    amount("InvoiceTotalVatExcludedAmount", invoice.totalVatExcluded);
    amount("InvoiceTotalVatAmount", invoice.totalVat);
    amount("InvoiceTotalVatIncludedAmount", invoice.total);
    var roundoff = invoice.total - invoice.totalVatExcluded - invoice.totalVat;
    if (roundoff != 0)
        amount("InvoiceTotalRoundoffAmount", roundoff);
}

// The rate of rows that are only text is no rate of the invoice.
function writeVatSpecification(part)
{
    if (part.rows.length == 0)
        return;
    startElement("VatSpecificationDetails");
    amount("VatBaseAmount", part.vatExcluded);
    textElement("VatRatePercent", percentText(part.rate));
    amount("VatRateAmount", part.vat);
    endElement("VatSpecificationDetails");
}

function writeFreeTexts(invoice)
{
    var lines = invoice.kind.repeated ? linesAt("settings/reminderText") : [];
    lines = lines.concat(linesAt("invoice/noticeText1"), linesAt("invoice/noticeText2"));
    var complaints = textAt("invoice/periodForComplaints");
    if (complaints !== "")
        lines.push(invoice.texts.periodForComplaints + ": " + complaints);
    // What has to be cut elsewhere is told whole.
    if (invoice.buyerRef.length > IDENTIFIER_LENGTH)
        lines.push(invoice.texts.buyerRef + ": " + invoice.buyerRef);
    if (invoice.sellerRef.length > IDENTIFIER_LENGTH)
        lines.push(invoice.texts.sellerRef + ": " + invoice.sellerRef);
    if (invoice.terms.length > MOST_TERMS_LINES)
        lines.push(textAt("invoice/paymentTerms"));
    repeated("InvoiceFreeText", pieces(lines, FREE_TEXT_LENGTH));
}

function writePaymentTerms(invoice)
{
    var terms = invoice.terms.slice(0, MOST_TERMS_LINES);
    if (terms.length == 0)
        terms.push(invoice.texts.dueDate + " " + formatDate(dueDateOf(invoice), SHOWN_DATE_FORMAT));
    startElement("PaymentTermsDetails");
    repeated("PaymentTermsFreeText", terms);
    dateElement("InvoiceDueDate", invoice.dueDate || invoice.date);
    var interest = numberAt("invoice/interestOnArrears");
    if (invoice.kind.payable && interest != 0) {
        startElement("PaymentOverDueFineDetails");
        textElement("PaymentOverDueFineFreeText", invoice.texts.interestOnArrears + " " + percentText(interest) + " %");
        textElement("PaymentOverDueFinePercent", percentText(interest));
        endElement("PaymentOverDueFineDetails");
    }
    endElement("PaymentTermsDetails");
}

function writePaymentStatus(invoice)
{
    var kind = invoice.kind;
    var status = kind.paid ? "PAID" : "";
    if (kind.payable && invoice.total > 0 && invoice.balance < invoice.total)
        status = invoice.balance > 0 ? "PARTLYPAID" : "PAID";
    if (status === "")
        return;
    startElement("PaymentStatusDetails");
    textElement("PaymentStatusCode", status);
    endElement("PaymentStatusDetails");
}

// The model's barcode asks for the whole total; here the sum that is still to be paid stands in its place.
function writeBarcode(invoice)
{
    var digits = textAt("invoice/barcode4");
    var sum = padded(invoice.toPay, BARCODE_AMOUNT_DIGITS);
    if (invoice.toPay == 0 || sum.length > BARCODE_AMOUNT_DIGITS || !BARCODE.test(digits))
        return;
    textElement("VirtualBankBarcode", digits.substr(0, BARCODE_AMOUNT_START) + sum
        + digits.substr(BARCODE_AMOUNT_START + BARCODE_AMOUNT_DIGITS));
}

// The schema demands at least one row, but nothing in it.
function writeRows(invoice)
{
    for (var i = 0; i < invoice.rows.length; i++)
        writeRow(invoice, invoice.rows[i]);
    if (invoice.rows.length == 0) {
        startElement("InvoiceRow");
        endElement("InvoiceRow");
    }
}

function writeRow(invoice, row)
{
    var end = row.name.length > ARTICLE_NAME_LENGTH ? splitPosition(row.name, ARTICLE_NAME_LENGTH) : row.name.length;
    var lines = row.lines;
    if (end < row.name.length)
        lines.unshift(trimmed(row.name.substr(end)));
    if (row.number.length > IDENTIFIER_LENGTH)
        lines.unshift(row.number);
    if (row.discount < 0 && !row.isText)
        lines.push(invoice.texts.surcharge + " " + percentText(-row.discount) + " %");
    startElement("InvoiceRow");
    optional("ArticleIdentifier", cut(row.number, IDENTIFIER_LENGTH));
    optional("ArticleName", trimmed(row.name.substr(0, end)));
    if (!row.isText)
        writeQuantity(row);
    repeated("RowFreeText", pieces(lines, FREE_TEXT_LENGTH));
    if (!row.isText)
        writeRowSums(row);
    endElement("InvoiceRow");
}

function writeQuantity(row)
{
    startElement("DeliveredQuantity");
    if (row.unit !== "")
        attribute("QuantityUnitCode", row.unit);
    characters(formatNumber(row.quantity, QUANTITY_SCALE, 0));
    endElement("DeliveredQuantity");
    startElement("UnitPriceAmount");
    attribute("AmountCurrencyIdentifier", CURRENCY);
    if (row.unit !== "")
        attribute("UnitPriceUnitCode", row.unit);
    characters(priceText(row.price));
    endElement("UnitPriceAmount");
}

function writeRowSums(row)
{
    if (row.discount > 0)
        textElement("RowDiscountPercent", percentText(row.discount));
    textElement("RowVatRatePercent", percentText(row.rate));
    amount("RowVatAmount", row.total - row.vatExcluded);
    amount("RowVatExcludedAmount", row.vatExcluded);
    amount("RowAmount", row.total);
}

// The payment order that the payer's bank makes of the invoice.
function writeEpi(invoice)
{
    var account = invoice.accounts[0];
    startElement("EpiDetails");
    startElement("EpiIdentificationDetails");
    dateElement("EpiDate", invoice.date);
    textElement("EpiReference", String(invoice.number));
    endElement("EpiIdentificationDetails");
    startElement("EpiPartyDetails");
    startElement("EpiBfiPartyDetails");
    if (account.bic !== "")
        attributed("EpiBfiIdentifier", "IdentificationSchemeName", "BIC", account.bic);
    endElement("EpiBfiPartyDetails");
    startElement("EpiBeneficiaryPartyDetails");
    textElement("EpiNameAddressDetails", invoice.sellerNames[0]);
    attributed("EpiAccountID", "IdentificationSchemeName", "IBAN", account.iban);
    endElement("EpiBeneficiaryPartyDetails");
    endElement("EpiPartyDetails");
    writePaymentInstruction(invoice);
    endElement("EpiDetails");
}

function writePaymentInstruction(invoice)
{
    startElement("EpiPaymentInstructionDetails");
    var instruction = textAt("settings/epiPaymentInstructionId");
    if (INSTRUCTION.test(instruction))
        textElement("EpiPaymentInstructionId", instruction);
    if (RF_REFERENCE.test(invoice.reference))
        attributed("EpiRemittanceInfoIdentifier", "IdentificationSchemeName", "ISO", invoice.reference);
    else
        attributed("EpiRemittanceInfoIdentifier", "IdentificationSchemeName", "SPY",
                   padded(invoice.reference, REFERENCE_DIGITS));
    amount("EpiInstructedAmount", invoice.toPay);
    attributed("EpiCharge", "ChargeOption", "SHA", "SHA");
    dateElement("EpiDateOptionDate", invoice.dueDate || invoice.date);
    endElement("EpiPaymentInstructionDetails");
}
