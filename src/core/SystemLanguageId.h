// The language of the system as a pair of numbers: primary language and sublanguage, numbered as Windows
// does.
#pragma once

class QLocale;

struct SystemLanguageId {
    enum Primary {
        Unknown = 0x00,
        Chinese = 0x04,
        German = 0x07,
        English = 0x09,
        Spanish = 0x0a,
        French = 0x0c,
        Japanese = 0x11,
        Korean = 0x12,
    };
    enum Sub {
        SubDefault = 0x01,
        ChineseTraditional = 0x01,
        ChineseSimplified = 0x02,
    };

    int primary{Unknown};
    int sub{SubDefault};

    // Languages that the program has no texts for come back as Unknown.
    [[nodiscard]] static SystemLanguageId fromLocale(const QLocale &locale);
};
