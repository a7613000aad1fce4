#include "data/setting_file.h"

#include "data/field_reader.h"
#include "data/text_lines.h"

std::string ReadSetting(std::string_view bytes)
{
    FieldReader reader(bytes);
    return reader.ReadText().value_or(std::string{});
}

std::string WriteSetting(const std::string& directory)
{
    TextLines out;
    out.Line(directory);
    return out.Take();
}

std::string ReadSettingFile(const std::string& path)
{
    const auto bytes = ReadWholeFile(path);
    return bytes ? ReadSetting(*bytes) : std::string{};
}

FileResult WriteSettingFile(const std::string& path, const std::string& directory)
{
    return ReplaceFile(path, WriteSetting(directory));
}
