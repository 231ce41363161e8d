#include "ui/StyleLoader.h"

#include "core/ApplicationInfoManager.h"
#include "ui/StyleSheetScaler.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QResource>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

// Closes the box that comes up and keeps what it said.
class BoxCloser {
public:
    BoxCloser()
    {
        m_timer.setInterval(10);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                m_texts << box->text();
                m_titles << box->windowTitle();
                m_icon = box->icon();
                box->button(QMessageBox::Ok)->click();
            }
        });
        m_timer.start();
    }

    QTimer m_timer;
    QStringList m_texts;
    QStringList m_titles;
    QMessageBox::Icon m_icon{QMessageBox::NoIcon};
};

TEST(StyleLoader, AMissingResourceFileIsToldWithItsPath)
{
    BoxCloser closer;
    EXPECT_FALSE(StyleLoader::loadResourceFile("no_such.rcc"));
    const QString path = ApplicationInfoManager::instance()->applicationFolder() + "/no_such.rcc";
    EXPECT_EQ(closer.m_texts, QStringList("File error: " + path));
    EXPECT_EQ(closer.m_icon, QMessageBox::Critical);
}

TEST(StyleLoader, AStyleIsToldMissingWithItsResourceFile)
{
    BoxCloser closer;
    EXPECT_FALSE(StyleLoader::applyTvStyle("no_such.rcc"));
    ASSERT_EQ(closer.m_texts.size(), 1);
    EXPECT_TRUE(closer.m_texts.first().endsWith("/no_such.rcc"));
}

TEST(StyleLoader, AnyUnreadableSheetIsToldUnderTheNameOfThePcSheet)
{
    BoxCloser closer;
    // The test program stands in for a resource file that is there but was never registered.
    const QString present = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    EXPECT_FALSE(StyleLoader::applySelectStyle(present));
    EXPECT_FALSE(StyleLoader::applyTvStyle(present));
    EXPECT_EQ(closer.m_texts, QStringList({"File error: pcstyle.css", "File error: pcstyle.css"}));
}

// A sheet with one wrong letter is dropped as a whole, with a warning that fails the test.
TEST(StyleLoader, EverySheetIsUnderstoodAtEveryScale)
{
    const QString resources =
        QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/") + StyleLoader::kResourceFile;
    ASSERT_TRUE(QResource::registerResource(resources));
    for (const char *name : {"selectstyle.css", "pcstyle.css", "tvstyle.css"}) {
        QFile sheet(QLatin1String(StyleLoader::kCssPrefix) + QLatin1String(name));
        ASSERT_TRUE(sheet.open(QIODevice::ReadOnly)) << name;
        const QString text = QString::fromUtf8(sheet.readAll());
        for (const float ratio : {1.0F, 1.5F, 2.0F}) {
            QWidget widget;
            widget.setStyleSheet(StyleSheetScaler::scaled(text, ratio));
            widget.ensurePolished();
        }
    }
    QResource::unregisterResource(resources);
}

TEST(StyleLoader, ThemesHaveTheirFilesAndOthersNone)
{
    EXPECT_EQ(StyleLoader::themeResourceFile("whiteblue"), "kelui_whiteblue.rcc");
    EXPECT_EQ(StyleLoader::themeResourceFile("red"), "kelui_red.rcc");
    EXPECT_EQ(StyleLoader::themeResourceFile("whitered"), "kelui_whitered.rcc");
    EXPECT_EQ(StyleLoader::themeResourceFile("blue"), "kelui_blue.rcc");
    EXPECT_EQ(StyleLoader::themeResourceFile("green"), QString());
}

} // namespace
