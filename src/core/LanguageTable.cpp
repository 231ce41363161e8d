#include "LanguageTable.h"

#include <algorithm>

namespace {

QString find(const QString &wanted, QString LanguageEntry::*key, QString LanguageEntry::*result)
{
    for (const auto *list : {&LanguageTable::entries(), &LanguageTable::interfaceLanguages()}) {
        const auto row = std::find_if(list->begin(), list->end(),
                                      [&](const LanguageEntry &entry) { return entry.*key == wanted; });
        if (row != list->end())
            return *row.*result;
    }
    return {};
}

} // namespace

const QVector<LanguageEntry> &LanguageTable::entries()
{
    static const QVector<LanguageEntry> table{
        {"English (United States)", English},
        {"Arablic (KSA)", "ARA"},
        {"Bulgarian", "BGR"},
        {"Catalan (Spain)", "CAT"},
        {"Chinese (PRC)", "CHS"},
        {"Chinese Traditional (Taiwan)", "CHT"},
        {"Czech", "CSY"},
        {"Denmark", "DAN"},
        {"Dutch (Netherlands)", "NLD"},
        {"Finnish (Suomi)", "FIN"},
        {"French (France)", "FRA"},
        {"German (Germany)", "GER"},
        {"Greek", "ELL"},
        {"Hrvatski (Croatian)", "HRV"},
        {"Hungarian", "HUN"},
        {"Italiano (Italia)", "ITA"},
        {"Japanese", "JPN"},
        {"korean", "KOR"},
        {"Norwegian", "NOR"},
        {"Polish (Poland)", "POL"},
        {"Portuguese (Brazil)", "PTB"},
        {"Portuguese (Portugal)", "PTG"},
        {"Romanian", "ROM"},
        {"Russia", "RUS"},
        {"Slovak", "SKY"},
    };
    return table;
}

const QVector<LanguageEntry> &LanguageTable::interfaceLanguages()
{
    static const QVector<LanguageEntry> table{
        {"English (United States)", English},
        {"Chinese (PRC)", "CHS"},
        {"Chinese Traditional (Taiwan)", "CHT"},
        {"French (France)", "FRA"},
        {"German (Germany)", "GER"},
        {"Japanese", "JPN"},
        {"Spanish (Spain)", "ESP"},
    };
    return table;
}

QString LanguageTable::codeOf(const QString &name)
{
    return find(name, &LanguageEntry::name, &LanguageEntry::code);
}

QString LanguageTable::nameOf(const QString &code)
{
    return find(code, &LanguageEntry::code, &LanguageEntry::name);
}
