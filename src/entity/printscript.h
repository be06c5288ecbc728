#ifndef PRINTSCRIPT_H
#define PRINTSCRIPT_H

#include <QString>

/** A print or XML script stored in the database. */
class PrintScript {
public:
    int id = -1;  ///< -1: not stored yet
    QString type; ///< "invoice" or "finvoice"
    QString name;
    QString sourceCode; ///< empty in the cached list, which holds no sources

    void clear() { *this = PrintScript(); }
    void copy(PrintScript *target) const { *target = *this; }
};

#endif
