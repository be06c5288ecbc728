#include "commandlineinterface.h"
#include "programmain.h"

int main(int argc, char *argv[]) { return programMain<CommandLineInterface>(argc, argv); }
