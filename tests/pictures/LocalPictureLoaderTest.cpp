// What the engine is asked for the picture of a file, and what becomes of its answer.
#include "TestPictures.h"

#include "pictures/LocalPictureLoader.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace TestPictures;

namespace {

class LocalPictureLoaderTest : public testing::Test {
protected:
    LocalPictureLoaderTest()
    {
        m_sources.thumbnail = [this](const QByteArray &request) {
            m_requests.append(request);
            return m_answer;
        };
        m_answer.data = encoded(image(Qt::green, {320, 180}), "JPEG");
        m_answer.width = 320;
        m_answer.height = 180;
        m_answer.format = libvp::VD_Picture_Jpeg;
    }

    QString file(const QString &name)
    {
        QFile made(m_folder.filePath(name));
        EXPECT_TRUE(made.open(QIODevice::WriteOnly));
        return made.fileName();
    }

    QTemporaryDir m_folder;
    PictureSources m_sources;
    PlayerPicture m_answer;
    QList<QByteArray> m_requests;
};

} // namespace

TEST_F(LocalPictureLoaderTest, AFileIsAskedForInTheEnginesWords)
{
    const QString film = file(QStringLiteral("a film é.mkv"));
    EXPECT_EQ(LocalPictureLoader::load(film, m_sources).size(), QSize(320, 180));
    ASSERT_EQ(m_requests.size(), 1);
    EXPECT_EQ(
        m_requests.first(),
        QStringLiteral(R"({"url":"%1","width": 320,"height": 240, "sourcetype": 0})").arg(film).toUtf8());
}

TEST_F(LocalPictureLoaderTest, AFolderIsAskedForAsOne)
{
    EXPECT_FALSE(
        LocalPictureLoader::load(m_folder.path(), m_sources, LocalPictureLoader::kDiscSize).isNull());
    EXPECT_EQ(m_requests.first(),
              QStringLiteral(R"({"url":"%1","width": 640,"height": 360, "sourcetype": 1})")
                  .arg(m_folder.path())
                  .toUtf8());
}

TEST_F(LocalPictureLoaderTest, ThePathOfADiscIsThatOfItsFolder)
{
    m_sources.resolvePath = [](const QString &path) {
        return path.endsWith(QLatin1String("/folder.bdmv")) ? path.chopped(12) : path;
    };
    EXPECT_FALSE(
        LocalPictureLoader::load(m_folder.filePath(QStringLiteral("folder.bdmv")), m_sources).isNull());
    EXPECT_TRUE(m_requests.first().contains("\"sourcetype\": 1"));
}

TEST_F(LocalPictureLoaderTest, AMissingFileIsNotAskedFor)
{
    EXPECT_TRUE(LocalPictureLoader::load(m_folder.filePath(QStringLiteral("gone.mkv")), m_sources).isNull());
    EXPECT_TRUE(LocalPictureLoader::load({}, m_sources).isNull());
    EXPECT_TRUE(m_requests.isEmpty());
}

TEST_F(LocalPictureLoaderTest, WithoutAnEngineThereIsNoPicture)
{
    m_answer = {};
    EXPECT_TRUE(LocalPictureLoader::load(file(QStringLiteral("a.mkv")), m_sources).isNull());
    EXPECT_TRUE(LocalPictureLoader::load(file(QStringLiteral("a.mkv")), {}).isNull());
}

TEST_F(LocalPictureLoaderTest, EveryPathIsAWholeJsonText)
{
    for (const QString &path :
         {QStringLiteral(R"(D:\Film\a.mkv)"), QStringLiteral(R"(/films/the "one".mkv)"),
          QStringLiteral("/films/two\nlines.mkv"), QStringLiteral("/films/ünï ☂.mkv")}) {
        const QJsonObject request =
            QJsonDocument::fromJson(LocalPictureLoader::requestJson(path, false, {320, 240})).object();
        EXPECT_EQ(request.value(QStringLiteral("url")).toString(), path);
        EXPECT_EQ(request.value(QStringLiteral("width")).toInt(), 320);
        EXPECT_EQ(request.value(QStringLiteral("height")).toInt(), 240);
    }
}
