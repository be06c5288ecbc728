#include "scriptrunner.h"

#include <QFile>
#include <QTimer>

namespace {

/** How often a running script lets the timer of its limit be looked at. */
constexpr int checkIntervalMs = 50;

constexpr auto environmentOptions = QScriptEngine::ExcludeSuperClassContents | QScriptEngine::ExcludeDeleteLater |
                                    QScriptEngine::SkipMethodsInEnumeration;

} // namespace

// A resource in a static library is linked only when it is named; the macro does not work inside a namespace or class.
static void initScriptResources() { Q_INIT_RESOURCE(scripts); }

ScriptRunner::ScriptRunner(const char *prelude, const char *entryPoint)
    : m_prelude(prelude), m_entryPointName(QString::fromLatin1(entryPoint)),
      m_call(m_entryPointName + QLatin1String("()"))
{
}

bool ScriptRunner::load(const QString &fileName)
{
    initScriptResources();
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    return loadFromSource(QString::fromUtf8(file.readAll()), fileName);
}

bool ScriptRunner::loadFromSource(const QString &source, const QString &fileName)
{
    m_entryPoint = QScriptValue();
    m_engine = std::make_unique<QScriptEngine>();
    m_engine->setProcessEventsInterval(checkIntervalMs);
    // The engine brings a global print() that writes to standard error; a script without one has none to run.
    m_engine->globalObject().setProperty(m_entryPointName, QScriptValue());
    m_engine->evaluate(QString::fromUtf8(m_prelude), QStringLiteral("functions.qs"));
    evaluate(QScriptProgram(source, fileName));
    m_entryPoint = m_engine->globalObject().property(m_entryPointName);
    return true;
}

void ScriptRunner::run(QObject *environment)
{
    if (!isRunnable())
        return;
    QScriptValue globals = m_engine->globalObject();
    globals.setProperty(QStringLiteral("env"),
                        m_engine->newQObject(environment, QScriptEngine::QtOwnership, environmentOptions));
    globals.setProperty(m_entryPointName, m_entryPoint);
    evaluate(m_call);
}

int ScriptRunner::callForNumber(const char *function, int defaultNumber)
{
    const QString name = QString::fromLatin1(function);
    if (!m_engine || !m_engine->globalObject().property(name).isFunction())
        return defaultNumber;
    const QScriptValue result = evaluate(QScriptProgram(name + QLatin1String("()")));
    const bool isNumber = !hasException() && result.isNumber(); // else it would be what was thrown
    clearExceptions();
    return isNumber ? result.toInt32() : defaultNumber;
}

/** Only what runs inside evaluate() can be aborted: a QScriptValue::call() cannot. */
QScriptValue ScriptRunner::evaluate(const QScriptProgram &program)
{
    clearExceptions(); // else the error of one document would be told for the next
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, [this, &limit] {
        limit.start(checkIntervalMs); // again, should a function in between not pass it on
        const QString message = tr("Tulostuspohjan suoritus kesti yli %1 sekuntia").arg(m_timeLimitMs / 1000.0);
        m_engine->abortEvaluation(m_engine->currentContext()->throwError(message));
    });
    limit.start(m_timeLimitMs);
    return m_engine->evaluate(program);
}

void ScriptRunner::clearExceptions()
{
    if (m_engine)
        m_engine->clearExceptions();
}

QString ScriptRunner::exception() const { return m_engine ? m_engine->uncaughtException().toString() : QString(); }

int ScriptRunner::exceptionLineNumber() const { return m_engine ? m_engine->uncaughtExceptionLineNumber() : -1; }

QStringList ScriptRunner::backTrace() const
{
    return m_engine ? m_engine->uncaughtExceptionBacktrace() : QStringList();
}
