#ifndef PROGRAMMAIN_H
#define PROGRAMMAIN_H

#include "documents.h"
#include "programstart.h"

#include <QApplication>
#include <QTimer>

/** The main function of a program whose commands are in the class Interface. @return the process's exit status */
template <class Interface> int programMain(int argc, char *argv[])
{
    ProgramStart::prepare();
    // The library takes words such as -style off the line that it is given; they are ours to answer.
    static int programNameOnly = 1;
    // Never deleted: its destructor would load the font configuration only to free it, a third of a short run.
    new QApplication(programNameOnly, argv);
    ProgramStart::nameApplication();
    DocumentMaker::setSource({[](QString &) { return billoraDocuments(); }, nullptr});
    Interface commands(qApp);
    commands.setArguments(ProgramStart::arguments(argc, argv));
    QTimer::singleShot(0, &commands, &Interface::start);
    return QApplication::exec();
}

#endif
