// A change of the language while the real window is open.
#include "WindowFixture.h"

#include "core/ApplicationInfoManager.h"
#include "core/LanguageManager.h"
#include "overlays/NormalTitleBar.h"
#include "pc/NormalMainWindow.h"
#include "start/NormalStartView.h"

#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTranslator>

namespace {

constexpr char kCode[] = "XWL";

class WindowLanguageTest : public WindowFixture {
protected:
    void SetUp() override
    {
        // Under a code of this test's own: other test programs share the folder.
        ASSERT_TRUE(QDir().mkpath(ApplicationInfoManager::instance()->languageFolder()));
        ASSERT_TRUE(QFile::copy(QString(QUORIN_LANGUAGE_FOLDER) + "/Quorin6_GER.qm", m_file));
        ASSERT_TRUE(m_german.load(m_file));
    }
    void TearDown() override
    {
        LanguageManager::instance()->load("ENU");
        QFile::remove(m_file);
    }

    const QString m_file{LanguageManager::translationFile(QLatin1String(kCode))};
    QTranslator m_german;
};

TEST_F(WindowLanguageTest, TheOpenWindowsAreRelabelledAtOnce)
{
    NormalMainWindow window(nullptr, true);
    const auto *bar = window.findChild<NormalTitleBar *>();
    ASSERT_NE(bar, nullptr);
    const auto *close = bar->findChild<QPushButton *>("windowCloseButton");
    ASSERT_NE(close, nullptr);
    const auto *startView = window.findChild<NormalStartView *>();
    ASSERT_NE(startView, nullptr);
    const auto textsOfStartView = [startView] {
        QStringList texts;
        for (const QLabel *label : startView->findChildren<QLabel *>())
            texts << label->text();
        for (const QPushButton *button : startView->findChildren<QPushButton *>())
            texts << button->text() << button->accessibleName();
        return texts;
    };
    ASSERT_EQ(close->accessibleName(), "Close");
    const QStringList english = textsOfStartView();

    LanguageManager::instance()->load(QLatin1String(kCode));
    EXPECT_EQ(close->accessibleName(), m_german.translate("NormalTitleBar", "Close"));
    EXPECT_EQ(close->toolTip(), close->accessibleName());
    EXPECT_NE(close->accessibleName(), "Close");
    EXPECT_NE(textsOfStartView(), english);

    LanguageManager::instance()->load("ENU");
    EXPECT_EQ(close->accessibleName(), "Close");
    EXPECT_EQ(textsOfStartView(), english);
}

} // namespace
