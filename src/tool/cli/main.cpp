#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "data/file_io.h"

#if defined(_WIN32)
// Windows hands the arguments over in wide characters, so that a folder named
// in any script arrives whole; the tool works in UTF-8.
int wmain(int argc, wchar_t* argv[])
{
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i)
        args.push_back(PathText(argv[i]));
    return RunKoltaData(args, std::cout, std::cerr);
}
#else
int main(int argc, char* argv[])
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    return RunKoltaData(args, std::cout, std::cerr);
}
#endif
