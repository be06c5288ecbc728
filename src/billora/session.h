#ifndef SESSION_H
#define SESSION_H

#include "problem.h"
#include "registry.h"
#include "usecasecontext.h"
#include "valuereader.h"

#include <memory>

/**
 * The company that commands work on, for the life of the program: the use cases with their failures turned into
 * problems. The first problem of a command counts.
 */
class Session : public UseCaseListener, public ProblemSink {
public:
    Session();
    ~Session() override;

    /** @param settingsFile  empty for the user's own. @param database  a number of the list, a file, or empty */
    void choose(const QString &settingsFile, const QString &database);
    void setVerbose(bool verbose) { m_isVerbose = verbose; }

    UseCaseContext &context() { return *m_context; }
    Registry &registry() { return m_registry; }
    QString settingsFile() const;

    /** Opens the chosen company unless that is done. @return false with the problem set */
    [[nodiscard]] bool open();

    const Problem &problem() const { return m_problem; }
    void clearProblem() { m_problem = Problem(); }

    bool fail(const Problem &problem) override;
    bool fail(Failure::Code code, const QStringList &arguments = {}) override;
    void note(Notice::Code code, const QStringList &arguments = {}) override;

private:
    Registry m_registry;
    std::unique_ptr<UseCaseContext> m_context;
    Problem m_problem;
    QString m_database;
    bool m_isVerbose = false;
};

#endif
