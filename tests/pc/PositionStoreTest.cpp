#include "TestSettings.h"

#include "core/SettingsKeys.h"
#include "playcontrol/PositionStore.h"

#include <gtest/gtest.h>

namespace {

const QString Film = QStringLiteral("/films/Northern Line.mkv");

PositionStore::Stop stopAt(qint64 seconds, qint64 total)
{
    PositionStore::Stop stop;
    stop.path = Film;
    stop.positionMs = seconds * 1000;
    stop.totalMs = total * 1000;
    return stop;
}

QImage frame(QSize size, QColor color)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

} // namespace

TEST(PositionStoreTest, StoresPositionAndLastFrameAsPng)
{
    TestSettings settings;
    PositionStore store(*settings);
    PositionStore::Stop stop = stopAt(700, 3600);
    stop.lastFrame = frame({64, 36}, Qt::red);
    EXPECT_TRUE(store.record(stop, {}));

    const PositionStore::Entry entry = store.read(Film);
    EXPECT_EQ(entry.seconds, 700);
    ASSERT_TRUE(entry.picture.startsWith("\x89PNG"));
    const QImage picture = QImage::fromData(entry.picture);
    EXPECT_EQ(picture.size(), QSize(64, 36));
    EXPECT_EQ(picture.pixelColor(10, 10), QColor(Qt::red));
}

TEST(PositionStoreTest, LargeFrameIsStoredSmallInItsOwnShape)
{
    TestSettings settings;
    PositionStore store(*settings);
    PositionStore::Stop stop = stopAt(700, 3600);
    stop.lastFrame = frame({3840, 2160}, Qt::blue);
    ASSERT_TRUE(store.record(stop, {}));
    EXPECT_EQ(QImage::fromData(store.read(Film).picture).size(), QSize(224, 126));
}

TEST(PositionStoreTest, StoppingWithinTheFirstMinuteKeepsTheEarlierPosition)
{
    TestSettings settings;
    PositionStore store(*settings);
    PositionStore::Stop first = stopAt(700, 3600);
    first.lastFrame = frame({8, 8}, Qt::green);
    ASSERT_TRUE(store.record(first, {}));
    PositionStore::Stop second = stopAt(59, 3600);
    second.lastFrame = frame({8, 8}, Qt::black);
    EXPECT_FALSE(store.record(second, {}));
    EXPECT_EQ(store.read(Film).seconds, 700);
    EXPECT_EQ(QImage::fromData(store.read(Film).picture).pixelColor(1, 1), QColor(Qt::green));
}

TEST(PositionStoreTest, SourceThatRanToItsEndKeepsWhatWasStored)
{
    TestSettings settings;
    PositionStore store(*settings);
    ASSERT_TRUE(store.record(stopAt(700, 3600), {}));
    PositionStore::Stop end = stopAt(1800, 3600);
    end.reachedEnd = true;
    EXPECT_FALSE(store.record(end, {}));
    EXPECT_EQ(store.read(Film).seconds, 700);
}

TEST(PositionStoreTest, NullFrameKeepsTheEarlierPicture)
{
    TestSettings settings;
    PositionStore store(*settings);
    PositionStore::Stop first = stopAt(700, 3600);
    first.lastFrame = frame({8, 8}, Qt::green);
    ASSERT_TRUE(store.record(first, {}));
    ASSERT_TRUE(store.record(stopAt(900, 3600), {}));
    EXPECT_EQ(store.read(Film).seconds, 900);
    EXPECT_FALSE(store.read(Film).picture.isEmpty());
}

TEST(PositionStoreTest, DiscIsFoundUnderItsName)
{
    TestSettings settings;
    PositionStore store(*settings);
    PositionStore::Stop stop = stopAt(700, 3600);
    stop.path = QStringLiteral("D");
    ASSERT_TRUE(store.record(stop, QStringLiteral("NORTHERN_LINE")));
    EXPECT_EQ(store.read(QStringLiteral("NORTHERN_LINE")).seconds, 700);
    EXPECT_EQ(store.read(QStringLiteral("D")).seconds, 0);
}

TEST(PositionStoreTest, UnknownSourceHasNothing)
{
    TestSettings settings;
    PositionStore store(*settings);
    const PositionStore::Entry entry = store.read(Film);
    EXPECT_EQ(entry.seconds, 0);
    EXPECT_TRUE(entry.picture.isEmpty());
    EXPECT_EQ(entry.audioIndex, 0);
    EXPECT_TRUE(entry.subtitle.isEmpty());
}

TEST(PositionStoreTest, KeepsTheTracksOfASource)
{
    TestSettings settings;
    PositionStore store(*settings);
    store.storeTracks(Film, 2, "ger");
    EXPECT_EQ(store.read(Film).audioIndex, 2);
    EXPECT_EQ(store.read(Film).subtitle, QByteArray("ger"));
}

TEST(PositionStoreTest, RemembersOnlyWhenToldSo)
{
    TestSettings settings;
    PositionStore store(*settings);
    EXPECT_FALSE(store.remembersPosition());
    settings->setValue(SettingsKeys::PC_RememberPosition, true);
    EXPECT_TRUE(store.remembersPosition());
}
