#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

#include <map>

namespace {

std::vector<QString> languages()
{
    std::vector<QString> codes;
    QFile list(QString(QUORIN_TRANSLATIONS) + "/languages.txt");
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

struct Message {
    QString context;
    QString source;
    QString translation;
    bool finished{true};
};

std::vector<Message> messagesOf(const QString &file)
{
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&source);
    std::vector<Message> messages;
    QString context;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.name() == QLatin1String("source")) {
            messages.push_back({context, xml.readElementText(), {}});
        } else if (xml.name() == QLatin1String("translation")) {
            messages.back().finished = !xml.attributes().hasAttribute("type");
            messages.back().translation =
                xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(xml.errorString());
    return messages;
}

QStringList placesIn(const QString &text)
{
    static const QRegularExpression place("%L?[0-9n]|\\*\\)|<[^>]*>");
    QStringList found;
    auto all = place.globalMatch(text);
    while (all.hasNext())
        found << all.next().captured();
    found.sort();
    return found;
}

TEST(TranslationsTest, EveryTextIsTranslatedAndKeepsItsPlaceholders)
{
    for (const QString &code : languages()) {
        const auto messages = messagesOf(QString("%1/Quorin6_%2.ts").arg(QUORIN_TRANSLATIONS, code));
        EXPECT_GT(messages.size(), 50u);
        for (const Message &message : messages) {
            const QString where = code + ' ' + message.context + ": " + message.source;
            EXPECT_TRUE(message.finished && !message.translation.isEmpty()) << qPrintable(where);
            EXPECT_EQ(placesIn(message.translation), placesIn(message.source)) << qPrintable(where);
        }
    }
}

} // namespace
