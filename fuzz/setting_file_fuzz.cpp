// Any bytes as editor.dat: the directory read from it, if the line format
// can hold it, is written and read back unchanged.
#include "data/names.h"
#include "data/setting_file.h"
#include "fuzz_check.h"

namespace {

// The line is plain text, so it cannot carry what the reader takes away:
// a comma ends the path, a line break ends the line, a leading double quote
// starts a quoted field and leading blanks are skipped. The chooser only
// ever hands over full paths, which start with neither.
bool LineCanHold(const std::string& directory)
{
    return !NameProblem(directory) && !directory.starts_with(' ');
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string directory = ReadSetting(AsBytes(data, size));
    if (!LineCanHold(directory))
        return 0;
    Require(ReadSetting(WriteSetting(directory)) == directory, "a stored directory reads back the same");
    return 0;
}
