#include "start/PosterView.h"

#include "support/TestLog.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QResource>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVariantAnimation>

#include <gtest/gtest.h>

namespace {

constexpr int kWaitMs = 10000;

QImage plain(QColor color)
{
    QImage image(64, 36, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

class PosterViewTest : public testing::Test {
protected:
    static QString resourceFile()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
    }
    static void SetUpTestSuite() { ASSERT_TRUE(QResource::registerResource(resourceFile())); }
    static void TearDownTestSuite() { QResource::unregisterResource(resourceFile()); }

    void SetUp() override
    {
        m_view.resize(320, 180);
        m_view.show();
        ASSERT_TRUE(m_changed.wait(kWaitMs));
        m_changed.clear();
    }
    QColor middle() { return m_view.grab().toImage().pixelColor(160, 90); }

    PosterView m_view;
    QSignalSpy m_changed{&m_view, &PosterView::posterChanged};
};

} // namespace

TEST_F(PosterViewTest, BeginsWithTheDefaultPictureOfTheResources)
{
    EXPECT_TRUE(m_view.isDefault());
    EXPECT_EQ(m_view.pictureSize(), QSize(1920, 1080));
    EXPECT_EQ(m_view.posterProgress(), 1.0);
    EXPECT_EQ(m_view.opacityProgress(), 0.0);
}

TEST_F(PosterViewTest, DefaultPictureIsDarkEnoughForSoftText)
{
    const QImage image = m_view.grab().toImage();
    for (int y = 0; y < image.height(); y += 4) {
        for (int x = 0; x < image.width(); x += 4)
            ASSERT_LE(qGray(image.pixel(x, y)), 70) << x << ' ' << y;
    }
}

TEST_F(PosterViewTest, PictureWithoutAnimationIsThereAtOnceAndShaded)
{
    m_view.setPoster(QPixmap::fromImage(plain(Qt::white)), false);
    EXPECT_EQ(m_changed.size(), 1);
    EXPECT_FALSE(m_view.isDefault());
    EXPECT_EQ(m_view.posterProgress(), 1.0);
    EXPECT_EQ(m_view.opacityProgress(), 1.0);
    // Soft text on white would not be readable without the shade.
    EXPECT_LE(qGray(middle().rgb()), 70);
    m_view.setOpacityProgress(0.0);
    EXPECT_EQ(middle(), QColor(Qt::white));
}

TEST_F(PosterViewTest, CrossFadeIsDrivenByTheTwoNumbers)
{
    m_view.setPoster(plain(Qt::red), false);
    m_view.setPoster(plain(Qt::blue), true);
    EXPECT_EQ(m_view.posterProgress(), 0.0);
    m_view.setOpacityProgress(0.0);
    EXPECT_EQ(middle(), QColor(Qt::red));
    m_view.setPosterProgress(0.5);
    EXPECT_NEAR(middle().red(), 128, 3);
    EXPECT_NEAR(middle().blue(), 128, 3);
    m_view.setPosterProgress(7.0);
    EXPECT_EQ(m_view.posterProgress(), 1.0);
    EXPECT_EQ(middle(), QColor(Qt::blue));
}

TEST_F(PosterViewTest, AnimationEndsWithTheNewPictureAlone)
{
    m_view.setPoster(plain(Qt::red), true);
    EXPECT_LT(m_view.posterProgress(), 1.0);
    for (const char *name : {PosterView::PosterAnimation, PosterView::OpacityAnimation}) {
        auto *animation = qobject_cast<QVariantAnimation *>(m_view.animate(name));
        ASSERT_NE(animation, nullptr) << name;
        animation->setCurrentTime(animation->duration());
    }
    EXPECT_EQ(m_view.posterProgress(), 1.0);
    EXPECT_EQ(m_view.opacityProgress(), 1.0);
}

TEST_F(PosterViewTest, FileAndBytesAreReadOnAWorker)
{
    QTemporaryDir folder;
    const QString path = folder.filePath("poster.png");
    ASSERT_TRUE(plain(Qt::green).save(path));
    m_view.setPoster(path, false);
    EXPECT_TRUE(m_changed.isEmpty());
    ASSERT_TRUE(m_changed.wait(kWaitMs));
    EXPECT_EQ(m_view.pictureSize(), QSize(64, 36));

    QByteArray bytes;
    QBuffer buffer(&bytes);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    ASSERT_TRUE(plain(Qt::yellow).scaled(20, 20).save(&buffer, "PNG"));
    m_view.setPoster(bytes, false);
    ASSERT_TRUE(m_changed.wait(kWaitMs));
    EXPECT_EQ(m_view.pictureSize(), QSize(20, 20));
}

TEST_F(PosterViewTest, WhatCannotBeReadGivesTheDefaultPicture)
{
    m_view.setPoster(plain(Qt::red), false);
    m_changed.clear();
    m_view.setPoster(QStringLiteral("/no/such/poster.jpg"), false);
    ASSERT_TRUE(m_changed.wait(kWaitMs));
    EXPECT_TRUE(m_view.isDefault());
    EXPECT_EQ(m_view.opacityProgress(), 0.0);
    EXPECT_EQ(TestLog::infoLines().filter("poster.jpg").size(), 1);

    m_view.setPoster(plain(Qt::red), false);
    m_changed.clear();
    m_view.setPoster(QByteArray("no picture"), false);
    ASSERT_TRUE(m_changed.wait(kWaitMs));
    EXPECT_TRUE(m_view.isDefault());
}

TEST_F(PosterViewTest, NothingGivesTheDefaultPictureBack)
{
    m_view.setPoster(plain(Qt::red), false);
    m_changed.clear();
    m_view.setPoster({}, true);
    ASSERT_TRUE(m_changed.wait(kWaitMs));
    EXPECT_TRUE(m_view.isDefault());
}

TEST_F(PosterViewTest, LaterPictureReplacesOneThatIsStillBeingRead)
{
    m_view.setPoster(QStringLiteral("/no/such/poster.jpg"), false);
    m_view.setPoster(plain(Qt::red), false);
    m_changed.clear();
    m_view.setPoster(QByteArray("no picture"), false);
    m_view.setPoster(plain(Qt::blue).scaled(20, 20), false);
    EXPECT_EQ(m_changed.size(), 1);
    // What was read in between has been thrown away by the time this is.
    m_view.setPoster(QByteArray("no picture"), false);
    ASSERT_TRUE(m_changed.wait(kWaitMs));
    EXPECT_EQ(m_changed.size(), 2);
}
