#include "SystemLanguage.h"

#include <windows.h>

SystemLanguageId systemLanguage()
{
    const LANGID id = GetSystemDefaultLangID();
    return {PRIMARYLANGID(id), SUBLANGID(id)};
}
