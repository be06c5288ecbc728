#ifndef XMLSCRIPTENVIRONMENT_H
#define XMLSCRIPTENVIRONMENT_H

#include "decimalformat.h"

#include <QDate>
#include <QObject>
#include <QStringList>
#include <QVariant>

class PrintModel;
class QScriptEngine;
class QXmlStreamWriter;

/** What an XML script sees as `env` while it writes one document. Numbers have "," as decimal point, no grouping. */
class XmlScriptEnvironment : public QObject {
    Q_OBJECT
public:
    /** Owns none of its arguments. */
    XmlScriptEnvironment(QScriptEngine *engine, QXmlStreamWriter *writer, PrintModel *model, QObject *parent = nullptr);

    Q_INVOKABLE QVariant get(const QString &path);  ///< see PrintModel
    Q_INVOKABLE QString formatCurrency(int amount); ///< cents
    /** @param number  has `scale` decimals. The digits set stay for later calls. */
    Q_INVOKABLE QString formatNumber(int number, int scale, int minFractionDigits);
    /** The format of QDate, with month names of the system. */
    Q_INVOKABLE QString formatDate(const QDate &date, const QString &format);
    Q_INVOKABLE QDate currentDate();

    /** Texts are escaped by the writer; names are taken as they are. */
    Q_INVOKABLE void doctype(const QString &text);
    Q_INVOKABLE void startElement(const QString &name);
    /** Throws a script error, and writes nothing, when another element is open; nothing at all when none is. */
    Q_INVOKABLE void endElement(const QString &name);
    Q_INVOKABLE void textElement(const QString &name, const QString &text);
    Q_INVOKABLE void attribute(const QString &name, const QString &value);
    Q_INVOKABLE void characters(const QString &text);
    Q_INVOKABLE void comment(const QString &text);
    /** Without a check of the target. */
    Q_INVOKABLE void processingInstruction(const QString &target, const QString &data);

private:
    /** None is owned; all outlive the run of the script. */
    QScriptEngine *m_engine;
    QXmlStreamWriter *m_writer;
    PrintModel *m_model;
    QStringList m_openElements;     ///< the innermost is the last
    DecimalFormat m_currencyFormat; ///< cents
    DecimalFormat m_numberFormat;   ///< its scale is that of the last formatNumber()
};

#endif
