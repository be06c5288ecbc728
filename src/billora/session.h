#ifndef SESSION_H
#define SESSION_H

#include "problem.h"
#include "registry.h"
#include "usecasecontext.h"
#include "valuereader.h"

#include <QVariantMap>

#include <memory>

class DatabaseList;

/**
 * The company that commands work on, for the life of the program: the use cases with their failures turned into
 * problems. The first problem of a command counts.
 */
class Session : public UseCaseListener, public ProblemSink {
public:
    /** Chooses nothing yet; see choose(). */
    Session();
    ~Session() override;

    /** @param settingsFile  empty for the user's own. @param database  a number of the list, a file, or empty */
    void choose(const QString &settingsFile, const QString &database);
    void setVerbose(bool verbose) { m_isVerbose = verbose; }
    /** What is run may draw documents. */
    void setMayDraw(bool mayDraw) { m_mayDraw = mayDraw; }

    /** Both live as long as the session. */
    UseCaseContext &context() { return *m_context; }
    Registry &registry() { return m_registry; }
    QString settingsFile() const; ///< its path, also when there is no such file

    const QString &chosenDatabase() const { return m_database; } ///< as given to choose()

    /** Takes the place of the chosen company; entries are of the form of DatabaseList. @return as open() */
    [[nodiscard]] bool openCompany(const QVariantMap &entry);
    /** The entry of what is open, by the list of the settings file; of an unlisted file one with the file alone. */
    QVariantMap companyEntry(const DatabaseList &list) const;

    /** Opens the chosen company unless that is done. @return false with the problem set */
    [[nodiscard]] bool open();

    /** Of the command that is run; must be cleared before the next one. */
    const Problem &problem() const { return m_problem; }
    void clearProblem() { m_problem = Problem(); }

    /** The first one counts, a later one is dropped. @return false */
    bool fail(const Problem &problem) override;
    bool fail(Failure::Code code, const QStringList &arguments = {}) override;
    void note(Notice::Code code, const QStringList &arguments = {}) override; ///< on standard error, when verbose

private:
    Registry m_registry;                       ///< cached lists and settings
    std::unique_ptr<UseCaseContext> m_context; ///< refers to the registry
    Problem m_problem;                         ///< not set until a failure
    QString m_database;                        ///< as chosen; empty: the last used
    QVariantMap m_entry;                       ///< of openCompany(); empty: the chosen company
    bool m_isVerbose = false;                  ///< notices are told
    bool m_mayDraw = false;                    ///< see setMayDraw()
};

#endif
