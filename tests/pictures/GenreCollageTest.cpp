// The covers of a genre in one picture.
#include "TestPictures.h"

#include "pictures/GenreCollage.h"
#include "pictures/PosterLoader.h"

#include <gtest/gtest.h>

using namespace TestPictures;

namespace {

const QList<QColor> kColors{Qt::red, Qt::green, Qt::blue, Qt::yellow, Qt::cyan};

class GenreCollageTest : public testing::Test {
protected:
    GenreCollageTest()
    {
        m_sources.genrePosters = [this](const QString &genre) {
            return genre == QLatin1String("Jazz") ? m_posters : QStringList();
        };
    }

    // A cover that the server has.
    QString cover(const QString &key, const QColor &color, const QSize &size = {500, 700})
    {
        m_server.put(PosterLoader::address(key), encoded(color, size));
        return key;
    }

    [[nodiscard]] QImage load()
    {
        return GenreCollage::load(QStringLiteral("Jazz"), m_sources, [] { return true; });
    }

    Server m_server;
    PictureSources m_sources{m_server.sources()};
    QStringList m_posters;
};

} // namespace

TEST_F(GenreCollageTest, AGenreWithOneSongGivesASingleFullPicture)
{
    m_posters << cover(QStringLiteral("a"), Qt::red);
    const QImage picture = load();
    ASSERT_EQ(picture.size(), QSize(400, 400));
    for (const QPoint &corner : {QPoint(0, 0), QPoint(399, 0), QPoint(0, 399), QPoint(399, 399)})
        EXPECT_TRUE(isColor(picture.pixelColor(corner), Qt::red));
}

TEST_F(GenreCollageTest, EveryNumberOfPicturesHasItsLayout)
{
    // The colour in the four quarters: upper left, upper right, lower left, lower right.
    const int quarters[][4] = {{0, 0, 0, 0}, {0, 1, 0, 1}, {0, 1, 0, 2}, {0, 1, 2, 3}, {0, 1, 2, 3}};
    for (int count = 1; count <= kColors.size(); ++count) {
        m_posters << cover(QStringLiteral("cover %1").arg(count), kColors.at(count - 1));
        const QImage picture = load();
        ASSERT_EQ(picture.size(), QSize(400, 400)) << count;
        for (int quarter = 0; quarter < 4; ++quarter) {
            const QPoint corner(quarter % 2 * 200, quarter / 2 * 200);
            const QColor &expected = kColors.at(quarters[count - 1][quarter]);
            EXPECT_TRUE(isColor(picture.pixelColor(corner), expected)) << count << " " << quarter;
            EXPECT_TRUE(isColor(picture.pixelColor(corner + QPoint(199, 199)), expected))
                << count << " " << quarter;
        }
    }
}

TEST_F(GenreCollageTest, ACoverIsShownOnceWhateverItsName)
{
    m_posters << QString() << cover(QStringLiteral("a"), Qt::red) << QStringLiteral("a")
              << cover(QStringLiteral("the same cover"), Qt::red) << cover(QStringLiteral("b"), Qt::blue);
    const QImage picture = load();
    EXPECT_TRUE(isColor(picture.pixelColor(100, 200), Qt::red));
    EXPECT_TRUE(isColor(picture.pixelColor(300, 200), Qt::blue));
    EXPECT_EQ(m_server.addresses().size(), 3);
}

TEST_F(GenreCollageTest, ReadingEndsWithTheFourthPicture)
{
    for (const QColor &color : kColors)
        m_posters << cover(color.name(), color);
    EXPECT_FALSE(load().isNull());
    EXPECT_EQ(m_server.addresses().size(), 4);
}

TEST_F(GenreCollageTest, CoversThatCannotBeHadAreLeftOut)
{
    m_posters << QStringLiteral("missing") << cover(QStringLiteral("b"), Qt::blue);
    EXPECT_TRUE(isColor(load().pixelColor(10, 10), Qt::blue));
}

TEST_F(GenreCollageTest, AGenreWithoutACoverHasNoPicture)
{
    EXPECT_TRUE(load().isNull());
    m_posters << QString() << QStringLiteral("missing");
    EXPECT_TRUE(load().isNull());
    m_sources.genrePosters = {};
    EXPECT_TRUE(load().isNull());
}

TEST_F(GenreCollageTest, AGenreThatNobodyWaitsForIsGivenUp)
{
    for (const QColor &color : kColors)
        m_posters << cover(color.name(), color);
    int asked = 0;
    const QImage picture =
        GenreCollage::load(QStringLiteral("Jazz"), m_sources, [&asked] { return ++asked < 3; });
    EXPECT_TRUE(picture.isNull());
    EXPECT_EQ(m_server.addresses().size(), 2);
}

TEST_F(GenreCollageTest, HalvesShowTheMiddleOfACover)
{
    QImage striped = image(Qt::red, {800, 400});
    for (int y = 0; y < 400; ++y) {
        for (int x = 300; x < 500; ++x)
            striped.setPixelColor(x, y, Qt::blue);
    }
    const QImage picture = GenreCollage::compose({striped, image(Qt::green)});
    EXPECT_TRUE(isColor(picture.pixelColor(1, 200), Qt::blue));
    EXPECT_TRUE(isColor(picture.pixelColor(198, 200), Qt::blue));
    EXPECT_TRUE(isColor(picture.pixelColor(200, 200), Qt::green));
}
