#include "app/ModeSelectView.h"

#include "core/SettingsKeys.h"
#include "core/SettingsManager.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class ModeSelectViewTest : public testing::Test {
protected:
    ModeSelectViewTest()
        : m_store(m_folder.filePath("config.ini"))
        , m_view(m_store)
    {
        m_view.show();
    }

    template<class T>
    T *child(const char *name)
    {
        return m_view.findChild<T *>(QLatin1String(name));
    }
    void press(const char *tile) { QTest::mousePress(child<QFrame>(tile), Qt::LeftButton); }

    QTemporaryDir m_folder;
    SettingsManager m_store;
    ModeSelectView m_view;
};

TEST_F(ModeSelectViewTest, StartsWithPcAndNothingChosen)
{
    EXPECT_TRUE(m_view.isPcChosen());
    EXPECT_FALSE(m_view.isChosen());
}

TEST_F(ModeSelectViewTest, APressOnPcWithoutTheBoxStoresZeroAndCloses)
{
    press("pcTile");
    EXPECT_TRUE(m_view.isChosen());
    EXPECT_TRUE(m_view.isPcChosen());
    EXPECT_FALSE(m_view.isVisible());
    EXPECT_EQ(m_store.launchMode(), 0);
}

TEST_F(ModeSelectViewTest, APressOnTvWithoutTheBoxStoresZero)
{
    press("tvTile");
    EXPECT_TRUE(m_view.isChosen());
    EXPECT_FALSE(m_view.isPcChosen());
    EXPECT_EQ(m_store.launchMode(), 0);
}

TEST_F(ModeSelectViewTest, TheTickedBoxStoresTheMode)
{
    child<QCheckBox>("rememberBox")->setChecked(true);
    press("tvTile");
    EXPECT_EQ(m_store.launchMode(), 2);
}

TEST_F(ModeSelectViewTest, TheTickedBoxStoresPcMode)
{
    m_store.setLaunchMode(0);
    child<QCheckBox>("rememberBox")->setChecked(true);
    press("pcTile");
    EXPECT_EQ(m_store.launchMode(), 1);
}

TEST_F(ModeSelectViewTest, TheCloseButtonLeavesTheKeyAsItWas)
{
    m_store.setLaunchMode(0);
    child<QCheckBox>("rememberBox")->setChecked(true);
    QTest::mouseClick(child<QPushButton>("closeButton"), Qt::LeftButton);
    EXPECT_FALSE(m_view.isVisible());
    EXPECT_FALSE(m_view.isChosen());
    EXPECT_EQ(m_store.launchMode(), 0);
}

TEST_F(ModeSelectViewTest, TheCloseButtonWritesNoKeyWhereThereWasNone)
{
    QTest::mouseClick(child<QPushButton>("closeButton"), Qt::LeftButton);
    EXPECT_FALSE(m_store.contains(SettingsKeys::launchModeVersion6));
}

TEST_F(ModeSelectViewTest, HoverSwapsThePictures)
{
    auto *tile = child<QFrame>("tvTile");
    const QList<QLabel *> pictures = tile->findChildren<QLabel *>("tilePicture");
    ASSERT_EQ(pictures.size(), 2);
    QHoverEvent enter(QEvent::HoverEnter, QPointF(5, 5), QPointF());
    QCoreApplication::sendEvent(tile, &enter);
    EXPECT_TRUE(pictures.at(0)->isHidden());
    EXPECT_FALSE(pictures.at(1)->isHidden());
    QHoverEvent leave(QEvent::HoverLeave, QPointF(), QPointF(5, 5));
    QCoreApplication::sendEvent(tile, &leave);
    EXPECT_FALSE(pictures.at(0)->isHidden());
    EXPECT_TRUE(pictures.at(1)->isHidden());
}

} // namespace
