#ifndef XMLSCRIPTMANAGER_H
#define XMLSCRIPTMANAGER_H

#include "scriptrunner.h"

#include <QObject>

class QIODevice;
class XmlScriptModel;

/**
 * Writes XML documents (Finvoice) by a script that defines a global function `write()`, in the character set
 * ISO-8859-15, on demand each behind the transmission frame of the banks: a SOAP 1.1 envelope with an ebXML 2.0 message
 * header.
 *
 * Errors of the script do not show in the results of load() and write(): ask hasException() after either. The exception
 * is that of the last load or write.
 */
class XmlScriptManager : public QObject {
    Q_OBJECT
public:
    explicit XmlScriptManager(QObject *parent = nullptr); ///< nothing is loaded yet

    /** Loads a UTF-8 file or resource. @return false, with nothing loaded, when it cannot be opened */
    [[nodiscard]] bool load(const QString &fileName);
    /** @return true always; fileName stands in error messages and back traces */
    bool loadFromSource(const QString &source, const QString &fileName);

    /** Whether the loaded script has the function that makes a document. */
    bool isRunnable() const { return m_script.isRunnable(); }

    /** See ScriptRunner; told for the last load or write only. */
    bool hasException() const { return m_script.hasException(); }
    QString exception() const { return m_script.exception(); }
    int exceptionLineNumber() const { return m_script.exceptionLineNumber(); }
    QStringList backTrace() const { return m_script.backTrace(); }

    /** Whether each document stands behind a frame, see SoapEnvelope; off unless set. */
    bool soapEnvEnabled() const { return m_soapEnvEnabled; }
    void setSoapEnvEnabled(bool enabled) { m_soapEnvEnabled = enabled; }

    /**
     * Writes the model's invoice. Without a loaded `write` function, or when the file cannot be written, the file stays
     * as it was, see lastError(). What was written before an exception is closed and kept.
     * @param append  adds to the file instead of replacing it
     */
    void write(const QString &fileName, bool append, XmlScriptModel *model);
    /** Why the last write() left no document in the file; empty when it did. */
    QString lastError() const { return m_lastError; }

    /** Writes the frame that stands in front of a document, and a line feed. @return whether the device took it */
    static bool writeSoapEnv(QIODevice *file, XmlScriptModel *model);

signals:
    void exceptionUncaught(); ///< after a write whose script threw

private:
    QByteArray document(XmlScriptModel *model); ///< runs the script; encoded, with its XML declaration
    /** Frame and document. @return false when the device did not take all. */
    bool writeTo(QIODevice *file, XmlScriptModel *model);
    /** Failures go to m_lastError; appending takes back what was written of a document that failed. */
    void replaceFile(const QString &fileName, XmlScriptModel *model);
    void appendToFile(const QString &fileName, XmlScriptModel *model);

    ScriptRunner m_script;         ///< entry point `write`
    bool m_soapEnvEnabled = false; ///< see setSoapEnvEnabled()
    QString m_lastError;           ///< empty when the last write left its document
};

#endif
