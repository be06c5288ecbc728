#include "xmlscriptmanager.h"

#include "outputfile.h"
#include "soapenvelope.h"
#include "xmlencoding.h"
#include "xmlprelude.h"
#include "xmlscriptenvironment.h"
#include "xmlscriptmodel.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamWriter>

XmlScriptManager::XmlScriptManager(QObject *parent) : ScriptHost(xmlPrelude, "write", parent) {}

/** Runs the script. The document is written as text first: only so can its characters be encoded one by one. */
QByteArray XmlScriptManager::document(XmlScriptModel *model)
{
    QString text;
    QXmlStreamWriter writer(&text);
    writer.setAutoFormatting(true);
    XmlScriptEnvironment environment(m_script.engine(), &writer, model);
    m_script.run(&environment);
    writer.writeEndDocument();
    static const QRegularExpression element(QStringLiteral("<[A-Za-z]"));
    m_hasElement = element.match(text).hasMatch();
    return XmlEncoding::declaration + XmlEncoding::encode(text);
}

bool XmlScriptManager::writeSoapEnv(QIODevice *file, XmlScriptModel *model)
{
    const QByteArray envelope = SoapEnvelope::create(model);
    return file->write(envelope) == envelope.size();
}

bool XmlScriptManager::writeTo(QIODevice *file, XmlScriptModel *model)
{
    if (m_soapEnvEnabled && !writeSoapEnv(file, model))
        return false;
    const QByteArray bytes = document(model);
    return file->write(bytes) == bytes.size();
}

void XmlScriptManager::replaceFile(const QString &fileName, XmlScriptModel *model)
{
    OutputFile file(fileName);
    if (!file.open() || !writeTo(file.device(), model) || !file.commit())
        m_lastError = file.errorString();
}

void XmlScriptManager::appendToFile(const QString &fileName, XmlScriptModel *model)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append)) {
        m_lastError = file.errorString();
        return;
    }
    const qint64 size = file.size();
    if (!writeTo(&file, model) || !file.flush()) {
        m_lastError = file.errorString();
        if (!file.isSequential())
            file.resize(size); // no half document behind the whole ones
    }
}

void XmlScriptManager::write(const QString &fileName, bool append, XmlScriptModel *model)
{
    if (!m_script.isRunnable())
        return;
    m_lastError.clear();
    m_script.clearExceptions();
    if (append)
        appendToFile(fileName, model);
    else
        replaceFile(fileName, model);
    if (hasException())
        emit exceptionUncaught();
}
