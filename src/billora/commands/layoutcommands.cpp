#include "commandgroups.h"

#include "editorfile.h"
#include "layouts.h"
#include "recordlist.h"
#include "records.h"
#include "references.h"
#include "registry.h"
#include "sharedoptions.h"
#include "task.h"
#include "texts.h"
#include "writetransaction.h"

#include <QDir>
#include <QTemporaryFile>

namespace {

constexpr Option layoutWord = {"layout", ValueType::layout, TEXT("laskupohja"),
                               Option::plainWord | Option::required | Option::onlyWord};
constexpr Option words[] = {layoutWord};
constexpr Choice types[] = {
    {"invoice", TEXT("laskun piirtävä pohja")}, {"finvoice", TEXT("Finvoice-kirjoitin")}, {nullptr, nullptr}};
constexpr Option addWords[] = {
    {"name", ValueType::text, TEXT("nimi"), Option::plainWord | Option::required},
    {"file", ValueType::file, TEXT("tiedosto, jossa pohja on; - on vakiosyöte"), Option::plainWord | Option::required},
    {"type", ValueType::word, TEXT("laji; invoice, jos sitä ei anneta"), 0, types},
};
constexpr Option editWords[] = {
    layoutWord,
    {"file", ValueType::file, TEXT("tiedosto, jossa uusi pohja on; ilman sitä muokkaimessa"), Option::plainWord},
    {"name", ValueType::text, TEXT("uusi nimi")},
};
constexpr Option useWords[] = {
    {"layout", ValueType::layout, TEXT("laskupohja"), Option::plainWord | Option::onlyWord},
    {"builtIn", ValueType::flag, TEXT("ohjelman oma laskupohja")},
};

bool recordOf(Task &task, const PrintScript &layout, LayoutRecord &record)
{
    int selected = -1;
    if (!Layouts::selected(task.context(), selected))
        return false;
    record = {layout.id, layout.type, layout.name, layout.id == selected};
    return true;
}

bool list(Task &task)
{
    QVector<PrintScript> layouts;
    int selected = -1;
    if (!Layouts::read(task.context(), layouts) || !Layouts::selected(task.context(), selected))
        return false;
    QVector<LayoutRecord> records;
    const QStringList builtIn = Registry::builtInPrintScriptNames();
    for (int i = 0; i < builtIn.size(); ++i) {
        const int id = Registry::builtInPrintScriptIds().at(i);
        records.append(
            {-1, QLatin1String(Layouts::invoiceType), builtIn.at(i), selected == id || (i == 0 && selected == -1)});
    }
    for (const PrintScript &layout : qAsConst(layouts))
        records.append({layout.id, layout.type, layout.name, layout.id == selected});
    return RecordList::answer(task, layoutTable, records);
}

bool show(Task &task)
{
    const QString word = task.arguments.text("layout");
    PrintScript layout;
    const int builtIn = Registry::builtInPrintScriptNames().indexOf(word);
    if (builtIn >= 0) {
        layout.name = word;
        layout.type = QLatin1String(Layouts::invoiceType);
        if (!Layouts::readBuiltIn(task.context(), builtIn, layout.sourceCode))
            return false;
    } else if (!References::layout(task, QStringLiteral("layout"), word, layout)) {
        return false;
    }
    if (task.answer.wantsSentences()) {
        task.answer.bytes(layout.sourceCode.toUtf8());
        return true;
    }
    LayoutRecord record;
    return recordOf(task, layout, record) && task.answer.show(layoutTable, &record, task.session);
}

bool save(Task &task, PrintScript &layout, const char *sentence)
{
    WriteTransaction transaction(task.context().session);
    LayoutRecord record;
    return transaction.hasBegun() && Layouts::save(task.context(), layout) && recordOf(task, layout, record) &&
           transaction.commit() &&
           task.answer.saved(layoutTable, &record, text(sentence).arg(layout.name), task.session);
}

bool add(Task &task)
{
    PrintScript layout;
    layout.name = task.arguments.text("name");
    layout.type = QLatin1String(Layouts::invoiceType);
    if (layout.name.trimmed().isEmpty())
        return task.reader.failValue(QStringLiteral("name"), layout.name, text(TEXT("nimi puuttuu")));
    if (task.arguments.has("type") &&
        !task.reader.word(QStringLiteral("type"), types, task.arguments.text("type"), layout.type))
        return false;
    return Layouts::readSource(task.context(), task.arguments.text("file"), layout.sourceCode) &&
           save(task, layout, TEXT("Laskupohja lisätty: %1"));
}

/** The source in the person's editor. @param isUnchanged  set when nothing was changed */
bool editSource(Task &task, QString &source, bool &isUnchanged)
{
    QTemporaryFile place(QDir::tempPath() + QLatin1String("/billora-XXXXXX.js"));
    if (!place.open())
        return task.fail(Problem::file, place.errorString());
    place.write(source.toUtf8());
    place.close();
    QString edited;
    if (!EditorFile::open(task, place.fileName()) || !Layouts::readSource(task.context(), place.fileName(), edited))
        return false;
    isUnchanged = edited == source || edited.trimmed().isEmpty();
    source = edited;
    return true;
}

bool edit(Task &task)
{
    PrintScript layout;
    if (!References::layout(task, QStringLiteral("layout"), task.arguments.text("layout"), layout))
        return false;
    const bool hasName = task.arguments.has("name");
    if (hasName)
        layout.name = task.arguments.text("name");
    if (task.arguments.has("file"))
        return Layouts::readSource(task.context(), task.arguments.text("file"), layout.sourceCode) &&
               save(task, layout, TEXT("Laskupohja muutettu: %1"));
    bool isUnchanged = false;
    if (!hasName && !task.manners.isInteractive)
        return task.fail(Problem::missingOption, text(TEXT("FILE puuttuu")), QStringLiteral("file"));
    if (!hasName && !editSource(task, layout.sourceCode, isUnchanged))
        return false;
    if (!isUnchanged)
        return save(task, layout, TEXT("Laskupohja muutettu: %1"));
    task.answer.line(text(TEXT("Mitään ei muutettu")));
    return true;
}

bool remove(Task &task)
{
    PrintScript layout;
    if (!References::layout(task, QStringLiteral("layout"), task.arguments.text("layout"), layout) ||
        !task.confirm(text(TEXT("Poistetaanko laskupohja %1?")).arg(layout.name), 1, false))
        return false;
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun() || !Layouts::remove(task.context(), layout) || !transaction.commit())
        return false;
    task.answer.removed({layout.name});
    return true;
}

bool use(Task &task)
{
    const QString word = task.arguments.text("layout");
    const bool isBuiltIn = task.flag("builtIn");
    if (word.isEmpty() == !isBuiltIn)
        return task.fail(Problem::missingOption, text(TEXT("anna laskupohja tai valinta --built-in")),
                         QStringLiteral("layout"));
    PrintScript layout;
    int id = -1;
    const int builtIn = isBuiltIn ? 0 : Registry::builtInPrintScriptNames().indexOf(word);
    if (builtIn >= 0) {
        layout.name = Registry::builtInPrintScriptNames().at(builtIn);
        layout.type = QLatin1String(Layouts::invoiceType);
        id = builtIn == 0 ? -1 : Registry::builtInPrintScriptIds().at(builtIn);
    } else {
        if (!References::layout(task, QStringLiteral("layout"), word, layout))
            return false;
        if (layout.type != QLatin1String(Layouts::invoiceType))
            return task.fail(Problem::rule, text(TEXT("%1 ei ole laskupohja")).arg(layout.name),
                             QStringLiteral("layout"), word);
        id = layout.id;
    }
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun() || !Layouts::select(task.context(), id) || !transaction.commit())
        return false;
    const LayoutRecord record = {builtIn >= 0 ? -1 : id, layout.type, layout.name, true};
    return task.answer.saved(layoutTable, &record, text(TEXT("Laskupohja valittu: %1")).arg(layout.name), task.session);
}

constexpr Command commands[] = {
    {"layout list",
     TEXT("laskupohjat ja Finvoice-kirjoittimet"),
     list,
     Command::lists | Command::companies,
     &layoutTable,
     nullptr,
     {group(searchOptions), group(fullOption)},
     "layout list"},
    {"layout show",
     TEXT("laskupohjan lähdeteksti"),
     show,
     0,
     &layoutTable,
     nullptr,
     {group(words)},
     "layout show Oletuslaskupohja"},
    {"layout add",
     TEXT("uusi laskupohja tiedostosta"),
     add,
     Command::writes | Command::adds | Command::keyed,
     &layoutTable,
     nullptr,
     {group(addWords)},
     "layout add Oma oma.js"},
    {"layout edit",
     TEXT("muuttaa laskupohjaa"),
     edit,
     Command::writes,
     &layoutTable,
     nullptr,
     {group(editWords)},
     "layout edit Oma oma.js"},
    {"layout remove",
     TEXT("poistaa laskupohjan"),
     remove,
     Command::writes | Command::destructive,
     nullptr,
     nullptr,
     {group(words)},
     "layout remove Oma --yes"},
    {"layout use",
     TEXT("valitsee laskupohjan uusille tulosteille"),
     use,
     Command::writes,
     &layoutTable,
     nullptr,
     {group(useWords)},
     "layout use Oma\n"
     "layout use --built-in"},
};

} // namespace

CommandGroup layoutCommands() { return commandGroup(commands); }
