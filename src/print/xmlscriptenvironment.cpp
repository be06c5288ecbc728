#include "xmlscriptenvironment.h"

#include "constants.h"
#include "printmodel.h"

#include <QScriptContext>
#include <QScriptEngine>
#include <QXmlStreamWriter>

XmlScriptEnvironment::XmlScriptEnvironment(QScriptEngine *engine, QXmlStreamWriter *writer, PrintModel *model,
                                           QObject *parent)
    : QObject(parent), m_engine(engine), m_writer(writer), m_model(model),
      m_currencyFormat(Constants::totalAmountFractionDigits, Constants::totalAmountMinFractionDigits),
      m_numberFormat(Constants::totalAmountFractionDigits)
{
    m_currencyFormat.setDecimalPoint(QStringLiteral(","));
    m_numberFormat.setDecimalPoint(QStringLiteral(","));
}

QVariant XmlScriptEnvironment::get(const QString &path) { return m_model->value(path); }

QString XmlScriptEnvironment::formatCurrency(int amount) { return m_currencyFormat.formatWithoutGrouping(amount); }

QString XmlScriptEnvironment::formatNumber(int number, int scale, int minFractionDigits)
{
    m_numberFormat.setFractionDigits(scale);
    m_numberFormat.setMinFractionDigits(minFractionDigits);
    return m_numberFormat.formatWithoutGrouping(number);
}

QString XmlScriptEnvironment::formatDate(const QDate &date, const QString &format) { return date.toString(format); }

QDate XmlScriptEnvironment::currentDate() { return m_model->today(); }

void XmlScriptEnvironment::doctype(const QString &text) { m_writer->writeDTD(text); }

void XmlScriptEnvironment::startElement(const QString &name)
{
    m_writer->writeStartElement(name);
    m_openElements.append(name);
}

void XmlScriptEnvironment::endElement(const QString &name)
{
    if (m_openElements.isEmpty())
        return;
    const QString open = m_openElements.takeLast();
    if (open == name)
        m_writer->writeEndElement();
    else
        m_engine->currentContext()->throwError(tr("Mismatched tag: %1 != %2").arg(name, open));
}

void XmlScriptEnvironment::textElement(const QString &name, const QString &text)
{
    m_writer->writeTextElement(name, text);
}

void XmlScriptEnvironment::attribute(const QString &name, const QString &value)
{
    m_writer->writeAttribute(name, value);
}

void XmlScriptEnvironment::characters(const QString &text) { m_writer->writeCharacters(text); }

void XmlScriptEnvironment::comment(const QString &text) { m_writer->writeComment(text); }

void XmlScriptEnvironment::processingInstruction(const QString &target, const QString &data)
{
    m_writer->writeProcessingInstruction(target, data);
}
