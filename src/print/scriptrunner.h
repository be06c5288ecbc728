#ifndef SCRIPTRUNNER_H
#define SCRIPTRUNNER_H

#include <QCoreApplication>
#include <QScriptEngine>
#include <QScriptProgram>
#include <QString>
#include <QStringList>

#include <memory>

/**
 * One script in an engine of its own: a prelude of global functions, the script, and the function of it that makes a
 * document. The engine is made when a script is loaded. Globals of the script live as long as it stays loaded.
 *
 * Whatever goes wrong in a script is kept as the exception of that load or run, and of that one only; a script that
 * does not end is stopped with an exception too.
 */
class ScriptRunner {
    Q_DECLARE_TR_FUNCTIONS(ScriptRunner)
public:
    /** How long a script may work on one document (or on being loaded): a page takes some milliseconds. */
    static constexpr int timeLimitMs = 10000;

    /**
     * @param prelude     script text evaluated before every script, as "functions.qs"; UTF-8, must outlive the runner
     * @param entryPoint  name of the global function to run
     */
    ScriptRunner(const char *prelude, const char *entryPoint);

    /** For documents that may take longer, and for tests. */
    void setTimeLimit(int milliseconds) { m_timeLimitMs = milliseconds; }

    /** Loads a UTF-8 file. @return false, with nothing loaded, when it cannot be opened */
    [[nodiscard]] bool load(const QString &fileName);
    /**
     * Loads a script in place of the one before.
     * @param fileName  stands in error messages and back traces
     * @return true, also when the script is in error: ask hasException()
     */
    bool loadFromSource(const QString &source, const QString &fileName);

    /** Whether the loaded script has the function to run. */
    bool isRunnable() const { return m_entryPoint.isFunction(); }
    /**
     * Runs the function, with the environment as the global `env`; nothing when there is none.
     * @param environment  not owned; scripts reach its own slots, not those of QObject
     */
    void run(QObject *environment);

    /** The number that a global function of the script returns; the default when there is none, or an exception. */
    int callForNumber(const char *function, int defaultNumber);

    /** Null until a script is loaded. */
    QScriptEngine *engine() const { return m_engine.get(); }

    /** The exception of the last load or run, until the next one begins; texts are empty without one. */
    void clearExceptions();
    bool hasException() const { return m_engine && m_engine->hasUncaughtException(); }
    QString exception() const;
    int exceptionLineNumber() const; ///< -1 when there is none, 0 for a script that was stopped
    QStringList backTrace() const;

private:
    /** Within the time limit; the exception of before is forgotten. */
    QScriptValue evaluate(const QScriptProgram &program);

    const char *m_prelude;                   ///< not owned
    const QString m_entryPointName;          ///< a name in the script's global object
    int m_timeLimitMs = timeLimitMs;         ///< of each evaluation
    std::unique_ptr<QScriptEngine> m_engine; ///< a new one for every script
    QScriptValue m_entryPoint;               ///< kept aside: scripts may set the global to something else
    QScriptProgram m_call;                   ///< the call as a program, since only evaluation can be stopped
};

#endif
