#include "scriptloader.h"

#include "database.h"
#include "integer.h"
#include "printscript.h"
#include "query.h"
#include "registry.h"
#include "scripthost.h"
#include "settings.h"

#include <memory>

bool ScriptSource::load(ScriptHost &host) const
{
    return text ? host.loadFromSource(*text, fileName) : host.load(fileName);
}

ScriptSource ScriptLoader::invoiceScript() const
{
    bool ok = false;
    const QString setting = m_registry->settings()->property(QStringLiteral("printScripts/invoice")).toString();
    const int id = Integer::parse(setting, ok);
    return invoiceScript(ok ? id : -1);
}

ScriptSource ScriptLoader::invoiceScript(int id) const
{
    PrintScript script;
    if (fetchPrintScript(id, &script))
        return {script.name + QLatin1String(".qs"), script.sourceCode};
    const QStringList files = Registry::builtInPrintScriptFilenames();
    const int index = -(id + 1); // no overflow for the lowest id
    return {files.at(id < 0 && index < files.size() ? index : 0), {}};
}

ScriptSource ScriptLoader::finvoiceScript() const
{
    const int index = m_registry->printScriptIndexByType(QStringLiteral("finvoice"));
    PrintScript script;
    if (index >= 0 && fetchPrintScript(m_registry->printScript(index)->id, &script))
        return {QStringLiteral("finvoice.qs"), script.sourceCode};
    return ScriptSource::builtIn("finvoice");
}

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
