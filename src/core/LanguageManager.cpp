#include "LanguageManager.h"

#include "ApplicationInfoManager.h"
#include "ILanguageBase.h"

#include <QCoreApplication>
#include <QHash>

void LanguageManager::load(const QString &code)
{
    // The translator of the language before would stay in the application's list otherwise.
    QCoreApplication::removeTranslator(&m_translator);
    if (m_translator.load(translationFile(code)))
        QCoreApplication::installTranslator(&m_translator);

    // Setting its texts may make an object create or destroy others.
    const QVector<ILanguageBase *> objects = m_objects;
    for (ILanguageBase *object : objects) {
        if (m_objects.contains(object))
            object->retranslate();
    }

    if (m_mediaServerLanguage)
        m_mediaServerLanguage(localeWord(code));
}

QString LanguageManager::translationFile(const QString &code)
{
    return QStringLiteral("%1/Quorin6_%2.qm").arg(ApplicationInfoManager::instance()->languageFolder(), code);
}

QString LanguageManager::localeWord(const QString &code)
{
    static const QHash<QString, QString> words{
        {"ENU", "en"},    {"FRA", "fr"}, {"GER", "de"},    {"JPN", "ja"},
        {"ESP", "es-es"}, {"CHS", "zh"}, {"CHT", "zh-TW"},
    };
    return words.value(code, QStringLiteral("en"));
}

void LanguageManager::setMediaServerLanguageSink(LanguageSink sink)
{
    m_mediaServerLanguage = std::move(sink);
}

void LanguageManager::add(ILanguageBase *object)
{
    m_objects << object;
}

void LanguageManager::remove(ILanguageBase *object)
{
    m_objects.removeOne(object);
}

QString LanguageManager::shownLanguage()
{
    //: The name of the language that this translation is for, in that language.
    const QString name = tr("Language name of this translation");
    return name == QLatin1String("Language name of this translation") ? QStringLiteral("English") : name;
}
