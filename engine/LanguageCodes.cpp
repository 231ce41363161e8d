#include "LanguageCodes.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace {

struct LanguageRow {
    const char *code; // of Matroska
    const char *two;
    const char *other; // further codes and the names, each with blanks around it; ASCII in lower case
};

constexpr LanguageRow rows[] = {
    {"eng", "en", " english enu "},
    {"ger", "de", " deu german deutsch "},
    {"fre", "fr",
     " fra french francais fran\xC3\xA7"
     "ais "},
    {"spa", "es", " esp spanish espanol espa\xC3\xB1ol castellano "},
    {"ita", "it", " italian italiano "},
    {"por", "pt", " ptb pob portuguese portugues portugu\xC3\xAAs brazilian "},
    {"dut", "nl", " nld dutch nederlands "},
    {"swe", "sv", " swedish svenska "},
    {"nor", "no", " nob nno nb nn norwegian norsk "},
    {"dan", "da", " danish dansk "},
    {"fin", "fi", " finnish suomi "},
    {"ice", "is", " isl icelandic "},
    {"rus", "ru", " russian "},
    {"ukr", "uk", " ukrainian "},
    {"bel", "be", " belarusian "},
    {"pol", "pl", " polish polski "},
    {"cze", "cs", " ces czech cesky cestina "},
    {"slo", "sk", " slk slovak slovencina "},
    {"slv", "sl", " slovenian slovenscina "},
    {"hrv", "hr", " croatian hrvatski "},
    {"srp", "sr", " scc serbian srpski "},
    {"bos", "bs", " bosnian "},
    {"bul", "bg", " bulgarian "},
    {"mac", "mk", " mkd macedonian "},
    {"rum", "ro", " ron romanian romana "},
    {"hun", "hu", " hungarian magyar "},
    {"gre", "el", " ell greek "},
    {"tur", "tr", " turkish turkce "},
    {"ara", "ar", " arabic "},
    {"heb", "he", " iw hebrew "},
    {"per", "fa", " fas persian farsi "},
    {"hin", "hi", " hindi "},
    {"ben", "bn", " bengali "},
    {"tam", "ta", " tamil "},
    {"tel", "te", " telugu "},
    {"urd", "ur", " urdu "},
    {"tha", "th", " thai "},
    {"vie", "vi", " vietnamese "},
    {"ind", "id", " indonesian "},
    {"may", "ms", " msa malay "},
    {"fil", "tl", " tgl filipino tagalog "},
    {"jpn", "ja", " jap japanese \xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E "},
    {"kor", "ko", " korean \xED\x95\x9C\xEA\xB5\xAD\xEC\x96\xB4 "},
    {"chi", "zh",
     " zho chs cht cn tw chinese \xE4\xB8\xAD\xE6\x96\x87 \xE7\xAE\x80\xE4\xBD\x93 "
     "\xE7\xB9\x81\xE9\xAB\x94 "},
    {"est", "et", " estonian eesti "},
    {"lav", "lv", " latvian latviesu "},
    {"lit", "lt", " lithuanian lietuviu "},
    {"cat", "ca", " catalan catala "},
    {"baq", "eu", " eus basque euskara "},
    {"glg", "gl", " galician galego "},
    {"gle", "ga", " irish "},
    {"wel", "cy", " cym welsh "},
    {"alb", "sq", " sqi albanian shqip "},
    {"geo", "ka", " kat georgian "},
    {"arm", "hy", " hye armenian "},
    {"aze", "az", " azerbaijani "},
    {"kaz", "kk", " kazakh "},
    {"lat", "la", " latin "},
};

std::string findCode(const std::string &word)
{
    const std::string inside = ' ' + word + ' ';
    for (const LanguageRow &row : rows) {
        if (word == row.code || word == row.two || std::string(row.other).find(inside) != std::string::npos)
            return row.code;
    }
    return {};
}

} // namespace

namespace LanguageCodes {

std::string canonical(const std::string &word)
{
    std::string text = word;
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char c) { return c < 0x80 ? static_cast<char>(std::tolower(c)) : char(c); });
    if (text.empty() || text.find(' ') != std::string::npos)
        return {};
    std::string code = findCode(text);
    if (!code.empty())
        return code;
    const std::size_t region = text.find_first_of("-_");
    return region == std::string::npos || region == 0 ? std::string() : findCode(text.substr(0, region));
}

std::vector<std::string> canonicalList(const std::string &list)
{
    std::vector<std::string> codes;
    std::size_t start = 0;
    while (start <= list.size()) {
        const std::size_t end = std::min(list.find(',', start), list.size());
        std::string code = canonical(list.substr(start, end - start));
        if (!code.empty())
            codes.push_back(std::move(code));
        start = end + 1;
    }
    return codes;
}

} // namespace LanguageCodes
