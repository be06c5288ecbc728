#ifndef XMLSCRIPTMANAGER_H
#define XMLSCRIPTMANAGER_H

#include "scripthost.h"

class QIODevice;
class XmlScriptModel;

/**
 * Writes XML documents (Finvoice) by a script that defines a global function `write()`, in the character set
 * ISO-8859-15, on demand each behind the transmission frame of the banks: a SOAP 1.1 envelope with an ebXML 2.0 message
 * header.
 */
class XmlScriptManager : public ScriptHost {
    Q_OBJECT
public:
    explicit XmlScriptManager(QObject *parent = nullptr); ///< nothing is loaded yet

    /** Whether each document stands behind a frame, see SoapEnvelope; off unless set. */
    bool soapEnvEnabled() const { return m_soapEnvEnabled; }
    void setSoapEnvEnabled(bool enabled) { m_soapEnvEnabled = enabled; }

    /**
     * Writes the model's invoice. Without a loaded `write` function, or when the file cannot be written, the file stays
     * as it was, see lastError(). What was written before an exception is closed and kept.
     * @param append  adds to the file instead of replacing it
     */
    void write(const QString &fileName, bool append, XmlScriptModel *model);
    /** Whether the last write() got to an element: a script may refuse an invoice before its first. */
    bool hasElement() const { return m_hasElement; }

    /** Writes the frame that stands in front of a document, and a line feed. @return whether the device took it */
    static bool writeSoapEnv(QIODevice *file, XmlScriptModel *model);

private:
    QByteArray document(XmlScriptModel *model); ///< runs the script; encoded, with its XML declaration
    /** Frame and document. @return false when the device did not take all. */
    bool writeTo(QIODevice *file, XmlScriptModel *model);
    /** Failures go to m_lastError; appending takes back what was written of a document that failed. */
    void replaceFile(const QString &fileName, XmlScriptModel *model);
    void appendToFile(const QString &fileName, XmlScriptModel *model);

    bool m_soapEnvEnabled = false; ///< see setSoapEnvEnabled()
    bool m_hasElement = false;
};

#endif
