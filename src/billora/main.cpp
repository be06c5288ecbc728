#include "program.h"
#include "programstart.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    ProgramStart::prepare();
    const QStringList words = ProgramStart::arguments(argc, argv);
    // The library takes words such as -style off the line that it is given; they are ours to answer.
    static int programNameOnly = 1;
    // Never deleted: the destructor would load the font configuration only to free it.
    if (Program::paints(words))
        new QApplication(programNameOnly, argv);
    else
        new QCoreApplication(programNameOnly, argv); // starts in half the time
    ProgramStart::nameApplication();
    return Program().run(words);
}
