#include "scriptloader.h"

#include "database.h"
#include "integer.h"
#include "printscript.h"
#include "printscriptmanager.h"
#include "query.h"
#include "registry.h"
#include "settings.h"
#include "xmlscriptmanager.h"

#include <memory>

bool ScriptLoader::loadInvoiceScript(PrintScriptManager *manager) const
{
    bool ok = false;
    const QString setting = m_registry->settings()->property(QStringLiteral("printScripts/invoice")).toString();
    const int id = Integer::parse(setting, ok);
    return loadInvoiceScript(manager, ok ? id : -1);
}

bool ScriptLoader::loadInvoiceScript(PrintScriptManager *manager, int id) const
{
    PrintScript script;
    if (fetchPrintScript(id, &script))
        return manager->loadFromSource(script.sourceCode, script.name + QLatin1String(".qs"));
    const QStringList files = Registry::builtInPrintScriptFilenames();
    const int index = -(id + 1); // no overflow for the lowest id
    return manager->load(files.at(id < 0 && index < files.size() ? index : 0));
}

bool ScriptLoader::loadInvoiceListScript(PrintScriptManager *manager) const
{
    return manager->load(QStringLiteral(":/scripts/invoice-list.qs"));
}

bool ScriptLoader::loadPaymentListScript(PrintScriptManager *manager) const
{
    return manager->load(QStringLiteral(":/scripts/payment-list.qs"));
}

bool ScriptLoader::loadCustomerListScript(PrintScriptManager *manager) const
{
    return manager->load(QStringLiteral(":/scripts/customer-list.qs"));
}

bool ScriptLoader::loadProductListScript(PrintScriptManager *manager) const
{
    return manager->load(QStringLiteral(":/scripts/product-list.qs"));
}

bool ScriptLoader::loadFinvoiceScript(XmlScriptManager *manager) const
{
    const int index = m_registry->printScriptIndexByType(QStringLiteral("finvoice"));
    PrintScript script;
    if (index >= 0 && fetchPrintScript(m_registry->printScript(index)->id, &script))
        return manager->loadFromSource(script.sourceCode, QStringLiteral("finvoice.qs"));
    return manager->load(QStringLiteral(":/scripts/finvoice.qs"));
}

bool ScriptLoader::load(PrintScriptManager *manager, const QString &fileName) const { return manager->load(fileName); }

bool ScriptLoader::fetchPrintScript(int id, PrintScript *script) const
{
    if (id < 0)
        return false;
    const std::unique_ptr<Query> query(m_registry->database()->query());
    if (!query->fetchPrintScriptDetails(id) || !query->next())
        return false;
    query->printScriptDetails(script);
    return true;
}
