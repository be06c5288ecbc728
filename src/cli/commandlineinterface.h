#ifndef COMMANDLINEINTERFACE_H
#define COMMANDLINEINTERFACE_H

#include "commandinterface.h"

/** The front end of the invoicing system: the commands on its records and documents. */
class CommandLineInterface : public CommandInterface {
    Q_OBJECT
public:
    explicit CommandLineInterface(QObject *parent);

protected:
    const Command *findCommand(const QString &word) const override;
};

#endif
