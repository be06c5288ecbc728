#ifndef WRITETRANSACTION_H
#define WRITETRANSACTION_H

class DatabaseSession;

/**
 * What one command reads and changes, as one step: a command that fails or is killed before the commit has changed
 * nothing. Rolled back on destruction unless committed.
 */
class WriteTransaction {
public:
    /** @param session  not owned, open. Within an enclosing transaction nothing begins or ends here */
    explicit WriteTransaction(DatabaseSession &session);
    ~WriteTransaction();
    WriteTransaction(const WriteTransaction &) = delete;
    WriteTransaction &operator=(const WriteTransaction &) = delete;

    /** False, with the failure told, when the database is locked for too long. */
    bool hasBegun() const { return m_open; }
    /** A trial is rolled back here, and counts as committed. @return false with the failure told. */
    [[nodiscard]] bool commit();

private:
    DatabaseSession &m_session; ///< not owned
    const bool m_isInner;       ///< within another one, which decides
    bool m_open;                ///< to be rolled back on destruction, unless it is inner
};

#endif
