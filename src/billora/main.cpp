#include "application.h"
#include "program.h"
#include "programstart.h"

int main(int argc, char *argv[])
{
    ProgramStart::prepare();
    const QStringList words = ProgramStart::arguments(argc, argv);
    Application::start(argv);
    Program program;
    return program.exitCode(program.run(words));
}
