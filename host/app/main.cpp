#include "host/app/Program.h"

int main(int argc, char **argv)
{
    return host::app::runProgram(argc, argv);
}
