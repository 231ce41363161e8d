#include "PreferredLanguages.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

namespace PreferredLanguages {

namespace {

constexpr char kSame[] = "same";
constexpr char kNone[] = "close";

struct Row {
    const char *code;  // of the settings
    const char *names; // ISO 639-2 in both forms, then ISO 639-1
};

constexpr Row kRows[] = {
    {"ENU", "eng,en"},
    {"ARA", "ara,ar"},
    {"BGR", "bul,bg"},
    {"CAT", "cat,ca"},
    {"CHS", "zh-Hans,chs,zho,chi,zh"},
    {"CHT", "zh-Hant,cht,zho,chi,zh"},
    {"CSY", "ces,cze,cs"},
    {"DAN", "dan,da"},
    {"NLD", "nld,dut,nl"},
    {"FIN", "fin,fi"},
    {"FRA", "fra,fre,fr"},
    {"GER", "deu,ger,de"},
    {"ELL", "ell,gre,el"},
    {"ESP", "spa,es"},
    {"HRV", "hrv,scr,hr"},
    {"HUN", "hun,hu"},
    {"ITA", "ita,it"},
    {"JPN", "jpn,ja"},
    {"KOR", "kor,ko"},
    {"NOR", "nor,nob,nno,no,nb"},
    {"POL", "pol,pl"},
    {"PTB", "pt-BR,por,pt"},
    {"PTG", "pt-PT,por,pt"},
    {"ROM", "ron,rum,ro"},
    {"RUS", "rus,ru"},
    {"SKY", "slk,slo,sk"},
};

QString asked(const SettingsManager &settings, const char *key)
{
    const QString code = settings.value(QLatin1String(key)).toString();
    return code.isEmpty() || code == QLatin1String(kSame) ? settings.language() : code;
}

} // namespace

QString namesOf(const QString &code)
{
    for (const Row &row : kRows) {
        if (code == QLatin1String(row.code))
            return QLatin1String(row.names);
    }
    return {};
}

QString ofSound(const SettingsManager &settings)
{
    return namesOf(asked(settings, SettingsKeys::PC_AudioLanguage));
}

QString ofSubtitles(const SettingsManager &settings)
{
    const QString code = asked(settings, SettingsKeys::PC_SubtitleLanguage);
    return code == QLatin1String(kNone) ? code : namesOf(code);
}

} // namespace PreferredLanguages
