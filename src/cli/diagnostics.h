#ifndef DIAGNOSTICS_H
#define DIAGNOSTICS_H

#include <QString>

/** What goes to standard error: usage, version, and what the program does when asked to tell (-v). */
class Diagnostics {
public:
    bool verbose = false; ///< -v was given

    /** A line in the locale's character set; what that lacks becomes "?". */
    void printErrorMessage(const QString &message) const;
    /** Only when verbose. */
    void printDebugMessage(const QString &message) const;
};

#endif
