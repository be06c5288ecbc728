#ifndef UNFINISHEDFILE_H
#define UNFINISHEDFILE_H

#include <QString>

#include <csignal>

/** As long as this lives, the signals wait: between a file's making and its watching. */
class SignalPause {
public:
    SignalPause();
    ~SignalPause();
    SignalPause(const SignalPause &) = delete;
    SignalPause &operator=(const SignalPause &) = delete;

private:
    sigset_t m_earlier; ///< the mask to go back to
};

/**
 * A file that is under way as long as this lives: a signal that ends the program (INT, TERM, HUP) takes the file along.
 * A few are watched at a time; one more, or one of a very long name, is not.
 */
class UnfinishedFile {
public:
    explicit UnfinishedFile(const QString &name); ///< creates and removes nothing
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile &) = delete;
    UnfinishedFile &operator=(const UnfinishedFile &) = delete;

private:
    int m_slot = -1; ///< -1: not watched
};

#endif
