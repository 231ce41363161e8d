// Loads the translation of the user interface and tells everyone who has texts about the change, without a
// restart. Owns the translator. GUI thread only; the list has no lock.
#pragma once

#include "Singleton.h"

#include <QObject>
#include <QString>
#include <QTranslator>
#include <QVector>

#include <functional>

class ILanguageBase;

class LanguageManager final : public QObject, public Singleton<LanguageManager> {
    Q_OBJECT

public:
    // Where the locale word for the library's metadata goes.
    using LanguageSink = std::function<void(QString)>;

    // Switches to the language of a three-letter code. A language without a translation file shows the texts
    // that are built in.
    void load(const QString &code);

    // The file of a language, and the word that the media server uses for it.
    [[nodiscard]] static QString translationFile(const QString &code);
    [[nodiscard]] static QString localeWord(const QString &code);

    // The name of the language whose texts are shown now, in that language.
    [[nodiscard]] static QString shownLanguage();

    void setMediaServerLanguageSink(LanguageSink sink);

private:
    friend class Singleton<LanguageManager>;
    friend class ILanguageBase;
    LanguageManager() = default;

    void add(ILanguageBase *object);
    void remove(ILanguageBase *object);

    QTranslator m_translator;
    QVector<ILanguageBase *> m_objects;
    LanguageSink m_mediaServerLanguage;
};
