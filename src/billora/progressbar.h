#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include <QElapsedTimer>

/** A bar on standard error, when that is a terminal and there is enough to do; gone when the work is done. */
class ProgressBar {
public:
    /** @param total  below twenty no bar is shown */
    explicit ProgressBar(int total);
    ~ProgressBar(); ///< erases the bar

    void show(int done); ///< ten times a second at most

private:
    int m_total;               ///< of what is done
    bool m_isWanted;           ///< standard error is a terminal, and there is enough to do
    bool m_isShown = false;    ///< something is to be erased
    QElapsedTimer m_sinceLast; ///< since the bar was last drawn
};

#endif
