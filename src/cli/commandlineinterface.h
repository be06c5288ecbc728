#ifndef COMMANDLINEINTERFACE_H
#define COMMANDLINEINTERFACE_H

#include "commandinterface.h"

/** The front end of the invoicing system: the commands on its records and documents. */
class CommandLineInterface : public CommandInterface {
    Q_OBJECT
public:
    /** @param parent  owns this */
    explicit CommandLineInterface(QObject *parent);

protected:
    /** Letter case counts; the first row with the word. */
    const Command *findCommand(const QString &word) const override;
};

#endif
