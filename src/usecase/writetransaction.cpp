#include "writetransaction.h"

#include "database.h"
#include "databasesession.h"
#include "query.h"

WriteTransaction::WriteTransaction(DatabaseSession &session)
    : m_session(session), m_isInner(session.isEnclosed()), m_open(m_isInner || session.database()->beginWriting())
{
    if (m_isInner)
        return;
    if (m_open)
        m_session.recheckAll();
    else
        m_session.failDatabase();
}

WriteTransaction::~WriteTransaction()
{
    if (m_open && !m_isInner) {
        m_session.query()->finish();
        m_session.database()->rollback();
        m_session.takeBackLists();
    }
}

bool WriteTransaction::commit()
{
    m_session.query()->finish();
    if (m_isInner)
        return true;
    m_open = m_session.isTrial() ? !m_session.database()->rollback() : !m_session.database()->commit();
    if (m_session.isTrial())
        m_session.takeBackLists();
    if (!m_open)
        return true;
    return m_session.failDatabase();
}
