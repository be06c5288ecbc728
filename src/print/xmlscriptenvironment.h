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

    Q_INVOKABLE QVariant get(const QString &path);
    Q_INVOKABLE QString formatCurrency(int amount); ///< cents
    /** @param number  has `scale` decimals. The digits set stay for later calls. */
    Q_INVOKABLE QString formatNumber(int number, int scale, int minFractionDigits);
    Q_INVOKABLE QString formatDate(const QDate &date, const QString &format);
    Q_INVOKABLE QDate currentDate();

    Q_INVOKABLE void doctype(const QString &text);
    Q_INVOKABLE void startElement(const QString &name);
    /** Throws a script error, and writes nothing, when another element is open; nothing at all when none is. */
    Q_INVOKABLE void endElement(const QString &name);
    Q_INVOKABLE void textElement(const QString &name, const QString &text);
    Q_INVOKABLE void attribute(const QString &name, const QString &value);
    Q_INVOKABLE void characters(const QString &text);
    Q_INVOKABLE void comment(const QString &text);
    Q_INVOKABLE void processingInstruction(const QString &target, const QString &data);

private:
    QScriptEngine *m_engine;
    QXmlStreamWriter *m_writer;
    PrintModel *m_model;
    QStringList m_openElements;
    DecimalFormat m_currencyFormat;
    DecimalFormat m_numberFormat;
};

#endif
