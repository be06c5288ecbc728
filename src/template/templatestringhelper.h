#ifndef TEMPLATESTRINGHELPER_H
#define TEMPLATESTRINGHELPER_H

#include "decimalformat.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QString>

#include <functional>

class Customer;
class Invoice;
class QRegExp;
class Registry;

/**
 * Expands templates: `{{name}}` and `{X}` in invoice texts and reference numbers, `$X` in file names. A missing invoice
 * or customer (null) and an unknown name give an empty text. Values are not expanded again, but for `{X}` in the value
 * of a `{{name}}`.
 */
class TemplateStringHelper {
    Q_DECLARE_TR_FUNCTIONS(TemplateStringHelper)
public:
    /** Kinds of output that can be asked for in place of an invoice's own type (0 to 2). */
    enum Kind { reminder = 3, receipt = 4, deliveryNote = 5 }; ///< the index of documentTitle()

    /** @param registry  not owned; gives the settings and the seller's bank accounts */
    explicit TemplateStringHelper(Registry *registry);

    /** First every `{{name}}`, then every `{X}`. Dates and amounts are written as the system's locale wants them. */
    QString substituteVariables(const QString &text, const Invoice *invoice, const Customer *customer) const;
    /** @param name  without braces, as `dueDate` or `customer/name`; letter case counts */
    QString valueForVariable(const QString &name, const Invoice *invoice, const Customer *customer) const;
    /**
     * @param spec  a letter (I: invoice number, C: customer number), an optional width, and an optional alignment:
     *              ">" fills with zeros in front (the default), "<" behind; any other mark does not fill
     */
    QString valueForShortVariable(const QString &spec, const Invoice *invoice, const Customer *customer) const;

    /** @param kind  0, or one of Kind */
    /**
     * `$$` is a dollar. A lower-case letter gives the slug of the value, see toAscii(); `$` at the end of the text is
     * dropped.
     */
    static QString substituteShortVariables(const QString &text, const Invoice *invoice, const Customer *customer,
                                            int kind);

    /** The bank barcode's digits for the first visible account (Invoice::barcode()); empty without one. */
    QString createBarcode(const Invoice *invoice, int version) const;

    /** @return the first free name of the form base-1.suffix, base-2.suffix, …; never the given name */
    static QFileInfo addSuffixToFilename(const QFileInfo &file);
    /** Drops the characters that file systems do not take. */
    static QString removeInvalidCharacters(const QString &text);
    /** `Äijä & Co. Oy` gives `aija-co-oy`. */
    static QString toAscii(const QString &text);

    /** "Lasku", "Korkolasku", …; an unknown index gives "Lasku". */
    static QString documentTitle(int index);

private:
    /** From the first captured text to what replaces the match. */
    using Value = std::function<QString(const QString &)>;
    /** Shortest matches first, from the left; a replacement is not searched again. */
    static QString replaceMatches(const QString &text, QRegExp pattern, const Value &value);

    Registry *m_registry;             ///< not owned
    DecimalFormat m_totalFormat;      ///< cents
    DecimalFormat m_percentageFormat; ///< hundredths of a percent
};

#endif
