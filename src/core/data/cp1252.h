#pragma once

#include <string>
#include <string_view>

// The game's files are Windows-1252. Every byte decodes to exactly one UTF-16
// code unit (the five bytes the code page leaves undefined map to the C1
// controls of the same value), so a decode and an encode give back every byte.

char16_t Cp1252ToUnicode(unsigned char byte);
std::u16string DecodeCp1252(std::string_view bytes);

// Characters the code page cannot hold make the result empty and `ok` false.
std::string EncodeCp1252(std::u16string_view text, bool& ok);
bool FitsCp1252(char16_t unit);

// Orders two Windows-1252 texts by the UTF-16 code units they decode to.
int CompareCp1252(std::string_view a, std::string_view b);
