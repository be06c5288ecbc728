#ifndef PROGRAMMAIN_H
#define PROGRAMMAIN_H

#include "programstart.h"

#include <QApplication>
#include <QTimer>

/** The main function of a program whose commands are in the class Interface. @return the process's exit status */
template <class Interface> int programMain(int argc, char *argv[])
{
    ProgramStart::prepare();
    // Never deleted: its destructor would load the font configuration only to free it, a third of a short run.
    new QApplication(argc, argv);
    ProgramStart::nameApplication();
    Interface commands(qApp);
    QTimer::singleShot(0, &commands, &Interface::start);
    return QApplication::exec();
}

#endif
