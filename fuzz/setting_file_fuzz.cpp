// Any bytes as editor.dat: the directory read from it, if the line format
// can hold it, is written and read back unchanged. The chooser only ever
// hands over full paths, which begin with neither a blank nor a double quote.
#include "data/names.h"
#include "data/setting_file.h"
#include "fuzz_check.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string directory = ReadSetting(AsBytes(data, size));
    if (NameProblem(directory))
        return 0;
    Require(ReadSetting(WriteSetting(directory)) == directory, "a stored directory reads back the same");
    return 0;
}
