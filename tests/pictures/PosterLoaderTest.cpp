// Where the picture of a poster key comes from, and how its bytes are read.
#include "TestPictures.h"

#include "pictures/PosterLoader.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace TestPictures;

namespace {

const QString kKey = QStringLiteral("http://pictures.test/w 500/å.jpg?size=2&kind=a");

class PosterLoaderTest : public testing::Test {
protected:
    ~PosterLoaderTest() override { qunsetenv("QUORIN_LIBRARY_PORT"); }

    Server m_server;
    PictureSources m_sources{m_server.sources()};
};

} // namespace

TEST_F(PosterLoaderTest, AKeyThatExistsAsAFileNeverGoesToTheNetwork)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("poster.jpg"));
    ASSERT_TRUE(image(Qt::red).save(file, "PNG")); // named after another format
    m_server.put(PosterLoader::address(file), encoded(Qt::blue));
    const QImage picture = PosterLoader::load(file, m_sources);
    ASSERT_FALSE(picture.isNull());
    EXPECT_TRUE(isColor(picture.pixelColor(5, 5), Qt::red));
    EXPECT_TRUE(m_server.addresses().isEmpty());
}

TEST_F(PosterLoaderTest, AFileThatIsNoPictureNeverGoesToTheNetworkEither)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("poster.jpg"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no picture");
    file.close();
    EXPECT_TRUE(PosterLoader::load(path, m_sources).isNull());
    EXPECT_TRUE(m_server.addresses().isEmpty());
}

TEST_F(PosterLoaderTest, AnyOtherKeyIsAskedOfTheServerOnLoopbackWithTwoSeconds)
{
    m_server.put(PosterLoader::address(kKey), encoded(Qt::green));
    EXPECT_FALSE(PosterLoader::load(kKey, m_sources).isNull());
    EXPECT_EQ(m_server.addresses(),
              QStringList("http://127.0.0.1:32080/image/"
                          "http%3A%2F%2Fpictures.test%2Fw%20500%2F%C3%A5.jpg%3Fsize%3D2%26kind%3Da"));
    EXPECT_EQ(m_server.timeoutMs(), 2000);
}

TEST_F(PosterLoaderTest, ThePortOfTheEnvironmentIsTakenWhereItIsOne)
{
    const struct {
        const char *value;
        const char *start;
    } rows[] = {{"41234", "http://127.0.0.1:41234/image/"},
                {"0", "http://127.0.0.1:32080/image/"},
                {"70000", "http://127.0.0.1:32080/image/"},
                {"port", "http://127.0.0.1:32080/image/"}};
    for (const auto &row : rows) {
        qputenv("QUORIN_LIBRARY_PORT", row.value);
        EXPECT_EQ(PosterLoader::address(QStringLiteral("a")), QLatin1String(row.start) + "a") << row.value;
    }
}

TEST_F(PosterLoaderTest, AReplyWithATrailingZeroByteLoadsAsAnImage)
{
    m_server.put(PosterLoader::address(kKey), encoded(Qt::green) + '\0');
    EXPECT_FALSE(PosterLoader::load(kKey, m_sources).isNull());
    const struct {
        QByteArray reply;
        QByteArray left;
    } rows[] = {{QByteArray("ab\0", 3), "ab"},
                {QByteArray("ab\0\0", 4), QByteArray("ab\0", 3)},
                {QByteArray("a\0b", 3), QByteArray("a\0b", 3)},
                {QByteArray("\0", 1), ""},
                {"", ""}};
    for (const auto &row : rows)
        EXPECT_EQ(PosterLoader::withoutFinalZero(row.reply), row.left) << row.reply.toHex().toStdString();
}

TEST_F(PosterLoaderTest, WhatIsNoPictureIsAFailure)
{
    for (const QByteArray &body : {QByteArray(), QByteArray(1, '\0'), QByteArray("<html>not found</html>"),
                                   encoded(Qt::red).left(20)}) {
        m_server.put(PosterLoader::address(kKey), body);
        EXPECT_TRUE(PosterLoader::load(kKey, m_sources).isNull()) << body.toStdString();
    }
    EXPECT_TRUE(PosterLoader::load(kKey, {}).isNull());
    EXPECT_TRUE(PosterLoader::load({}, m_sources).isNull());
}

TEST_F(PosterLoaderTest, OfASleeveTheFrontIsShown)
{
    QImage sleeve = image(Qt::red, {1000, 300});
    for (int y = 0; y < sleeve.height(); ++y) {
        for (int x = 472; x < sleeve.width(); ++x)
            sleeve.setPixelColor(x, y, Qt::blue);
    }
    const QString key = QStringLiteral("https://%1/a/b.png").arg(QLatin1String(PosterLoader::kSleeveHost));
    m_server.put(PosterLoader::address(key), encoded(sleeve));
    const QImage front = PosterLoader::load(key, m_sources);
    EXPECT_EQ(front.size(), QSize(528, 300));
    EXPECT_TRUE(isColor(front.pixelColor(0, 0), Qt::blue));
    EXPECT_TRUE(isColor(front.pixelColor(527, 299), Qt::blue));

    m_server.put(PosterLoader::address(kKey), encoded(sleeve));
    EXPECT_EQ(PosterLoader::load(kKey, m_sources).size(), sleeve.size());
}
