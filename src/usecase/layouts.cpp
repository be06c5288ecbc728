#include "layouts.h"

#include "documentmaker.h"
#include "query.h"
#include "settings.h"
#include "usecasecontext.h"

#include <QFile>

namespace {

const QString selectedKey = QStringLiteral("printScripts/invoice");

/** A copy of the settings as they are now, after the transaction has begun: others may have changed them. */
bool readSettings(UseCaseContext &context, Settings &settings)
{
    context.session.invalidate(CachedList::settings);
    if (!context.session.fetch(CachedList::settings))
        return false;
    settings = *context.session.registry().settings();
    return true;
}

bool saveSettings(UseCaseContext &context, Settings &settings)
{
    context.session.invalidate(CachedList::settings); // the copy in memory changes when it is read again
    return context.session.query()->saveSettings(&settings) || context.session.failQuery();
}

} // namespace

const char *const Layouts::invoiceType = "invoice";
const char *const Layouts::finvoiceType = "finvoice";

bool Layouts::read(UseCaseContext &context, QVector<PrintScript> &layouts)
{
    Query *query = context.session.query();
    const auto take = [&] {
        PrintScript layout;
        query->printScriptSummary(&layout);
        layouts.append(layout);
    };
    return (query->fetchPrintScriptSummaries() && query->readAll(take)) || context.session.failQuery();
}

bool Layouts::readSource(UseCaseContext &context, const QString &fileName, QString &source)
{
    QFile file(fileName);
    const bool isOpen =
        fileName == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return context.listener.fail(Failure::fileUnreadable, {fileName, file.errorString()});
    source = QString::fromUtf8(file.readAll());
    DocumentMaker *maker = DocumentMaker::get(context.listener, false);
    QString reason;
    int line = 0;
    return maker && (maker->isScript(source, reason, line) ||
                     context.listener.fail(Failure::scriptException, {reason, QString::number(line)}));
}

bool Layouts::readBuiltIn(UseCaseContext &context, int index, QString &source)
{
    if (!DocumentMaker::get(context.listener, false)) // has it among its resources
        return false;
    QFile file(Registry::builtInPrintScriptFilenames().at(index));
    if (!file.open(QIODevice::ReadOnly))
        return context.listener.fail(Failure::fileUnreadable, {file.fileName(), file.errorString()});
    source = QString::fromUtf8(file.readAll());
    return true;
}

bool Layouts::selected(UseCaseContext &context, int &id)
{
    if (!context.session.fetch(CachedList::settings))
        return false;
    id = context.session.registry().settings()->property(selectedKey, -1).toInt();
    return true;
}

bool Layouts::save(UseCaseContext &context, PrintScript &layout)
{
    QVector<PrintScript> others;
    if (!read(context, others))
        return false;
    bool taken = Registry::builtInPrintScriptNames().contains(layout.name);
    for (const PrintScript &other : qAsConst(others))
        taken = taken || (other.name == layout.name && other.id != layout.id);
    if (taken)
        return context.listener.fail(Failure::layoutNameTaken, {layout.name});
    context.session.invalidate(CachedList::printScripts);
    return context.session.query()->savePrintScript(&layout) || context.session.failQuery();
}

bool Layouts::remove(UseCaseContext &context, const PrintScript &layout)
{
    Settings settings;
    if (!readSettings(context, settings))
        return false;
    const QVariant chosen = settings.property(selectedKey);
    if (chosen.isValid() && chosen.toInt() == layout.id) {
        settings.removeProperty(selectedKey); // a later layout may get the id
        if (!saveSettings(context, settings))
            return false;
    }
    context.session.invalidate(CachedList::printScripts);
    return context.session.query()->deletePrintScript(layout.id) || context.session.failQuery();
}

bool Layouts::select(UseCaseContext &context, int id)
{
    Settings settings;
    if (!readSettings(context, settings))
        return false;
    if (id == -1)
        settings.removeProperty(selectedKey);
    else
        settings.setProperty(selectedKey, id);
    return saveSettings(context, settings);
}
