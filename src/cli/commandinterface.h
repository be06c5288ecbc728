#ifndef COMMANDINTERFACE_H
#define COMMANDINTERFACE_H

#include "commandcontext.h"
#include "registry.h"

#include <QObject>
#include <QStringList>

class CommandInterface;

/** A row of a command table. */
struct Command {
    const char *word; ///< as typed, "--find-customers"
    const char *name; ///< in front of its error messages; nullptr keeps the one before
    void (*run)(CommandInterface &, QStringList &args); ///< takes its own words off the front
};

/** Makes a table's function of a handler and the mode that it works in. */
template <auto handler, auto... mode> void call(CommandInterface &commands, QStringList &args);

/**
 * A program that executes commands: the words of its command line or, without any, the lines of standard input. The
 * commands that all programs share are here; the others are in the program's own table.
 */
class CommandInterface : public QObject {
    Q_OBJECT
public:
    /**
     * @param title     the program's name in its version text
     * @param helpFile  the resource of its usage text
     */
    CommandInterface(const QString &title, const QString &helpFile, QObject *parent);

    /** The words after the program's name, for start(). */
    /** Before start(): without any the lines of standard input are executed. */
    void setArguments(const QStringList &arguments) { m_arguments = arguments; }

    /** Owned. */
    CommandContext &context() { return m_context; }

    /** Executes one command line; a command that fails ends it with one error response. */
    /** @param args  consumed, up to the command that fails */
    void parseArguments(QStringList &args);
    /** Executes the lines of standard input, each as a command line of its own. */
    void readCommandsFromStdin();

    // The shared commands
    QString parseConfigCommand(QStringList &args); ///< takes the settings file's name; only a leading -c has an effect
    void parseDatabaseCommand(QStringList &args);  ///< the database's number in the list; no number is 0, the last used
    /** To standard error; no response. */
    void printUsage() const;
    void printVersion() const;
    void beVerbose() { m_context.diagnostics.verbose = true; } ///< until the program ends

public slots:
    /** Runs the whole program once, and asks the application to end with the exit code. */
    void start();

protected:
    /** @return the row of the program's own table for the word, or null */
    virtual const Command *findCommand(const QString &word) const = 0;

    /** @return a row of static life, null for none */
    template <std::size_t n> static const Command *findIn(const Command (&table)[n], const QString &word)
    {
        for (const Command &command : table) {
            if (word == QLatin1String(command.word))
                return &command;
        }
        return nullptr;
    }

private:
    const QString m_title;    ///< in front of the version
    const QString m_helpFile; ///< UTF-8, a path in the resources
    QStringList m_arguments;
    Registry m_registry; ///< must come before the context
    CommandContext m_context;
};

template <auto handler, auto... mode> void call(CommandInterface &commands, QStringList &args)
{
    handler(commands.context(), args, mode...);
}

#endif
