#ifndef SCRIPTLOADER_H
#define SCRIPTLOADER_H

#include <QString>

class PrintScript;
class PrintScriptManager;
class Registry;
class XmlScriptManager;

/**
 * Decides which script a host gets: one that is stored in the database, or a built-in one. A non-negative id names a
 * stored script, a negative one the built-in invoice script number -id - 1. Each load returns whether the file could be
 * opened; errors of the script itself stay with the host.
 */
class ScriptLoader {
public:
    /** @param registry  not owned; its settings must have been fetched, for Finvoice its print scripts too */
    explicit ScriptLoader(Registry *registry) : m_registry(registry) {}

    /** Loads the invoice script that the setting printScripts/invoice names by its id. */
    [[nodiscard]] bool loadInvoiceScript(PrintScriptManager *manager) const;
    /** An id that names no script loads the default layout. */
    [[nodiscard]] bool loadInvoiceScript(PrintScriptManager *manager, int id) const;

    /** Built-in ones, which no database replaces: resources under `:/scripts`. */
    [[nodiscard]] bool loadInvoiceListScript(PrintScriptManager *manager) const;
    [[nodiscard]] bool loadPaymentListScript(PrintScriptManager *manager) const;
    [[nodiscard]] bool loadCustomerListScript(PrintScriptManager *manager) const;
    [[nodiscard]] bool loadProductListScript(PrintScriptManager *manager) const;

    /** Loads the first stored script of type "finvoice", else the built-in one. */
    [[nodiscard]] bool loadFinvoiceScript(XmlScriptManager *manager) const;

    /** Loads a file given by the user. */
    [[nodiscard]] bool load(PrintScriptManager *manager, const QString &fileName) const;

    /** @return whether the id names a stored script; the record is unchanged when it does not */
    [[nodiscard]] bool fetchPrintScript(int id, PrintScript *script) const; ///< not owned; filled with the source

private:
    Registry *m_registry; ///< not owned
};

#endif
