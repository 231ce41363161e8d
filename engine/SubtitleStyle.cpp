#include "SubtitleStyle.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace {

constexpr double defaultFontSize = 55;
constexpr double unitsPerPoint = 720.0 / 288.0;
constexpr int largestSize = 200;

struct CharsetRow {
    int codePage;
    const char *name;
};

// Code pages whose name is not "cp" and the number. A plus sign holds against text that looks like UTF-8.
constexpr CharsetRow charsetRows[] = {
    {936, "gb18030"},       {54936, "gb18030"},    {950, "big5-hkscs"},   {932, "cp932"},
    {20866, "koi8-r"},      {21866, "koi8-u"},     {65001, "+utf-8"},     {1200, "+utf-16le"},
    {1201, "+utf-16be"},    {51932, "euc-jp"},     {51949, "euc-kr"},     {28591, "iso-8859-1"},
    {28592, "iso-8859-2"},  {28593, "iso-8859-3"}, {28594, "iso-8859-4"}, {28595, "iso-8859-5"},
    {28596, "iso-8859-6"},  {28597, "iso-8859-7"}, {28598, "iso-8859-8"}, {28599, "iso-8859-9"},
    {28605, "iso-8859-15"}, {874, "cp874"},
};

} // namespace

namespace SubtitleStyle {

double fontSize(int size)
{
    return size > 0 ? std::min(size, largestSize) * unitsPerPoint : defaultFontSize;
}

std::string color(const std::string &text)
{
    const bool valid =
        text.size() == 7 && text[0] == '#'
        && std::all_of(text.begin() + 1, text.end(), [](unsigned char c) { return std::isxdigit(c) != 0; });
    return valid ? text : std::string();
}

int codePage(const std::string &text)
{
    const bool isNumber =
        !text.empty() && text.size() <= 5
        && std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
    return isNumber ? std::atoi(text.c_str()) : 0;
}

std::string charset(const std::string &text)
{
    const int number = codePage(text);
    if (number == 0)
        return "auto";
    for (const CharsetRow &row : charsetRows) {
        if (row.codePage == number)
            return row.name;
    }
    return "cp" + std::to_string(number);
}

std::string font(const std::string &family)
{
    return family.empty() ? "sans-serif" : family;
}

} // namespace SubtitleStyle
