#include "SystemLanguageId.h"

#include <QLocale>

SystemLanguageId SystemLanguageId::fromLocale(const QLocale &locale)
{
    switch (locale.language()) {
    case QLocale::Chinese:
        return {Chinese,
                locale.script() == QLocale::TraditionalHanScript ? ChineseTraditional : ChineseSimplified};
    case QLocale::German:
        return {German, SubDefault};
    case QLocale::English:
        return {English, SubDefault};
    case QLocale::Spanish:
        return {Spanish, SubDefault};
    case QLocale::French:
        return {French, SubDefault};
    case QLocale::Japanese:
        return {Japanese, SubDefault};
    case QLocale::Korean:
        return {Korean, SubDefault};
    default:
        return {};
    }
}
