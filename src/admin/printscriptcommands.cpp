#include "printscriptcommands.h"

#include "parametertable.h"
#include "printscript.h"
#include "query.h"
#include "settings.h"
#include "writetransaction.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QScriptEngine>
#include <QVector>

#include <optional>

namespace {

const QLatin1String invoiceType("invoice");
const QLatin1String finvoiceType("finvoice");

QString selectedKey() { return QStringLiteral("printScripts/invoice"); }

struct State {
    PrintScript record;
    QString fileName;
    bool found = false;
    int builtIn = -1; ///< index of a built-in layout that was looked up instead of a stored script
};

/** Reads the stored scripts with their sources. */
bool readScripts(CommandContext &context, QVector<PrintScript> &scripts)
{
    Query *query = context.session.query();
    if (!query->fetchPrintScriptDetails())
        return context.session.failQuery();
    const bool isWhole = query->readAll([&] {
        PrintScript script;
        query->printScriptDetails(&script);
        scripts.append(script);
    });
    return isWhole || context.session.failQuery();
}

template <class Matches>
bool findScript(CommandContext &context, Matches matches, State &state, const QString &notFound)
{
    QVector<PrintScript> scripts;
    if (!readScripts(context, scripts))
        return false;
    for (const PrintScript &script : qAsConst(scripts)) {
        if (matches(script)) {
            state.record = script;
            state.found = true;
            return true;
        }
    }
    return context.status.fail(ExitCode::badData, notFound);
}

bool findById(CommandContext &context, const QString &key, const QString &value, State &state)
{
    int id = 0;
    return context.values.parseIntValue(key, value, id) &&
           findScript(
               context, [id](const PrintScript &script) { return script.id == id; }, state,
               CommandContext::tr("Tulostuspohjaa ei löytynyt tunnisteella %1").arg(id));
}

bool findByName(CommandContext &context, const QString &, const QString &value, State &state)
{
    return findScript(
        context, [&value](const PrintScript &script) { return script.name == value; }, state,
        CommandContext::tr("Tulostuspohjaa ei löytynyt nimellä %1").arg(value));
}

bool findBuiltInOrByName(CommandContext &context, const QString &key, const QString &value, State &state)
{
    state.builtIn = Registry::builtInPrintScriptNames().indexOf(value);
    return state.builtIn >= 0 || findByName(context, key, value, state);
}

bool type(CommandContext &context, const QString &, const QString &value, State &state)
{
    if (value != invoiceType && value != finvoiceType)
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Virheellinen tulostuspohjan tyyppi: %1").arg(value));
    state.record.type = value;
    return true;
}

bool exportFileName(CommandContext &, const QString &, const QString &value, State &state)
{
    state.fileName = QDir::fromNativeSeparators(value);
    return true;
}

bool sourceFile(CommandContext &context, const QString &, const QString &value, State &state)
{
    QFile file(QDir::fromNativeSeparators(value));
    if (!file.open(QIODevice::ReadOnly))
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Tiedostoa %1 ei voi lukea: %2").arg(value, file.errorString()));
    state.record.sourceCode = QString::fromUtf8(file.readAll());
    const QScriptSyntaxCheckResult syntax = QScriptEngine::checkSyntax(state.record.sourceCode);
    if (syntax.state() != QScriptSyntaxCheckResult::Valid) {
        const QString reason = syntax.errorMessage().isEmpty() ? QStringLiteral("SyntaxError") : syntax.errorMessage();
        return context.status.fail(
            ExitCode::badData,
            CommandContext::tr("%1 (rivi %2)").arg(reason, QString::number(syntax.errorLineNumber())));
    }
    return true;
}

constexpr Parameter<State> saveParameters[] = {
    {"type", type},
    {"name", Parameters::text<&PrintScript::name>},
    {"filename", sourceFile},
    {"findByPrintScriptId", findById, true},
    {"findByName", findByName, true},
};

constexpr Parameter<State> exportParameters[] = {
    {"filename", exportFileName},
    {"findByPrintScriptId", findById},
    {"findByName", findBuiltInOrByName},
};

constexpr Parameter<State> selectParameters[] = {
    {"findByPrintScriptId", findById},
    {"findByName", findBuiltInOrByName},
};

struct Search {
    std::optional<int> id;
    std::optional<QString> type, name;
};

bool searchId(CommandContext &context, const QString &key, const QString &value, Search &search)
{
    return context.values.parseIntValue(key, value, search.id.emplace());
}

template <auto field> bool searchText(CommandContext &, const QString &, const QString &value, Search &search)
{
    search.*field = value;
    return true;
}

constexpr Parameter<Search> searchKeys[] = {
    {"findByPrintScriptId", searchId},
    {"findByType", searchText<&Search::type>},
    {"findByName", searchText<&Search::name>},
};

bool matches(const PrintScript &script, const Search &search)
{
    return (!search.id || script.id == *search.id) && (!search.type || script.type == *search.type) &&
           (!search.name || script.name == *search.name);
}

void printScript(ResponseWriter &response, const PrintScript &script)
{
    response.startRecord(QStringLiteral("printScript"));
    response.printProperty("id", script.id);
    response.printProperty("type", script.type);
    response.printProperty("name", script.name);
    response.endRecord();
}

bool findScripts(CommandContext &context, QStringList &args, QVector<PrintScript> &found)
{
    Search search;
    QVector<PrintScript> scripts;
    if (!applyParameters(context, parseParameters(args), searchKeys, SaveCommandMode::edit, search) ||
        !readScripts(context, scripts))
        return false;
    for (const PrintScript &script : qAsConst(scripts)) {
        if (matches(script, search))
            found.append(script);
    }
    return true;
}

/** What a script must have; the exports find scripts by name, so one name is one script. */
bool checkScript(CommandContext &context, const PrintScript &record)
{
    const struct {
        bool missing;
        const char *key;
    } required[] = {
        {record.type.isEmpty(), "type"}, {record.name.isEmpty(), "name"}, {record.sourceCode.isEmpty(), "filename"}};
    for (const auto &field : required) {
        if (field.missing)
            return context.status.fail(ExitCode::badData,
                                       CommandContext::tr("Parametri %1 on pakollinen").arg(QLatin1String(field.key)));
    }
    QVector<PrintScript> scripts;
    if (!readScripts(context, scripts))
        return false;
    bool taken = Registry::builtInPrintScriptNames().contains(record.name);
    for (const PrintScript &script : qAsConst(scripts))
        taken = taken || (script.name == record.name && script.id != record.id);
    return !taken ||
           context.status.fail(ExitCode::badData,
                               CommandContext::tr("Tulostuspohja nimellä %1 on jo olemassa").arg(record.name));
}

bool saveScript(CommandContext &context, const ParameterList &words, SaveCommandMode mode, PrintScript &saved)
{
    WriteTransaction transaction(context.session);
    State state;
    if (!transaction.hasBegun() || !applyParameters(context, words, saveParameters, mode, state))
        return false;
    if (mode == SaveCommandMode::edit && !state.found)
        return context.status.fail(
            ExitCode::badData,
            CommandContext::tr("Toinen parametreista findByPrintScriptId tai findByName on pakollinen"));
    if (!checkScript(context, state.record))
        return false;
    if (!context.session.query()->savePrintScript(&state.record))
        return context.session.failQuery();
    saved = state.record;
    context.session.invalidate(CachedList::printScripts);
    return transaction.commit();
}

bool writeScript(CommandContext &context, const State &state)
{
    QByteArray source = state.record.sourceCode.toUtf8();
    if (state.builtIn >= 0) {
        QFile builtIn(Registry::builtInPrintScriptFilenames().at(state.builtIn));
        if (!builtIn.open(QIODevice::ReadOnly))
            return context.status.fail(ExitCode::badData, builtIn.errorString());
        source = builtIn.readAll();
    }
    if (QFile::exists(state.fileName))
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Tiedosto on jo olemassa: %1").arg(state.fileName));
    QSaveFile file(state.fileName);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(source) == source.size() && file.commit();
    return written ||
           context.status.fail(
               ExitCode::badData,
               CommandContext::tr("Tiedostoa %1 ei voi kirjoittaa: %2").arg(state.fileName, file.errorString()));
}

bool selectScript(CommandContext &context, const ParameterList &words)
{
    WriteTransaction transaction(context.session);
    State state;
    if (!transaction.hasBegun() || !applyParameters(context, words, selectParameters, SaveCommandMode::edit, state))
        return false;
    if (state.found && state.record.type != invoiceType)
        return context.status.fail(ExitCode::badData,
                                   CommandContext::tr("Tulostuspohja %1 ei ole laskupohja").arg(state.record.name));
    context.session.invalidate(CachedList::settings);
    if (!context.session.fetch(CachedList::settings))
        return false;
    Settings &settings = *context.session.registry().settings();
    const QString key = selectedKey();
    if (state.found)
        settings.setProperty(key, state.record.id);
    else if (state.builtIn > 0)
        settings.setProperty(key, Registry::builtInPrintScriptIds().at(state.builtIn));
    else
        settings.removeProperty(key);
    if (!context.session.query()->saveSettings(&settings))
        return context.session.failQuery();
    return transaction.commit();
}

} // namespace

void parseFindPrintScriptsCommand(CommandContext &context, QStringList &args)
{
    QVector<PrintScript> found;
    if (!context.session.ensureOpen() || !findScripts(context, args, found))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    for (const PrintScript &script : qAsConst(found))
        printScript(context.response, script);
    context.response.endResponse();
}

void parseSavePrintScriptCommand(CommandContext &context, QStringList &args, SaveCommandMode mode)
{
    PrintScript script;
    if (!context.session.ensureOpen() || !saveScript(context, parseParameters(args), mode, script))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    printScript(context.response, script);
    context.response.endResponse();
}

void parseExportPrintScriptCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    State state;
    if (!applyParameters(context, parseParameters(args), exportParameters, SaveCommandMode::edit, state))
        return;
    if (!state.found && state.builtIn < 0) {
        context.status.fail(
            ExitCode::badData,
            CommandContext::tr("Toinen parametreista findByPrintScriptId tai findByName on pakollinen"));
        return;
    }
    if (state.fileName.isEmpty()) {
        context.status.fail(ExitCode::badData,
                            CommandContext::tr("Parametri %1 on pakollinen").arg(QStringLiteral("filename")));
        return;
    }
    if (!writeScript(context, state))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    context.response.startRecord(QStringLiteral("file"));
    context.response.printProperty("filename", QDir::toNativeSeparators(state.fileName));
    context.response.endRecord();
    context.response.endResponse();
}

void parseRemovePrintScriptsCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen())
        return;
    WriteTransaction transaction(context.session);
    QVector<PrintScript> found;
    if (!transaction.hasBegun() || !findScripts(context, args, found))
        return;
    if (!context.session.fetch(CachedList::settings))
        return;
    Settings &settings = *context.session.registry().settings();
    const QVariant selected = settings.property(selectedKey());
    for (const PrintScript &script : qAsConst(found)) {
        const bool isSelected = selected.isValid() && selected.toInt() == script.id;
        if (isSelected)
            settings.removeProperty(selectedKey()); // a later script may get the id
        if (!context.session.query()->deletePrintScript(script.id) ||
            (isSelected && !context.session.query()->saveSettings(&settings))) {
            context.session.failQuery();
            return;
        }
    }
    context.session.invalidate(CachedList::printScripts);
    if (!transaction.commit())
        return;
    context.response.startResponse(QStringLiteral("OK"));
    context.response.printNumRemoved(found.size());
    context.response.endResponse();
}

void parseSelectInvoiceScriptCommand(CommandContext &context, QStringList &args)
{
    if (!context.session.ensureOpen() || !selectScript(context, parseParameters(args)))
        return;
    context.response.startResponse(QStringLiteral("OK"));
    context.response.endResponse();
}
