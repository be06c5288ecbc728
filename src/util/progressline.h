#ifndef PROGRESSLINE_H
#define PROGRESSLINE_H

#include <QElapsedTimer>

/** Tells on standard error, when that is a terminal, how far a long work has come. Gone when the work is done. */
class ProgressLine {
public:
    /** @param total  only shown; show() may go beyond */
    explicit ProgressLine(int total);
    ~ProgressLine(); ///< erases the line when there is one

    /** Cheap enough for every step: writes after the first second, then five times a second at most. */
    void show(int done);

private:
    int m_total;
    bool m_isTerminal;      ///< nothing is written otherwise
    bool m_isShown = false; ///< something is to be erased at the end
    qint64 m_nextMs;        ///< when the line is written next
    QElapsedTimer m_timer;
};

#endif
