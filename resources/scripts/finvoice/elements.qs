// -------------------------------------------------------------------------------------------------------- Elements

function optional(name, text)
{
    if (text !== "")
        textElement(name, text);
}

function repeated(name, texts)
{
    for (var i = 0; i < texts.length; i++)
        textElement(name, texts[i]);
}

function attributed(name, attributeName, attributeValue, text)
{
    startElement(name);
    attribute(attributeName, attributeValue);
    characters(text);
    endElement(name);
}

function amount(name, cents) { attributed(name, "AmountCurrencyIdentifier", CURRENCY, formatCurrency(cents)); }

function dateElement(name, date)
{
    if (date !== "")
        attributed(name, "Format", DATE_PATTERN, date);
}
