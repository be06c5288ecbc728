#ifndef SCRIPTLOADER_H
#define SCRIPTLOADER_H

#include <QString>

#include <optional>

class PrintScript;
class Registry;
class ScriptHost;

/** A script that was found and not run yet: even loading runs what stands outside of its functions. */
struct ScriptSource {
    QString fileName;            ///< of a resource, or what stands in error messages for a stored one
    std::optional<QString> text; ///< of a stored one

    /** One of the program's own, by its name in `:/scripts`. */
    static ScriptSource builtIn(const char *name)
    {
        return {QStringLiteral(":/scripts/%1.qs").arg(QLatin1String(name)), {}};
    }
    /** Whether anybody may have written it, and so what takes the process down. */
    bool isStored() const { return text.has_value(); }
    /** @return false, with nothing loaded, when the file cannot be opened; errors of the script stay with the host */
    [[nodiscard]] bool load(ScriptHost &host) const;
};

/**
 * Decides which script a host gets: one that is stored in the database, or a built-in one. A non-negative id names a
 * stored script, a negative one the built-in invoice script number -id - 1.
 */
class ScriptLoader {
public:
    /** @param registry  not owned; its settings must have been fetched, for Finvoice its print scripts too */
    explicit ScriptLoader(Registry *registry) : m_registry(registry) {}

    /** The invoice script that the setting printScripts/invoice names by its id. */
    ScriptSource invoiceScript() const;
    /** An id that names no script is that of the default layout. */
    ScriptSource invoiceScript(int id) const;
    /** The first stored script of type "finvoice", else the built-in one. */
    ScriptSource finvoiceScript() const;

    /** @return whether the id names a stored script; the record is unchanged when it does not */
    [[nodiscard]] bool fetchPrintScript(int id, PrintScript *script) const; ///< not owned; filled with the source

private:
    Registry *m_registry; ///< not owned
};

#endif
