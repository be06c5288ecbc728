#ifndef ADMININTERFACE_H
#define ADMININTERFACE_H

#include "commandinterface.h"

/** The companion program: creates databases and keeps their list and the seller's settings. */
class AdminInterface : public CommandInterface {
    Q_OBJECT
public:
    explicit AdminInterface(QObject *parent);

protected:
    const Command *findCommand(const QString &word) const override;
};

#endif
