#include "settings.h"

#include "vat.h"

QString Settings::referenceNumberTemplate() const
{
    const QString form = property(QStringLiteral("settings/referenceNumberTemplate")).toString();
    if (!form.isEmpty())
        return form;
    const QString suffix = property(QStringLiteral("settings/referenceNumberSuffix")).toString();
    return QLatin1String("{I}") + suffix.rightJustified(2, QLatin1Char('0')); // "00" without a suffix
}

int Settings::roundingMode() const
{
    return property(QStringLiteral("invoiceForm/roundingMode"), Vat::roundPerRate).toInt();
}
