#include "readtransaction.h"

#include "database.h"
#include "databasesession.h"
#include "query.h"

ReadTransaction::ReadTransaction(DatabaseSession &session)
    : m_session(session), m_isInner(session.isEnclosed()), m_open(m_isInner || session.database()->beginReading())
{
    if (!m_open)
        m_session.failDatabase();
}

ReadTransaction::~ReadTransaction()
{
    if (m_open && !m_isInner) {
        m_session.query()->finish();
        m_session.database()->rollback(); // nothing was written
    }
}
