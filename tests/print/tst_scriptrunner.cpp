#include "scriptrunner.h"

#include <QElapsedTimer>
#include <QTemporaryFile>
#include <QtTest>

/** What scripts of the tests call as `env`. */
class Environment : public QObject {
    Q_OBJECT
public:
    QStringList said;
    Q_INVOKABLE void say(const QString &text) { said.append(text); }
};

class ScriptRunnerTest : public QObject {
    Q_OBJECT
private slots:
    void errors_data();
    void errors();
    void errorsEndWithTheirRun();
    void runaways_data();
    void runaways();
    void entryPoint();
    void globalsPersist();
    void reload();
    void environmentOnly();
    void files();
};

namespace {

constexpr char prelude[] = "function say(text) { env.say(text); }";

} // namespace

void ScriptRunnerTest::errors_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QString>("exception");
    QTest::addColumn<int>("line");
    QTest::newRow("syntax") << "function print() {\n\n  say( ;\n}"
                            << "SyntaxError: Parse error" << 3;
    QTest::newRow("while loading") << "var x = 1;\nthrow 'early';\nfunction print() {}"
                                   << "early" << 2;
    QTest::newRow("thrown text") << "function print() {\n  throw 'oops';\n}"
                                 << "oops" << 2;
    QTest::newRow("unknown name") << "function print() {\n\n\n  nosuch();\n}"
                                  << "ReferenceError: Can't find variable: nosuch" << 4;
    QTest::newRow("deeper") << "function f() {\n  throw new Error('deep');\n}\nfunction print() {\n  f();\n}"
                            << "Error: deep" << 2;
    QTest::newRow("none") << "function print() { try { throw 1; } catch (e) {} }"
                          << "" << -1;
}

void ScriptRunnerTest::errors()
{
    QFETCH(QString, source);
    ScriptRunner runner(prelude, "print");
    QVERIFY(runner.loadFromSource(source, "own.qs"));
    if (!runner.hasException()) {
        Environment environment;
        runner.run(&environment);
    }
    QFETCH(QString, exception);
    QCOMPARE(runner.hasException(), !exception.isEmpty());
    if (runner.hasException())
        QCOMPARE(runner.exception(), exception);
    QTEST(runner.exceptionLineNumber(), "line");
}

void ScriptRunnerTest::errorsEndWithTheirRun()
{
    ScriptRunner runner(prelude, "print");
    runner.loadFromSource("var n = 0; function print() { if (++n % 2) throw 'odd'; say(n); }", "own.qs");
    Environment environment;
    runner.run(&environment);
    QCOMPARE(runner.exception(), QString("odd"));
    QVERIFY(runner.backTrace().first().contains("own.qs"));
    runner.run(&environment);
    QVERIFY(!runner.hasException());
    QCOMPARE(runner.exceptionLineNumber(), -1);
    QCOMPARE(environment.said, QStringList("2"));
}

void ScriptRunnerTest::runaways_data()
{
    QTest::addColumn<QString>("body");
    QTest::newRow("loop") << "while (true) {}";
    QTest::newRow("loop without body") << "for (;;);";
    QTest::newRow("loop that calls") << "while (true) say('x');";
    QTest::newRow("loop that catches") << "while (true) { try { while (true) {} } catch (e) {} }";
    QTest::newRow("loop in finally") << "try { while (true) {} } finally { while (true) {} }";
    QTest::newRow("loop in a callback") << "[1, 2].sort(function() { while (true) {} });";
    QTest::newRow("loop in a conversion") << "env.say({toString: function() { while (true) {} }});";
    QTest::newRow("loop in eval") << "eval('while (true) {}');";
    QTest::newRow("endless recursion") << "print();";
    QTest::newRow("endless recursion through the environment") << "env.say({toString: print});";
}

void ScriptRunnerTest::runaways()
{
    QFETCH(QString, body);
    ScriptRunner runner(prelude, "print");
    runner.setTimeLimit(300);
    runner.loadFromSource("function print() { " + body + " }", "own.qs");
    Environment environment;
    QElapsedTimer timer;
    timer.start();
    runner.run(&environment);
    QVERIFY(runner.hasException());
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(runner.exception().contains("0.3 sekuntia") || runner.exception().startsWith("RangeError"));

    // The engine works on, for the next document.
    QCOMPARE(runner.callForNumber("nosuch", 7), 7);
    QCOMPARE(runner.callForNumber("Number", 7), 0);
    QVERIFY(!runner.hasException());
}

void ScriptRunnerTest::entryPoint()
{
    Environment environment;
    ScriptRunner runner(prelude, "print");
    QVERIFY(!runner.isRunnable());
    runner.run(&environment); // nothing is loaded
    runner.loadFromSource("var x = 1;", "own.qs");
    QVERIFY(!runner.isRunnable()); // the engine's own print() does not count
    runner.loadFromSource("var print = 'no function';", "own.qs");
    QVERIFY(!runner.isRunnable());
    // The function found when loading is run, even when the script puts another in its place.
    runner.loadFromSource("function print() { say('first'); print = function() { say('second'); }; }", "own.qs");
    runner.run(&environment);
    runner.run(&environment);
    QCOMPARE(environment.said, (QStringList{"first", "first"}));
}

void ScriptRunnerTest::globalsPersist()
{
    Environment first, second;
    ScriptRunner runner(prelude, "print");
    runner.loadFromSource("var n = 0; function print() { say(++n); }", "own.qs");
    runner.run(&first);
    runner.run(&second);
    QCOMPARE(first.said, QStringList("1"));
    QCOMPARE(second.said, QStringList("2"));
}

void ScriptRunnerTest::reload()
{
    ScriptRunner runner(prelude, "print");
    runner.loadFromSource("var left = 1; function print() { throw 'first'; }", "first.qs");
    Environment environment;
    runner.run(&environment);
    runner.loadFromSource("function print() { say(typeof left); }", "second.qs");
    QVERIFY(!runner.hasException());
    runner.run(&environment);
    QCOMPARE(environment.said, QStringList("undefined"));
}

/** Scripts must not reach what the environment has as a QObject, deleteLater() above all. */
void ScriptRunnerTest::environmentOnly()
{
    ScriptRunner runner(prelude, "print");
    runner.loadFromSource("function print() { say(typeof env.deleteLater + typeof env.destroyed + "
                          "typeof env.objectName + typeof env.say); }",
                          "own.qs");
    Environment environment;
    runner.run(&environment);
    QCOMPARE(environment.said, QStringList("undefinedundefinedundefinedfunction"));
}

void ScriptRunnerTest::files()
{
    ScriptRunner runner(prelude, "print");
    QVERIFY(!runner.load("/nonexistent/own.qs"));
    QVERIFY(!runner.load(":/scripts/nosuch.qs"));
    QVERIFY(!runner.isRunnable());
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("\xef\xbb\xbf"
               "function print() { say('\xc3\xa4\xe2\x82\xac'); }\r\n"); // a byte order mark, UTF-8
    file.close();
    QVERIFY(runner.load(file.fileName()));
    Environment environment;
    runner.run(&environment);
    QCOMPARE(environment.said, QStringList(QString::fromUtf8(u8"ä€")));
    QVERIFY(runner.load(":/scripts/invoice.qs")); // the resources are linked in
}

QTEST_GUILESS_MAIN(ScriptRunnerTest)
#include "tst_scriptrunner.moc"
