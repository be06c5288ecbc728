#include "writetransaction.h"

#include "commandstatus.h"
#include "database.h"
#include "databasesession.h"
#include "query.h"

WriteTransaction::WriteTransaction(DatabaseSession &session, CommandStatus &status)
    : m_session(session), m_status(status), m_open(session.database()->beginWriting())
{
    if (m_open)
        m_session.invalidateIfChanged();
    else
        m_status.fail(ExitCode::databaseFailure, m_session.database()->lastError());
}

WriteTransaction::~WriteTransaction()
{
    if (m_open) {
        m_session.query()->finish();
        m_session.database()->rollback();
    }
}

bool WriteTransaction::commit()
{
    m_session.query()->finish();
    m_open = !m_session.database()->commit();
    if (!m_open)
        return true;
    return m_status.fail(ExitCode::databaseFailure, m_session.database()->lastError());
}
