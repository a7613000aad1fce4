#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"

int main(int argc, char* argv[])
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    return RunKoltaData(args, std::cout, std::cerr);
}
