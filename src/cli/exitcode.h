#ifndef EXITCODE_H
#define EXITCODE_H

/** What the process ends with, the status of the last command line executed. */
enum class ExitCode {
    success = 0,         ///< also of a data command without any database
    badCommandLine = 1,  ///< unknown command word or parameter, missing value of -c or -d
    databaseFailure = 2, ///< open, fetch, save or delete failed
    badData = 3,         ///< a value that does not parse, a record not found or ambiguous, a rule not met
};

#endif
