#include "commandgroups.h"

#include "documentmaker.h"
#include "editorfile.h"
#include "query.h"
#include "records.h"
#include "settings.h"
#include "settingskeys.h"
#include "settingtexts.h"
#include "sharedoptions.h"
#include "task.h"
#include "texts.h"
#include "writetransaction.h"

#include <QDir>
#include <QFile>
#include <QPair>
#include <QTemporaryFile>

namespace {

const QLatin1String logoKey("logo");

/** Pixels; not valid for what is no image. */
QSize imageSize(Task &task, const QByteArray &bytes)
{
    DocumentMaker *maker = bytes.isEmpty() ? nullptr : DocumentMaker::get(task.session, false);
    return maker ? maker->imageSize(bytes) : QSize();
}

/** The logo is told by its size. */
QString logoText(Task &task, const Settings &settings)
{
    const QSize size = imageSize(task, settings.sellerLogo);
    return size.isValid() ? QStringLiteral("%1x%2").arg(size.width()).arg(size.height()) : QStringLiteral("");
}

SettingRecord recordOf(Task &task, const Settings &settings, const QString &key)
{
    SettingRecord record;
    record.key = key;
    record.value =
        key == logoKey ? logoText(task, settings) : SettingTexts::shown(key, SettingsKeys::value(settings, key));
    if (record.value.isNull())
        record.value = QStringLiteral("");
    record.type = SettingTexts::type(key);
    record.description = SettingTexts::description(key);
    return record;
}

const Settings *read(Task &task)
{
    return task.context().session.fetch(CachedList::settings) ? task.session.registry().settings() : nullptr;
}

bool answer(Task &task, const Settings &settings, const QStringList &keys)
{
    if (!task.answer.beginList(settingTable, task.session))
        return false;
    for (const QString &key : keys) {
        const SettingRecord record = recordOf(task, settings, key);
        task.answer.add(&record);
    }
    task.answer.endList();
    return !task.session.problem().isSet();
}

constexpr Option listOptions[] = {
    {"all", ValueType::flag, TEXT("myös tyhjät")},
};

bool list(Task &task)
{
    const Settings *settings = read(task);
    if (!settings)
        return false;
    QStringList keys = SettingsKeys::keysWithValue(*settings);
    if (task.flag("all")) {
        const QStringList known = SettingsKeys::allKeys();
        for (const QString &key : known) {
            if (!keys.contains(key))
                keys.append(key);
        }
    }
    if (task.flag("all") || !settings->sellerLogo.isEmpty())
        keys.append(logoKey);
    return answer(task, *settings, keys);
}

constexpr Option keyWord[] = {
    {"key", ValueType::setting, TEXT("asetuksen avain; ryhmän voi jättää pois, jos se on selvä"),
     Option::plainWord | Option::required | Option::onlyWord},
};

bool get(Task &task)
{
    const Settings *settings = read(task);
    QString key;
    if (!settings || !SettingTexts::resolve(task, task.arguments.text("key"), key))
        return false;
    const SettingRecord record = recordOf(task, *settings, key);
    if (!task.answer.wantsSentences())
        return task.answer.show(settingTable, &record, task.session);
    task.answer.line(record.value);
    return true;
}

bool storeLogo(Task &task, const QString &fileName, Settings &settings)
{
    if (fileName.isEmpty()) {
        settings.sellerLogo.clear();
        return true;
    }
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return task.session.fail(Failure::fileUnreadable, {fileName, file.errorString()});
    const QByteArray bytes = file.readAll();
    if (!imageSize(task, bytes).isValid())
        return task.reader.failValue(logoKey, fileName, text(TEXT("tiedosto ei ole kuva")));
    settings.sellerLogo = bytes;
    return true;
}

bool store(Task &task, const QString &key, const QString &typed, Settings &settings)
{
    QString value;
    if (key == logoKey)
        return storeLogo(task, typed, settings);
    return SettingTexts::stored(task, key, typed, value) &&
           (SettingsKeys::store(settings, key, value) ||
            task.reader.failValue(key, typed, text(TEXT("arvo ei ole oikein"))));
}

using Change = QPair<QString, QString>; ///< key, value as it is typed

/** All or none. */
bool save(Task &task, const QVector<Change> &changes)
{
    WriteTransaction transaction(task.context().session);
    if (!transaction.hasBegun())
        return false;
    task.context().session.invalidate(CachedList::settings);
    const Settings *stored = read(task);
    if (!stored)
        return false;
    Settings settings = *stored;
    QStringList keys;
    for (const Change &change : changes) {
        if (!store(task, change.first, change.second, settings))
            return false;
        keys.removeAll(change.first);
        keys.append(change.first);
    }
    task.context().session.invalidate(CachedList::settings);
    if (!task.context().session.query()->saveSettings(&settings))
        return task.context().session.failQuery();
    if (!transaction.commit())
        return false;
    if (!task.answer.wantsSentences())
        return answer(task, settings, keys);
    for (const QString &key : qAsConst(keys))
        task.answer.doneLine(key + QLatin1String(" = ") + recordOf(task, settings, key).value);
    return true;
}

constexpr Option setWords[] = {
    {"setting", ValueType::setting, TEXT("asetuksia muodossa AVAIN=ARVO; tyhjä arvo poistaa"),
     Option::plainWord | Option::required | Option::onlyWord | Option::list, nullptr, 0, "KEY=VALUE"},
};

bool set(Task &task)
{
    QVector<Change> changes;
    const QStringList words = task.arguments.texts("setting");
    for (const QString &word : words) {
        const int equals = word.indexOf(QLatin1Char('='));
        QString key;
        if (equals < 1)
            return task.reader.failValue(QStringLiteral("setting"), word, text(TEXT("anna AVAIN=ARVO")));
        if (!SettingTexts::resolve(task, word.left(equals), key))
            return false;
        changes.append({key, word.mid(equals + 1)});
    }
    return save(task, changes);
}

constexpr Option unsetWords[] = {
    {"key", ValueType::setting, TEXT("poistettavat asetukset"),
     Option::plainWord | Option::required | Option::onlyWord | Option::list},
};

bool unset(Task &task)
{
    QVector<Change> changes;
    const QStringList words = task.arguments.texts("key");
    for (const QString &word : words) {
        QString key;
        if (!SettingTexts::resolve(task, word, key))
            return false;
        changes.append({key, QString()});
    }
    return save(task, changes);
}

/** `key: value` lines in the person's editor. */
bool edit(Task &task)
{
    if (!task.manners.isInteractive)
        return task.fail(Problem::missingOption,
                         text(TEXT("muokkain tarvitsee päätteen; käytä komentoa settings set")));
    const Settings *settings = read(task);
    if (!settings)
        return false;
    QStringList original;
    const QStringList keys = SettingsKeys::allKeys();
    for (const QString &key : keys)
        original.append((key + QLatin1String(": ") +
                         QString(recordOf(task, *settings, key).value).replace(QLatin1Char('\n'), QLatin1String("\\n")))
                            .trimmed());
    QTemporaryFile place(QDir::tempPath() + QLatin1String("/billora-XXXXXX.txt"));
    if (!place.open())
        return task.fail(Problem::file, place.errorString());
    place.write(original.join(QLatin1Char('\n')).toUtf8() + '\n');
    place.close();
    if (!EditorFile::open(task, place.fileName()))
        return false;
    QFile file(place.fileName());
    if (!file.open(QIODevice::ReadOnly))
        return task.fail(Problem::file, file.errorString());
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    QVector<Change> changes;
    for (const QString &typed : lines) {
        const QString line = typed.trimmed();
        const int colon = line.indexOf(QLatin1Char(':'));
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')) || original.contains(line))
            continue;
        QString key;
        if (!SettingTexts::resolve(task, line.left(std::max(colon, 0)).trimmed(), key))
            return false;
        changes.append({key, line.mid(colon + 1).trimmed().replace(QLatin1String("\\n"), QLatin1String("\n"))});
    }
    if (!changes.isEmpty())
        return save(task, changes);
    task.answer.line(text(TEXT("Mitään ei muutettu")));
    return true;
}

constexpr Command commands[] = {
    {"settings list",
     TEXT("yrityksen tiedot ja asetukset"),
     list,
     Command::lists | Command::companies,
     &settingTable,
     nullptr,
     {group(listOptions)},
     "settings list --all"},
    {"settings get",
     TEXT("yhden asetuksen arvo"),
     get,
     0,
     &settingTable,
     nullptr,
     {group(keyWord)},
     "settings get paymentTerms"},
    {"settings set",
     TEXT("tallentaa asetuksia, kaikki tai ei mitään"),
     set,
     Command::writes | Command::lists,
     &settingTable,
     nullptr,
     {group(setWords)},
     "settings set paymentTerms=\"14 pv netto\" interestOnArrears=11,5"},
    {"settings unset",
     TEXT("poistaa asetuksia"),
     unset,
     Command::writes | Command::lists,
     &settingTable,
     nullptr,
     {group(unsetWords)},
     "settings unset logo"},
    {"settings edit",
     TEXT("asetukset muokkaimessa"),
     edit,
     Command::writes | Command::single,
     &settingTable,
     nullptr,
     {},
     "settings edit"},
};

} // namespace

CommandGroup settingsCommands() { return commandGroup(commands); }
