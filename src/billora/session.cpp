#include "session.h"

#include "databaselist.h"
#include "documentmaker.h"
#include "failuresentences.h"
#include "integer.h"
#include "terminal.h"
#include "texts.h"

#include <QFileInfo>
#include <QSettings>

#include <algorithm>

Session::Session() : m_context(std::make_unique<UseCaseContext>(m_registry, *this)) {}

Session::~Session() = default;

void Session::choose(const QString &settingsFile, const QString &database)
{
    m_registry.loadSettings(settingsFile);
    m_database = database;
}

QString Session::settingsFile() const { return m_registry.appSettings()->fileName(); }

bool Session::openCompany(const QVariantMap &entry)
{
    m_entry = entry;
    return m_context->session.openEntry(entry);
}

QVariantMap Session::companyEntry(const DatabaseList &list) const
{
    if (!m_entry.isEmpty())
        return m_entry;
    bool isNumber = m_database.isEmpty();
    const int number = isNumber ? list.lastUsed() : Integer::parse(m_database, isNumber);
    if (!isNumber)
        return {{QStringLiteral("filename"), QFileInfo(m_database).absoluteFilePath()}};
    for (const QVariantMap &entry : list.entries()) {
        if (DatabaseList::number(entry) == number)
            return entry;
    }
    return QVariantMap();
}

bool Session::open()
{
    if (m_database.isEmpty() || (!m_entry.isEmpty() && m_context->session.database()))
        return m_context->session.ensureOpen();
    bool isNumber = false;
    const int number = Integer::parse(m_database, isNumber);
    if (isNumber && number < 1)
        return fail(Failure::noDatabaseListed);
    // Opened once; from then on a lost connection is the session's own matter.
    if (m_context->session.database())
        return m_context->session.ensureOpen();
    if (!isNumber)
        return m_context->session.openFile(m_database);
    const DatabaseList list(settingsFile(), DatabaseList::reading);
    const QList<QVariantMap> &entries = list.entries();
    const bool isListed = std::any_of(entries.begin(), entries.end(), [number](const QVariantMap &entry) {
        return DatabaseList::number(entry) == number;
    });
    if (!entries.isEmpty() && !isListed)
        return fail(Failure::databaseNumberUnknown, {m_database});
    return m_context->session.openDatabase(number, true);
}

bool Session::fail(const Problem &problem)
{
    if (!m_problem.isSet())
        m_problem = problem;
    return false;
}

bool Session::fail(Failure::Code code, const QStringList &arguments)
{
    return fail(FailureSentences::problem(code, arguments));
}

void Session::note(Notice::Code code, const QStringList &arguments)
{
    // Connections to a server end with the application object that drawing puts another one in place of.
    if (code == Notice::openingPostgresql && m_mayDraw)
        DocumentMaker::get(*this, true);
    if (m_isVerbose)
        Terminal::writeError(FailureSentences::text(code, arguments));
}
