#include "SystemLanguage.h"

#include <QLocale>

SystemLanguageId systemLanguage()
{
    return SystemLanguageId::fromLocale(QLocale::system());
}
