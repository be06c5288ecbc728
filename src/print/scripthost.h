#ifndef SCRIPTHOST_H
#define SCRIPTHOST_H

#include "scriptrunner.h"

#include <QObject>

/**
 * What makes documents by a script. One host loads one script and makes any number of documents, each with a fresh
 * environment.
 *
 * Errors of the script do not show in the result of a load or a document: ask hasException() after either. The
 * exception is that of the last one.
 */
class ScriptHost : public QObject {
    Q_OBJECT
public:
    /** Loads a UTF-8 file or resource. @return false, with nothing loaded, when it cannot be opened */
    [[nodiscard]] bool load(const QString &fileName) { return m_script.load(fileName); }
    /** @return true always; fileName stands in error messages and back traces */
    bool loadFromSource(const QString &source, const QString &fileName)
    {
        return m_script.loadFromSource(source, fileName);
    }

    /** Whether the loaded script has the function that makes a document. */
    bool isRunnable() const { return m_script.isRunnable(); }

    bool hasException() const { return m_script.hasException(); }
    QString exception() const { return m_script.exception(); }
    int exceptionLineNumber() const { return m_script.exceptionLineNumber(); } ///< as ScriptRunner's
    QStringList backTrace() const { return m_script.backTrace(); }

    /** Why the last document is not in its file; empty when it is. */
    QString lastError() const { return m_lastError; }

    ScriptRunner &script() { return m_script; }

signals:
    void exceptionUncaught(); ///< after a document whose script threw

protected:
    /** See ScriptRunner. */
    ScriptHost(const char *prelude, const char *entryPoint, QObject *parent)
        : QObject(parent), m_script(prelude, entryPoint)
    {
    }

    mutable ScriptRunner m_script;
    QString m_lastError;
};

#endif
