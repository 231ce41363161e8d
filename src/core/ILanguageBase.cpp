#include "ILanguageBase.h"

#include "LanguageManager.h"

ILanguageBase::ILanguageBase()
{
    LanguageManager::instance()->add(this);
}

ILanguageBase::~ILanguageBase()
{
    LanguageManager::instance()->remove(this);
}

void ILanguageBase::retranslate() {}
