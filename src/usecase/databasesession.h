#ifndef DATABASESESSION_H
#define DATABASESESSION_H

#include "customer.h"
#include "product.h"
#include "registry.h"

#include <QElapsedTimer>
#include <QHash>
#include <QSet>
#include <QVariantMap>
#include <QVector>

#include <memory>
#include <type_traits>

class Database;
class QSettings;
class Query;
class UseCaseListener;

/** The lists that are read once per database and then kept in the registry. */
enum class CachedList { bankAccounts, customers, products, settings, printScripts };

/**
 * The database that commands work on: chosen from the settings file's list, opened when a command first needs it, with
 * the lists that are read from it once. Failures go to the listener.
 */
class DatabaseSession {
public:
    /** Both belong to the caller and outlive the session. */
    DatabaseSession(Registry &registry, UseCaseListener &listener);
    ~DatabaseSession();

    /**
     * @param number        the database's number in the list; below 1 the last used one
     * @param onlyIfClosed  keep a database that is open already
     * @return false with the failure told; noDatabaseListed when the list has no such database
     */
    [[nodiscard]] bool openDatabase(int number, bool onlyIfClosed);
    /** Opens an SQLite file that need not be on the list. @return false with the failure told */
    [[nodiscard]] bool openFile(const QString &fileName);
    /** Opens the database of an entry of the list's form, see DatabaseList. @return as openFile() */
    [[nodiscard]] bool openEntry(const QVariantMap &entry);
    /**
     * What every data command does first. A server connection that was lost is made anew, for which a server is waited
     * for up to half a minute: another one may be about to take its place. Not within a transaction: it is gone.
     */
    [[nodiscard]] bool ensureOpen();
    void closeDatabase();

    Registry &registry() { return m_registry; }             ///< the caller's
    Database *database() const { return m_database.get(); } ///< null while closed
    Query *query() const { return m_query.get(); }          ///< null while closed
    std::unique_ptr<Query> newQuery() const;                ///< for a search whose rows are read while others are made

    /** Reads the list into the registry unless that is done already. */
    [[nodiscard]] bool fetch(CachedList list);
    bool isFetched(CachedList list) const { return m_lists[static_cast<int>(list)].fetched; }
    /**
     * Makes the customers of these ids known to the registry's lookup by id: a few are read by themselves, so that one
     * document does not cost reading all customers.
     */
    [[nodiscard]] bool fetchCustomers(const QSet<int> &ids);
    /**
     * The customers, removed ones too, or the products of a number. Within an outer transaction they are kept: line
     * after line names the same ones, and nobody else changes them.
     */
    [[nodiscard]] bool findByNumber(int number, QVector<Customer> &found);
    [[nodiscard]] bool findByNumber(const QString &number, QVector<Product> &found);
    /** The list is read again when next needed, if others have changed the database. */
    void recheck(CachedList list);
    /** The same of all lists, as a transaction begins: what others have changed must not be overwritten. */
    void recheckAll();
    /** A record of the list was written, and the registry holds it too. */
    void setStored(CachedList list);
    /** Something of the list was written that the registry was not told: it is read again when next needed. */
    void invalidate(CachedList list);
    /** What was written since the transaction began is taken back: so are the lists. */
    void takeBackLists();

    /** Whether a database that is missing is made when it is opened. */
    void setCreating(bool isCreating) { m_isCreating = isCreating; }
    /**
     * A trial: what is written is taken back in place of being committed, an older schema is refused in place of being
     * upgraded.
     */
    void setTrial(bool isTrial) { m_isTrial = isTrial; }
    /** Databases opened from now on are looked at only, without waiting for others, see Database::setGlance(). */
    void setGlance(bool isGlance) { m_isGlance = isGlance; }
    bool isTrial() const { return m_isTrial; }
    /** Databases opened from now on keep an older schema as it is: only version and seller are of interest. */
    void setLook(bool isLook) { m_isLook = isLook; }

    /**
     * An outer transaction: those of single commands begin and end within it, until it is ended by end() of its owner.
     */
    void setEnclosed(bool isEnclosed);
    bool isEnclosed() const { return m_isEnclosed; }

    /** Tells the query's error. @return false */
    bool failQuery();
    /** Tells the database's error. @return false */
    bool failDatabase();
    /**
     * The same with the reason that another query gave; as databaseLocked where the backend says so. The connection is
     * looked at before the next command and made again if it was lost.
     */
    bool failDatabase(const QString &reason);

private:
    static constexpr int listCount = 5; ///< of CachedList

    struct ListState {
        bool fetched = false;   ///< need not be read again
        long long version = -1; ///< Database::foreignChanges() when it was read; -1: not read or not known
        bool isWritten = false; ///< since the transaction began
    };

    /** Place in the file's list, -1 for none; a number below 1 is the last used, else the first. */
    int findDatabaseIndex(int number) const;
    bool tryToOpen(QSettings *settings, bool isServer); ///< positioned as for openAt(); tells no failure
    bool openAt(QSettings *settings); ///< positioned on the keys of a database; closes again on failure
    /** The common part of the two. @param kept  of the earlier ones */
    template <class Record, class Key>
    bool findByNumber(bool (Query::*fetch)(Key), void (Query::*read)(Record *) const, const std::decay_t<Key> &number,
                      QHash<std::decay_t<Key>, QVector<Record>> &kept, QVector<Record> &found);

    Registry &m_registry;                                ///< not owned
    UseCaseListener &m_listener;                         ///< not owned
    std::unique_ptr<Database> m_database;                ///< null while closed
    std::unique_ptr<Query> m_query;                      ///< of m_database, destroyed before it
    ListState m_lists[listCount];                        ///< by CachedList
    int m_number = -1;                                   ///< what the open database was asked for by
    bool m_isSuspect = false;                            ///< a statement failed: the connection may be gone
    bool m_isTrial = false;                              ///< see setTrial()
    bool m_isGlance = false;                             ///< see setGlance()
    bool m_isLook = false;                               ///< see setLook()
    bool m_isCreating = false;                           ///< see setCreating()
    bool m_isEnclosed = false;                           ///< see setEnclosed()
    QHash<int, QVector<Customer>> m_customersByNumber;   ///< see findByNumber()
    QHash<QString, QVector<Product>> m_productsByNumber; ///< the same
    QVariantMap m_entry;                                 ///< the same of openEntry(); empty: by m_number
    QElapsedTimer m_lastUse;                             ///< since the last command began
    bool m_isLost = false;                               ///< the connection is gone: to be made again
    bool m_isReopening = false;                          ///< it is being made again
    bool m_hasWaited = false;                            ///< in vain: the next command tries once
};

#endif
