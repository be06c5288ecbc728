#ifndef WRITETRANSACTION_H
#define WRITETRANSACTION_H

class DatabaseSession;

/**
 * What one command reads and changes, as one step: a command that fails or is killed before the commit has changed
 * nothing. Rolled back on destruction unless committed.
 */
class WriteTransaction {
public:
    explicit WriteTransaction(DatabaseSession &session);
    ~WriteTransaction();
    WriteTransaction(const WriteTransaction &) = delete;
    WriteTransaction &operator=(const WriteTransaction &) = delete;

    /** False, with the failure told, when the database is locked for too long. */
    bool hasBegun() const { return m_open; }
    [[nodiscard]] bool commit();

private:
    DatabaseSession &m_session;
    const bool m_isInner; ///< within another one, which decides
    bool m_open;
};

#endif
