#ifndef PROGRESSBAR_H
#define PROGRESSBAR_H

#include <QElapsedTimer>

/** A bar on standard error, when that is a terminal and there is enough to do; gone when the work is done. */
class ProgressBar {
public:
    explicit ProgressBar(int total);
    ~ProgressBar();

    void show(int done);

private:
    int m_total;
    bool m_isWanted;
    bool m_isShown = false;
    QElapsedTimer m_sinceLast;
};

#endif
