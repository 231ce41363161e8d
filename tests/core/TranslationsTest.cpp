#include <QDir>
#include <QFile>
#include <QTranslator>

#include <gtest/gtest.h>

#include <map>

namespace {

std::vector<QString> languages()
{
    std::vector<QString> codes;
    QFile list(QUORIN_LANGUAGES);
    EXPECT_TRUE(list.open(QIODevice::ReadOnly));
    for (const QByteArray &line : list.readAll().split('\n')) {
        if (!line.isEmpty() && !line.startsWith('#'))
            codes.push_back(line.left(line.indexOf(' ')));
    }
    return codes;
}

TEST(TranslationsTest, EveryLanguageOfTheListIsBuiltAndSaysItsName)
{
    const std::map<QString, QString> names{
        {"CHS", QString::fromUtf8("简体中文")},
        {"CHT", QString::fromUtf8("繁體中文")},
        {"ESP", QString::fromUtf8("Español")},
        {"FRA", QString::fromUtf8("Français")},
        {"GER", "Deutsch"},
        {"JPN", QString::fromUtf8("日本語")},
    };
    EXPECT_EQ(languages().size(), names.size());
    for (const QString &code : languages()) {
        QTranslator translator;
        ASSERT_TRUE(translator.load(QString("%1/Quorin6_%2.qm").arg(QUORIN_LANGUAGE_FOLDER, code)))
            << qPrintable(code);
        const auto name = names.find(code);
        ASSERT_NE(name, names.end()) << qPrintable(code);
        EXPECT_EQ(translator.translate("LanguageManager", "Language name of this translation"), name->second);
    }
}

} // namespace
