#ifndef SCRIPTEDDOCUMENTS_H
#define SCRIPTEDDOCUMENTS_H

#include "reservedname.h"
#include "scripthost.h"
#include "scriptloader.h"
#include "usecasecontext.h"

#include <functional>
#include <memory>

/**
 * Documents by one script, each in a file of its own. A script that is stored in the database may be anybody's and runs
 * in a copy of this process: one that takes its process down, by memory, depth or time without end, costs the document
 * at hand, and the others are made.
 */
class ScriptedDocuments {
    Q_DECLARE_TR_FUNCTIONS(ScriptedDocuments)
public:
    /** How documents are made. May run in a copy of the process: what it changes is lost, and no database is there. */
    struct Work {
        std::function<std::unique_ptr<ScriptHost>()> makeHost;
        std::function<ReservedName(int i)> reserve;
        std::function<void(ScriptHost &, const QString &fileName, int i)> write;
    };
    /** Takes what the script threw in document i: the arguments of Failure::scriptException; empty for nothing. */
    using Done = std::function<void(int i, const QString &fileName, const QStringList &exception)>;

    /** @param context  outlives this */
    ScriptedDocuments(UseCaseContext &context, ScriptSource source, Work work);

    /**
     * Makes the documents from..to-1. The script is loaded once for all, unless it took its process down.
     * @param done  called in this process, in order, after each document
     * @return false with the failure told: no script to run, or a file that cannot be written
     */
    [[nodiscard]] bool make(int from, int to, const Done &done);

private:
    using Send = std::function<void(const QByteArray &)>;
    void work(int from, int to, const Send &send);

    UseCaseContext &m_context;
    const ScriptSource m_source;
    const Work m_work;
    std::unique_ptr<ScriptHost> m_host; ///< null until the script was loaded in this process
};

#endif
