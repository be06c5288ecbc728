#ifndef PRINTMODEL_H
#define PRINTMODEL_H

#include "calendar.h"

#include <QDate>
#include <QImage>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

/**
 * The read-only view of business data that a print or XML script sees. A script asks for values by slash-separated
 * paths such as `invoices/0/customer/name`; `length` tells the size of a list. Keys are case-sensitive.
 *
 * Sums of money are ints in cents; unit prices 64-bit integers and quantities ints with four decimals, percentages ints
 * with two; a missing date is a null date. What a path does not reach is an invalid variant, "undefined" in a script.
 *
 * A model is configured, run() once, and then read any number of times.
 */
class PrintModel : public QObject {
    Q_OBJECT
public:
    /** Nothing is read before run(). */
    explicit PrintModel(QObject *parent = nullptr);
    ~PrintModel() override;

    /** Gathers the data. @return false on failure, with the text in lastError() */
    [[nodiscard]] virtual bool run();
    /** The document's title, for people. */
    virtual QString title() const = 0;
    virtual QString lastError() const; ///< empty before a failure

    /** The day that scripts see as the current one: that of the system's clock and time zone unless it is set. */
    QDate today() const { return m_today.isValid() ? m_today : Calendar::today(); }
    void setToday(const QDate &day) { m_today = day; } ///< an invalid one unsets it
    /** The day that the document is of, always valid. */
    virtual QDate date() const { return today(); }

    /** Splits the path at every "/", empty parts kept, and resolves it. */
    virtual QVariant value(const QString &path);
    virtual QImage image(const QString &path); ///< null for a path that leads to no image

    /**
     * Writes the model's rows as UTF-8 text. An existing file is replaced only once the new one is complete.
     * @param format  the field delimiter, one character
     * @return false when the file cannot be written, with the reason in lastError()
     */
    [[nodiscard]] virtual bool exportToCSV(const QString &fileName, const QString &format) = 0;

    /** Resolves a path and takes the elements it uses off its front. */
    virtual QVariant value(QStringList &path) = 0;
    virtual QImage image(QStringList &path); ///< null by default

    /** The field delimiter of a CSV format number: "," for 0, ";" for any other. */
    static QString csvFormatToDelimiter(int format); ///< nothing else is supported

private:
    QDate m_today; ///< invalid: the system's
};

#endif
