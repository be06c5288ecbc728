#include "templatestringhelper.h"

#include "bankaccount.h"
#include "constants.h"
#include "customer.h"
#include "integer.h"
#include "invoice.h"
#include "registry.h"
#include "settings.h"

#include <QDir>
#include <QRegExp>

namespace {

using Helper = TemplateStringHelper;

struct CustomerText {
    const char *name;
    QString Customer::*field;
};

constexpr CustomerText customerTexts[] = {
    {"customer/name", &Customer::name},
    {"customer/streetName", &Customer::streetName},
    {"customer/postCode", &Customer::postCode},
    {"customer/townName", &Customer::townName},
    {"customer/country", &Customer::country},
    {"customer/contact", &Customer::contact},
    {"customer/vatNumber", &Customer::vatNumber},
    {"customer/emailAddress", &Customer::emailAddress},
    {"customer/phoneNumber", &Customer::phoneNumber},
};

QString shortDate(const QDate &date) { return QLocale::system().toString(date, QLocale::ShortFormat); }

struct InvoiceText {
    const char *name;
    QString (*value)(const Invoice &);
};

// What needs no formatter and no settings.
const InvoiceText invoiceTexts[] = {
    {"number", [](const Invoice &i) { return QString::number(i.number); }},
    {"date", [](const Invoice &i) { return shortDate(i.date); }},
    {"paymentTerms", [](const Invoice &i) { return i.paymentTerms; }},
    {"delivery", [](const Invoice &i) { return i.delivery; }},
    {"buyerRef", [](const Invoice &i) { return i.buyerRef; }},
    {"sellerRef", [](const Invoice &i) { return i.sellerRef; }},
    {"dueDate", [](const Invoice &i) { return shortDate(i.dueDate); }},
    {"referenceNumber", [](const Invoice &i) { return Invoice::formatReferenceNumber(i.referenceNumber); }},
    {"referenceNumberRaw", [](const Invoice &i) { return i.referenceNumber; }},
    {"referenceNumberSpy", [](const Invoice &i) { return Invoice::formatSpyReferenceNumber(i.referenceNumber); }},
    {"referenceNumberRf",
     [](const Invoice &i) {
         return Invoice::formatRfReferenceNumber(Invoice::referenceNumberToRf(i.referenceNumber));
     }},
    {"referenceNumberRfRaw", [](const Invoice &i) { return Invoice::referenceNumberToRf(i.referenceNumber); }},
    {"noticeText1", [](const Invoice &i) { return i.property(QStringLiteral("t1")).toString(); }},
    {"noticeText2", [](const Invoice &i) { return i.property(QStringLiteral("t2")).toString(); }},
};

struct FileNameText {
    char letter; ///< upper case
    QString Customer::*field;
    bool hasSlug; ///< the lower-case letter gives the ASCII slug
};

constexpr FileNameText fileNameTexts[] = {
    {'N', &Customer::name, true},      {'V', &Customer::vatNumber, false}, {'S', &Customer::streetName, true},
    {'P', &Customer::postCode, false}, {'T', &Customer::townName, true},   {'E', &Customer::emailAddress, true},
};

QString fileNameVariable(QChar letter, const Invoice *invoice, const Customer *customer, int kind)
{
    const QChar upper = letter.toUpper();
    const bool isLower = letter != upper;
    switch (upper.unicode()) {
    case 'H': {
        const QString title = Helper::documentTitle(kind >= Helper::reminder || !invoice ? kind : invoice->type);
        return isLower ? Helper::toAscii(title) : title;
    }
    case 'I':
        return invoice ? QString::number(invoice->number) : QString();
    case 'R':
        return invoice ? invoice->referenceNumber : QString();
    case 'J':
        return customer ? QString::number(customer->number) : QString();
    default:
        break;
    }
    for (const FileNameText &text : fileNameTexts) {
        if (customer && upper == QLatin1Char(text.letter)) {
            const QString &value = customer->*text.field;
            return isLower && text.hasSlug ? Helper::toAscii(value) : Helper::removeInvalidCharacters(value);
        }
    }
    return QString();
}

} // namespace

TemplateStringHelper::TemplateStringHelper(Registry *registry)
    : m_registry(registry),
      m_totalFormat(Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits),
      m_percentageFormat(Constants::percentageFractionDigits, Constants::percentageMinFractionDigits)
{
}

QString TemplateStringHelper::replaceMatches(const QString &text, QRegExp pattern, const Value &value)
{
    pattern.setMinimal(true);
    QString result = text;
    int position = 0;
    while ((position = pattern.indexIn(result, position)) >= 0) {
        const QString replacement = value(pattern.cap(1));
        result.replace(position, pattern.matchedLength(), replacement);
        position += replacement.size();
    }
    return result;
}

QString TemplateStringHelper::substituteVariables(const QString &text, const Invoice *invoice,
                                                  const Customer *customer) const
{
    if (!text.contains(QLatin1Char('{'))) // most texts hold no variable, and patterns are slow to make
        return text;
    const QString expanded =
        replaceMatches(text, QRegExp(QStringLiteral("\\{\\{\\s?([\\w\\d/]+)\\s?\\}\\}")),
                       [&](const QString &name) { return valueForVariable(name, invoice, customer); });
    return replaceMatches(expanded, QRegExp(QStringLiteral("\\{\\s?(.{1,4})\\s?\\}")), [&](const QString &spec) {
        return valueForShortVariable(spec.trimmed(), invoice, customer);
    });
}

QString TemplateStringHelper::valueForVariable(const QString &name, const Invoice *invoice,
                                               const Customer *customer) const
{
    if (name == QLatin1String("periodForComplaints"))
        return m_registry->settings()->property(QStringLiteral("settings/periodForComplaints")).toString();

    if (invoice) {
        for (const InvoiceText &text : invoiceTexts) {
            if (name == QLatin1String(text.name))
                return text.value(*invoice);
        }
        if (name == QLatin1String("interestOnArrears"))
            return m_percentageFormat.format(invoice->interestOnArrears);
        if (name == QLatin1String("totalAmount"))
            return m_totalFormat.format(invoice->totalAmount);
        if (name == QLatin1String("balance"))
            return m_totalFormat.format(invoice->balance);
        if (name == QLatin1String("barcode") || name == QLatin1String("barcode4"))
            return createBarcode(invoice, 4);
        if (name == QLatin1String("barcode5"))
            return createBarcode(invoice, 5);
    }
    if (customer) {
        for (const CustomerText &text : customerTexts) {
            if (name == QLatin1String(text.name))
                return customer->*text.field;
        }
        if (name == QLatin1String("customer/number"))
            return QString::number(customer->number);
        if (name == QLatin1String("customer/custom1"))
            return customer->property(QStringLiteral("c1")).toString();
        if (name == QLatin1String("customer/custom2"))
            return customer->property(QStringLiteral("c2")).toString();
    }
    return QString();
}

QString TemplateStringHelper::valueForShortVariable(const QString &spec, const Invoice *invoice,
                                                    const Customer *customer) const
{
    if (spec.isEmpty())
        return QString();
    QString widthText = spec.mid(1);
    QChar alignment = QLatin1Char('>');
    if (!widthText.isEmpty() && !widthText.at(widthText.size() - 1).isDigit()) {
        alignment = widthText.at(widthText.size() - 1);
        widthText.chop(1);
    }
    int width = 0;
    if (!widthText.isEmpty()) {
        bool ok = false;
        width = Integer::parse(widthText, ok);
        if (!ok)
            return QString();
    }
    QString value;
    if (spec.at(0) == QLatin1Char('I') && invoice)
        value = QString::number(invoice->number);
    else if (spec.at(0) == QLatin1Char('C') && customer)
        value = QString::number(customer->number);
    else
        return QString();
    if (alignment == QLatin1Char('>'))
        return value.rightJustified(width, QLatin1Char('0'));
    if (alignment == QLatin1Char('<'))
        return value.leftJustified(width, QLatin1Char('0'));
    return value;
}

QString TemplateStringHelper::substituteShortVariables(const QString &text, const Invoice *invoice,
                                                       const Customer *customer, int kind)
{
    QString result;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('$')) {
            result += text.at(i);
        } else if (++i < text.size()) {
            const QChar letter = text.at(i);
            result += letter == QLatin1Char('$') ? QString(letter) : fileNameVariable(letter, invoice, customer, kind);
        }
    }
    return result;
}

QString TemplateStringHelper::createBarcode(const Invoice *invoice, int version) const
{
    for (int i = 0; i < m_registry->bankAccountCount(); ++i) {
        const BankAccount *account = m_registry->bankAccount(i);
        if (account->visible)
            return invoice->barcode(account, version);
    }
    return QString();
}

QFileInfo TemplateStringHelper::addSuffixToFilename(const QFileInfo &file)
{
    for (int n = 1;; ++n) {
        const QFileInfo candidate(
            file.dir(), QStringLiteral("%1-%2.%3").arg(file.completeBaseName(), QString::number(n), file.suffix()));
        if (!candidate.exists())
            return candidate;
    }
}

QString TemplateStringHelper::removeInvalidCharacters(const QString &text)
{
    static const QString invalid = QStringLiteral("|\\!?*<\":>+[]/");
    QString result;
    for (const QChar c : text) {
        if (!invalid.contains(c))
            result += c;
    }
    return result;
}

QString TemplateStringHelper::toAscii(const QString &text)
{
    QString result;
    const QString decomposed = text.toLower().normalized(QString::NormalizationForm_D);
    for (const QChar c : decomposed) {
        const bool isAsciiLetter = c >= QLatin1Char('a') && c <= QLatin1Char('z');
        if (isAsciiLetter || c.isDigit())
            result += c;
        else if ((c == QLatin1Char(' ') || c == QLatin1Char('-')) && !result.isEmpty() &&
                 !result.endsWith(QLatin1Char('-')))
            result += QLatin1Char('-');
    }
    if (result.endsWith(QLatin1Char('-')))
        result.chop(1);
    return result;
}

QString TemplateStringHelper::documentTitle(int index)
{
    static const char *const titles[] = {
        QT_TR_NOOP("Lasku"),          QT_TR_NOOP("Korkolasku"), QT_TR_NOOP("Hyvityslasku"),
        QT_TR_NOOP("Maksumuistutus"), QT_TR_NOOP("Kuitti"),     QT_TR_NOOP("Lähete"),
    };
    const bool known = index >= 0 && index < static_cast<int>(std::size(titles));
    return tr(titles[known ? index : 0]);
}
