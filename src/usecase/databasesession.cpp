#include "databasesession.h"

#include "postgresqldatabase.h"
#include "query.h"
#include "sqlitedatabase.h"
#include "usecaselistener.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QThread>

namespace {

using Fetch = bool (Registry::*)(Query *);

// In the order of CachedList.
constexpr Fetch fetches[] = {&Registry::fetchBankAccounts, &Registry::fetchCustomers, &Registry::fetchProducts,
                             &Registry::fetchSettings, &Registry::fetchPrintScripts};

/** Up to so many customers are read one by one rather than with the whole list. */
constexpr int fewCustomers = 50;

/** Records kept by their number within an outer transaction. */
constexpr int mostKept = 1000;

/** How long a connection is believed to be there without being asked, ms. */
constexpr int trustedMs = 1000;

/** How long a lost server is waited for, once: a standby is promoted, or the server starts again. */
constexpr int reopenWaitMs = 30000;
constexpr int reopenStepMs = 200;

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
    const bool isOld = !m_lastUse.isValid() || m_lastUse.hasExpired(trustedMs);
    m_lastUse.start();
    if (m_database && (m_isSuspect || (isOld && m_database->isRemote())) && !m_query->isConnected())
        m_isLost = true;
    m_isSuspect = false;
    if (!m_isLost)
        return openDatabase(-1, true);
    if (m_isEnclosed) // what was done before is gone with the connection
        return m_listener.fail(Failure::connectionLost);
    // Tried again by every command until it works or another database is chosen.
    const int number = m_number;
    const QVariantMap entry = m_entry;
    m_isReopening = true;
    const bool opened = entry.isEmpty() ? openDatabase(number, false) : openEntry(entry);
    m_isReopening = false;
    m_isLost = !opened;
    m_hasWaited = !opened;
    m_number = number;
    m_entry = entry;
    return opened;
}

bool DatabaseSession::openDatabase(int number, bool onlyIfClosed)
{
    if (onlyIfClosed && m_database)
        return true;
    closeDatabase();
    m_number = number;
    m_entry.clear();
    m_isLost = false;
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
    m_entry = entry;
    m_isLost = false;
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

bool DatabaseSession::tryToOpen(QSettings *settings, bool isServer)
{
    if (isServer)
        m_database = std::make_unique<PostgreSQLDatabase>();
    else
        m_database = std::make_unique<SQLiteDatabase>();
    m_database->setCreateIfNotExist(m_isCreating);
    m_database->setOlderSchema(m_isLook    ? Database::OlderSchema::kept
                               : m_isTrial ? Database::OlderSchema::refused
                                           : Database::OlderSchema::upgraded);
    m_database->setGlance(m_isGlance);
    return m_database->open(settings);
}

/** Opens the database whose keys the settings object is positioned on. */
bool DatabaseSession::openAt(QSettings *settings)
{
    const QString filename = settings->value(QStringLiteral("filename")).toString();
    const QString type = settings->value(QStringLiteral("type"), QStringLiteral("sqlite")).toString();
    const bool isServer = type.compare(QLatin1String("postgresql"), Qt::CaseInsensitive) == 0;
    if (isServer)
        m_listener.note(Notice::openingPostgresql, {settings->value(QStringLiteral("databaseName")).toString()});
    else
        m_listener.note(Notice::openingSqlite, {filename});
    bool opened = tryToOpen(settings, isServer);
    QElapsedTimer waited;
    waited.start();
    // A server that was there comes back, or another one takes its place.
    while (!opened && isServer && m_isReopening && !m_hasWaited && !waited.hasExpired(reopenWaitMs)) {
        QThread::msleep(reopenStepMs);
        m_database->close();
        opened = tryToOpen(settings, isServer);
    }
    if (!opened || !m_database->exists()) {
        if (opened)
            m_listener.fail(Failure::databaseMissing, {filename});
        else
            failDatabase();
        closeDatabase();
        return false;
    }
    m_hasWaited = false;
    m_lastUse.start();
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

template <class Record, class Key>
bool DatabaseSession::findByNumber(bool (Query::*fetch)(Key), void (Query::*read)(Record *) const,
                                   const std::decay_t<Key> &number, QHash<std::decay_t<Key>, QVector<Record>> &kept,
                                   QVector<Record> &found)
{
    const auto known = kept.constFind(number);
    if (known != kept.constEnd()) {
        found = *known;
        return true;
    }
    const bool isRead = (m_query.get()->*fetch)(number) && m_query->readAll([&] {
        Record record;
        (m_query.get()->*read)(&record);
        found.append(record);
    });
    if (!isRead)
        return failQuery();
    if (m_isEnclosed && kept.size() < mostKept)
        kept.insert(number, found);
    return true;
}

bool DatabaseSession::findByNumber(int number, QVector<Customer> &found)
{
    return findByNumber(&Query::fetchCustomersByNumber, &Query::customer, number, m_customersByNumber, found);
}

bool DatabaseSession::findByNumber(const QString &number, QVector<Product> &found)
{
    return findByNumber(&Query::fetchProductsByNumber, &Query::product, number, m_productsByNumber, found);
}

void DatabaseSession::setEnclosed(bool isEnclosed)
{
    m_isEnclosed = isEnclosed;
    m_customersByNumber.clear();
    m_productsByNumber.clear();
}

void DatabaseSession::recheck(CachedList list)
{
    m_lists[static_cast<int>(list)].fetched = false;
    if (list == CachedList::customers)
        m_customersByNumber.clear();
    if (list == CachedList::products)
        m_productsByNumber.clear();
}

void DatabaseSession::setStored(CachedList list)
{
    recheck(list);
    m_lists[static_cast<int>(list)].isWritten = true;
}

void DatabaseSession::invalidate(CachedList list)
{
    setStored(list);
    m_lists[static_cast<int>(list)].version = -1;
}

void DatabaseSession::takeBackLists()
{
    for (int i = 0; i < listCount; ++i) {
        if (m_lists[i].isWritten)
            invalidate(static_cast<CachedList>(i));
        m_lists[i].isWritten = false;
    }
}

void DatabaseSession::recheckAll()
{
    const bool canTell = m_database->foreignChanges() != -1;
    for (int i = 0; i < listCount; ++i) {
        m_lists[i].isWritten = false;
        // The stored print scripts are read once per run.
        if (canTell && i != static_cast<int>(CachedList::printScripts))
            recheck(static_cast<CachedList>(i));
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
