// Base of everything that has texts of its own: takes part in a change of language for as long as it lives.
// GUI thread only.
#pragma once

class ILanguageBase {
public:
    ILanguageBase();
    virtual ~ILanguageBase();
    ILanguageBase(const ILanguageBase &) = delete;
    ILanguageBase &operator=(const ILanguageBase &) = delete;

    // Sets all texts anew; the base has none.
    virtual void retranslate();
};
