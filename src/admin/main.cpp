#include "admininterface.h"
#include "programmain.h"

int main(int argc, char *argv[]) { return programMain<AdminInterface>(argc, argv); }
