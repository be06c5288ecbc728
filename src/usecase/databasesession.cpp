#include "databasesession.h"

#include "customer.h"
#include "postgresqldatabase.h"
#include "query.h"
#include "sqlitedatabase.h"
#include "usecaselistener.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

using Fetch = bool (Registry::*)(Query *);

// In the order of CachedList.
constexpr Fetch fetches[] = {&Registry::fetchBankAccounts, &Registry::fetchCustomers, &Registry::fetchProducts,
                             &Registry::fetchSettings, &Registry::fetchPrintScripts};

/** Up to so many customers are read one by one rather than with the whole list. */
constexpr int fewCustomers = 50;

} // namespace

DatabaseSession::DatabaseSession(Registry &registry, UseCaseListener &listener)
    : m_registry(registry), m_listener(listener)
{
}

DatabaseSession::~DatabaseSession() { closeDatabase(); }

/** @return the entry's place in the list of databases, -1 when there is none for that number */
int DatabaseSession::findDatabaseIndex(int number) const
{
    QSettings *settings = m_registry.appSettings();
    settings->beginGroup(QStringLiteral("databases"));
    if (number < 1)
        number = settings->value(QStringLiteral("lastUsed"), -1).toInt();
    const int size = settings->beginReadArray(QStringLiteral("settings"));
    int index = number < 0 && size > 0 ? 0 : -1; // no last used database: the first
    for (int i = 0; number > 0 && i < size && index < 0; ++i) {
        settings->setArrayIndex(i);
        if (settings->value(QStringLiteral("number"), 0).toInt() == number)
            index = i;
    }
    settings->endArray();
    settings->endGroup();
    return index;
}

bool DatabaseSession::ensureOpen()
{
    if (m_database && m_isSuspect && !m_query->isConnected())
        m_lostNumber = m_number;
    m_isSuspect = false;
    if (!m_lostNumber)
        return openDatabase(-1, true);
    const int lost = *m_lostNumber; // tried again by every command until it works or another one is chosen
    const bool opened = openDatabase(lost, false);
    if (!opened)
        m_lostNumber = lost;
    return opened;
}

bool DatabaseSession::openDatabase(int number, bool onlyIfClosed)
{
    if (onlyIfClosed && m_database)
        return true;
    closeDatabase();
    m_number = number;
    m_lostNumber.reset();
    const int index = findDatabaseIndex(number);
    if (index < 0)
        return m_listener.fail(Failure::noDatabaseListed);

    QSettings *settings = m_registry.appSettings();
    settings->beginGroup(QStringLiteral("databases"));
    settings->beginReadArray(QStringLiteral("settings"));
    settings->setArrayIndex(index);
    const bool opened = openAt(settings);
    settings->endArray();
    settings->endGroup();
    return opened;
}

bool DatabaseSession::openFile(const QString &fileName)
{
    return openEntry({{QStringLiteral("filename"), QFileInfo(fileName).absoluteFilePath()}});
}

bool DatabaseSession::openEntry(const QVariantMap &entry)
{
    closeDatabase();
    m_lostNumber.reset();
    for (ListState &list : m_lists) // the stored scripts too: a run may go through several companies
        list = ListState();
    // Opening would leave an empty file.
    const QString filename = entry.value(QStringLiteral("filename")).toString();
    if (!m_isCreating && !filename.isEmpty() && !QFile::exists(filename))
        return m_listener.fail(Failure::databaseMissing, {filename});
    // A backend reads the keys of a settings object; this one is never written anywhere.
    static const QSettings::Format unwritten = QSettings::registerFormat(
        QStringLiteral("unwritten"), [](QIODevice &, QSettings::SettingsMap &) { return true; },
        [](QIODevice &, const QSettings::SettingsMap &) { return true; });
    QSettings settings(QString(), unwritten);
    for (auto it = entry.cbegin(); it != entry.cend(); ++it)
        settings.setValue(it.key(), it.value());
    return openAt(&settings);
}

/** Opens the database whose keys the settings object is positioned on. */
bool DatabaseSession::openAt(QSettings *settings)
{
    const QString filename = settings->value(QStringLiteral("filename")).toString();
    const QString type = settings->value(QStringLiteral("type"), QStringLiteral("sqlite")).toString();
    if (type.compare(QLatin1String("postgresql"), Qt::CaseInsensitive) == 0) {
        m_listener.note(Notice::openingPostgresql, {settings->value(QStringLiteral("databaseName")).toString()});
        m_database = std::make_unique<PostgreSQLDatabase>();
    } else {
        m_listener.note(Notice::openingSqlite, {filename});
        m_database = std::make_unique<SQLiteDatabase>();
    }
    m_database->setCreateIfNotExist(m_isCreating);
    m_database->setOlderSchema(m_isLook    ? Database::OlderSchema::kept
                               : m_isTrial ? Database::OlderSchema::refused
                                           : Database::OlderSchema::upgraded);
    m_database->setGlance(m_isGlance);
    const bool opened = m_database->open(settings);
    if (!opened || !m_database->exists()) {
        if (opened)
            m_listener.fail(Failure::databaseMissing, {filename});
        else
            failDatabase();
        closeDatabase();
        return false;
    }
    m_query.reset(m_database->query());
    m_registry.setDatabase(m_database.get());
    m_registry.setConnected(true);
    return true;
}

std::unique_ptr<Query> DatabaseSession::newQuery() const { return std::unique_ptr<Query>(m_database->query()); }

void DatabaseSession::closeDatabase()
{
    m_query.reset();
    for (int i = 0; i < listCount; ++i) {
        // The stored print scripts are read once per run, whatever database is opened later.
        if (i != static_cast<int>(CachedList::printScripts))
            m_lists[i] = ListState();
    }
    m_registry.setConnected(false);
    if (m_database)
        m_database->close();
    m_registry.setDatabase(nullptr);
    m_database.reset();
}

bool DatabaseSession::fetch(CachedList list)
{
    const int index = static_cast<int>(list);
    ListState &state = m_lists[index];
    if (state.fetched)
        return true;
    const long long version = m_database->foreignChanges();
    const bool current = state.version != -1 && version == state.version;
    if (!current && !(m_registry.*fetches[index])(m_query.get()))
        return failQuery();
    state.version = version;
    state.fetched = true;
    return true;
}

bool DatabaseSession::fetchCustomers(const QSet<int> &ids)
{
    if (isFetched(CachedList::customers) || ids.size() > fewCustomers)
        return fetch(CachedList::customers);
    for (const int id : ids) {
        if (!m_query->fetchCustomer(id))
            return failQuery();
        Customer customer;
        const bool isWhole = m_query->readAll([&] { m_query->customer(&customer); });
        if (!isWhole)
            return failQuery();
        if (customer.id >= 0)
            m_registry.storeCustomer(customer);
    }
    return true;
}

void DatabaseSession::invalidate(CachedList list) { m_lists[static_cast<int>(list)].fetched = false; }

void DatabaseSession::invalidateIfChanged()
{
    if (m_database->foreignChanges() == -1)
        return; // the backend cannot tell
    for (int i = 0; i < listCount; ++i) {
        if (i != static_cast<int>(CachedList::printScripts))
            m_lists[i].fetched = false;
    }
}

bool DatabaseSession::failQuery() { return failDatabase(m_query->lastError()); }

bool DatabaseSession::failDatabase() { return failDatabase(m_database->lastError()); }

bool DatabaseSession::failDatabase(const QString &reason)
{
    m_isSuspect = true;
    if (reason.isEmpty()) // the driver has none for what is asked of a connection that it knows to be lost
        return m_listener.fail(Failure::connectionLost);
    return m_listener.fail(m_database->isLockError(reason) ? Failure::databaseLocked : Failure::database, {reason});
}
