#include "core/LanguageManager.h"

#include "core/ApplicationInfoManager.h"
#include "core/ILanguageBase.h"
#include "core/QTranslateDialog.h"
#include "core/QTranslateWidget.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace {

class Labelled final : public ILanguageBase {
public:
    explicit Labelled(std::function<void()> action = {})
        : m_action(std::move(action))
    {
    }
    void retranslate() override
    {
        ++told;
        if (m_action)
            m_action();
    }
    int told{0};

private:
    std::function<void()> m_action;
};

class Page final : public QTranslateWidget {
public:
    void retranslate() override { ++told; }
    int told{0};
};

class Screen final : public QTranslateWidget, public ILanguageBase {
public:
    void retranslate() override { ++told; }
    int told{0};
};

class Question final : public QTranslateDialog {
public:
    void retranslate() override { ++told; }
    int told{0};
};

class LanguageManagerTest : public testing::Test {
protected:
    LanguageManagerTest()
    {
        LanguageManager::instance()->setMediaServerLanguageSink(
            [this](const QString &word) { m_words << word; });
    }
    ~LanguageManagerTest() override
    {
        LanguageManager::instance()->setMediaServerLanguageSink({});
        LanguageManager::instance()->load("ENU");
    }

    QStringList m_words;
};

TEST_F(LanguageManagerTest, EveryoneWithTextsIsToldInOrderAsLongAsHeLives)
{
    std::vector<int> order;
    Labelled first([&] { order.push_back(1); });
    auto gone = std::make_unique<Labelled>([&] { order.push_back(2); });
    Labelled third([&] { order.push_back(3); });
    LanguageManager::instance()->load("ENU");
    gone.reset();
    LanguageManager::instance()->load("ENU");
    EXPECT_EQ(order, (std::vector<int>{1, 2, 3, 1, 3}));
}

TEST_F(LanguageManagerTest, BeingToldMayEndOthersAndMakeNewOnes)
{
    std::unique_ptr<Labelled> doomed;
    std::unique_ptr<Labelled> made;
    Labelled first([&] {
        made = std::make_unique<Labelled>();
        doomed.reset();
    });
    doomed = std::make_unique<Labelled>([] { FAIL() << "told after its end"; });
    Labelled last;
    LanguageManager::instance()->load("ENU");
    EXPECT_EQ(last.told, 1);
    EXPECT_EQ(made->told, 0) << "made with its texts already";
}

TEST_F(LanguageManagerTest, TheMediaServerIsToldTheLocaleWord)
{
    const char *const rows[][2] = {{"ENU", "en"},    {"FRA", "fr"},    {"GER", "de"},
                                   {"JPN", "ja"},    {"ESP", "es-es"}, {"CHS", "zh"},
                                   {"CHT", "zh-TW"}, {"POL", "en"},    {"", "en"}};
    for (const auto &row : rows) {
        m_words.clear();
        LanguageManager::instance()->load(row[0]);
        EXPECT_EQ(m_words, QStringList{row[1]}) << row[0];
    }
}

TEST_F(LanguageManagerTest, ALanguageWithoutAFileOrWithABrokenOneShowsTheBuiltInTexts)
{
    EXPECT_EQ(LanguageManager::translationFile("GER"),
              QCoreApplication::applicationDirPath() + "/QLanguage/Quorin6_GER.qm");
    const QString folder = ApplicationInfoManager::instance()->languageFolder();
    ASSERT_TRUE(QDir().mkpath(folder));
    ASSERT_TRUE(QFile::copy(QString(QUORIN_LANGUAGE_FOLDER) + "/Quorin6_GER.qm", folder + "/Quorin6_XGE.qm"));
    QFile broken(folder + "/Quorin6_XXB.qm");
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no translation at all");
    broken.close();

    LanguageManager::instance()->load("XGE");
    EXPECT_EQ(LanguageManager::shownLanguage(), "Deutsch");
    LanguageManager::instance()->load("XXB");
    EXPECT_EQ(LanguageManager::shownLanguage(), "English");
    LanguageManager::instance()->load("XGE");
    LanguageManager::instance()->load("XGE");
    LanguageManager::instance()->load("XXN");
    EXPECT_EQ(LanguageManager::shownLanguage(), "English")
        << "the language before is gone, however often it was loaded";
    QFile::remove(folder + "/Quorin6_XGE.qm");
    EXPECT_TRUE(broken.remove());
}

TEST_F(LanguageManagerTest, WidgetsAndDialogsAreToldOnceByTheToolkitOrByTheList)
{
    Page page;
    Screen screen;
    Question question;
    QEvent change(QEvent::LanguageChange);
    QCoreApplication::sendEvent(&page, &change);
    QCoreApplication::sendEvent(&screen, &change);
    QCoreApplication::sendEvent(&question, &change);
    EXPECT_EQ(page.told, 1);
    EXPECT_EQ(question.told, 1);
    EXPECT_EQ(screen.told, 0) << "it is on the list";
    LanguageManager::instance()->load("POL");
    EXPECT_EQ(screen.told, 1);
}

TEST(QTranslateDialogTest, ThePointerIsHiddenWhileItRuns)
{
    Question question;
    bool hidden = false;
    QTimer::singleShot(0, &question, [&] {
        hidden = QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::BlankCursor;
        question.done(7);
    });
    EXPECT_EQ(question.exec(), 7);
    EXPECT_TRUE(hidden);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

} // namespace
