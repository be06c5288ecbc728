#ifndef PROGRESSLINE_H
#define PROGRESSLINE_H

#include <QElapsedTimer>

/** Tells on standard error, when that is a terminal, how far a long work has come. Gone when the work is done. */
class ProgressLine {
public:
    explicit ProgressLine(int total);
    ~ProgressLine();

    void show(int done);

private:
    int m_total;
    bool m_isTerminal;
    bool m_isShown = false;
    qint64 m_nextMs; ///< when the line is written next
    QElapsedTimer m_timer;
};

#endif
