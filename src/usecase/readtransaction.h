#ifndef READTRANSACTION_H
#define READTRANSACTION_H

class DatabaseSession;

/** Statements whose results belong together see one moment of the database. Ends on destruction. */
class ReadTransaction {
public:
    /** @param session  not owned, open. Within an enclosing transaction nothing begins or ends here */
    explicit ReadTransaction(DatabaseSession &session);
    ~ReadTransaction();
    ReadTransaction(const ReadTransaction &) = delete;
    ReadTransaction &operator=(const ReadTransaction &) = delete;

    /** False with the failure told. */
    bool hasBegun() const { return m_open; }

private:
    DatabaseSession &m_session; ///< not owned
    const bool m_isInner;       ///< within another one
    bool m_open;                ///< to be ended on destruction, unless it is inner
};

#endif
