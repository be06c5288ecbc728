#ifndef READTRANSACTION_H
#define READTRANSACTION_H

class DatabaseSession;

/** Statements whose results belong together see one moment of the database. Ends on destruction. */
class ReadTransaction {
public:
    explicit ReadTransaction(DatabaseSession &session);
    ~ReadTransaction();
    ReadTransaction(const ReadTransaction &) = delete;
    ReadTransaction &operator=(const ReadTransaction &) = delete;

    /** False with the failure told. */
    bool hasBegun() const { return m_open; }

private:
    DatabaseSession &m_session;
    const bool m_isInner; ///< within another one
    bool m_open;
};

#endif
