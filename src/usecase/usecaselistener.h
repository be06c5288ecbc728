#ifndef USECASELISTENER_H
#define USECASELISTENER_H

#include "failure.h"
#include "notice.h"

#include <QStringList>

/** The front end as use cases see it: where failures and notices go. */
class UseCaseListener {
public:
    virtual ~UseCaseListener() = default;

    /** Takes the failure that ends the use case. @return false, so that a failing operation ends in one line */
    virtual bool fail(Failure::Code code, const QStringList &arguments = {}) = 0;
    /** On the way, before the work that it tells of. */
    virtual void note(Notice::Code code, const QStringList &arguments = {}) = 0;
};

#endif
