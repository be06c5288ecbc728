#include "commandinterface.h"

#include "inputline.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <unistd.h>

// A resource in a static library is linked only when it is named; the macro does not work inside a namespace or class.
static void initHelpResource() { Q_INIT_RESOURCE(help); }

namespace {

constexpr Command sharedCommands[] = {
    {"-c", "config", [](CommandInterface &c, QStringList &args) { c.parseConfigCommand(args); }},
    {"--config", "config", [](CommandInterface &c, QStringList &args) { c.parseConfigCommand(args); }},
    {"-d", "database", [](CommandInterface &c, QStringList &args) { c.parseDatabaseCommand(args); }},
    {"--database", "database", [](CommandInterface &c, QStringList &args) { c.parseDatabaseCommand(args); }},
    {"-h", nullptr, [](CommandInterface &c, QStringList &) { c.printUsage(); }},
    {"--help", nullptr, [](CommandInterface &c, QStringList &) { c.printUsage(); }},
    {"--version", nullptr, [](CommandInterface &c, QStringList &) { c.printVersion(); }},
    {"-v", nullptr, [](CommandInterface &c, QStringList &) { c.beVerbose(); }},
    {"--verbose", nullptr, [](CommandInterface &c, QStringList &) { c.beVerbose(); }},
};

} // namespace

CommandInterface::CommandInterface(const QString &title, const QString &helpFile, QObject *parent)
    : QObject(parent), m_title(title), m_helpFile(helpFile), m_context(m_registry, STDOUT_FILENO)
{
}

void CommandInterface::start()
{
    QStringList args = m_arguments;
    QString settingsFile;
    const bool choosesSettings =
        !args.isEmpty() && (args.first() == QLatin1String("-c") || args.first() == QLatin1String("--config"));
    if (choosesSettings) {
        args.removeFirst();
        settingsFile = parseConfigCommand(args);
    }
    m_registry.loadSettings(settingsFile);
    if (args.isEmpty())
        readCommandsFromStdin();
    else
        parseArguments(args);
    m_context.session.closeDatabase();
    QCoreApplication::exit(m_context.status.exitCode);
}

void CommandInterface::parseArguments(QStringList &args)
{
    CommandStatus &status = m_context.status;
    status.clear();
    while (!args.isEmpty() && !status.hasFailed()) {
        const QString word = args.takeFirst();
        const Command *command = findIn(sharedCommands, word);
        if (!command)
            command = findCommand(word);
        if (!command) {
            status.command.clear();
            status.fail(ExitCode::badCommandLine, tr("Virheellinen komento: %1").arg(word));
            break;
        }
        if (command->name)
            status.command = QLatin1String(command->name);
        command->run(*this, args);
    }
    if (!status.needsAnswer())
        return;
    m_context.response.startResponse(QStringLiteral("ERROR"));
    m_context.response.printMessage(status.prefixedError());
    m_context.response.endResponse();
}

void CommandInterface::readCommandsFromStdin()
{
    InputLine input(STDIN_FILENO);
    QString line;
    while (input.read(line)) {
        QStringList words = InputLine::splitWords(line);
        parseArguments(words);
    }
}

QString CommandInterface::parseConfigCommand(QStringList &args)
{
    if (args.isEmpty()) {
        m_context.status.fail(ExitCode::badCommandLine, tr("Parametri puuttuu"));
        return QString();
    }
    return QDir::fromNativeSeparators(args.takeFirst());
}

void CommandInterface::parseDatabaseCommand(QStringList &args)
{
    if (args.isEmpty()) {
        m_context.status.fail(ExitCode::badCommandLine, tr("Parametri puuttuu"));
        return;
    }
    const int number = args.takeFirst().toInt(); // no number is 0: the last used database
    if (!m_context.session.openDatabase(number, false))
        m_context.status.exitCode = static_cast<int>(ExitCode::databaseFailure);
}

void CommandInterface::printUsage() const
{
    initHelpResource();
    QFile file(m_helpFile);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    QString text = QString::fromUtf8(file.readAll());
    if (text.endsWith(QLatin1Char('\n')))
        text.chop(1);
    m_context.diagnostics.printErrorMessage(text);
}

void CommandInterface::printVersion() const
{
    m_context.diagnostics.printErrorMessage(m_title + QLatin1Char(' ') + QLatin1String(BILLORA_VERSION));
    m_context.diagnostics.printErrorMessage(QStringLiteral("Copyright (c) 2026 Orvanto"));
}
