#include "MediaClips.h"

#include "contract/Orbix.h"

#include <QDir>
#include <QImage>
#include <QLibrary>

#include <gtest/gtest.h>

#include <array>
#include <condition_variable>
#include <cstring>
#include <mutex>
#include <thread>

namespace {

using namespace libvp;

class Config final : public IVDPlayerConfig {
public:
    explicit Config(const QString &logFolder)
        : m_logFolder(logFolder.toStdString())
    {
    }
    const char *applicationTag() override { return "qtplayer"; }
    const char *productName() override { return "Quorin Media Player"; }
    const char *furtherName() override { return ""; }
    const char *productVersion() override { return "3.2.0.0"; }
    int productLine() override { return 1; }
    const char *furtherText6() override { return ""; }
    const char *furtherText7() override { return ""; }
    const char *furtherText8() override { return ""; }
    const char *path(int index) override { return index == 2 || index == 3 ? m_logFolder.c_str() : ""; }
    const char *fontFile(int) override { return ""; }
    int reserved11() override { return 0; }
    int reserved12() override { return 0; }
    int featureLevel() override { return 15; }
    int reserved14() override { return 0; }
    int reserved15() override { return 0; }
    void *sharedBlock(std::size_t) override { return nullptr; }
    const VDRegionRecord *regionRecord() override { return &m_regions; }

private:
    std::string m_logFolder;
    VDRegionRecord m_regions;
};

class Notes final : public IVDOrbixCallback {
public:
    void OnError(VD_ErrorCallbackType) override {}
    void reserved2(int, int) override {}
    void OnDiscEvent(char drive, VD_OPTRA_DISC_NOTIFY_TYPE type) override
    {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_discEvents += drive + std::to_string(int(type)) + ' ';
        }
        m_changed.notify_all();
    }
    void OnDiscError(char, VD_OPTRA_DISC_ERROR_TYPE) override {}

    // Waits until these and no others have come: "K1 K3 " is a disc that has arrived in K and is ready.
    [[nodiscard]] bool waitForDiscEvents(const std::string &events)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(20), [&] { return m_discEvents == events; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_discEvents;
};

// The engine as the player has it: by the two exported functions alone.
class EngineCoreTest : public testing::Test {
protected:
    void SetUp() override
    {
        m_library.setFileName(QStringLiteral(QUORIN_ORBIX));
        ASSERT_TRUE(m_library.load()) << qPrintable(m_library.errorString());
        m_create = reinterpret_cast<CreateVDPlayerFunction>(m_library.resolve(CreateVDPlayerName));
        m_release = reinterpret_cast<ReleaseVDPlayerFunction>(m_library.resolve(ReleaseVDPlayerName));
        ASSERT_TRUE(m_create && m_release);
        m_core = m_create(&m_config, &m_notes);
        ASSERT_TRUE(m_core);
        ASSERT_TRUE(m_core->initialise());
    }
    void TearDown() override
    {
        if (m_release)
            m_release(m_core);
    }
    QByteArray log() const { return MediaClips::contentsOf(m_folder.filePath("log/Orbix.log")); }

    QTemporaryDir m_folder;
    Config m_config{m_folder.filePath("log")};
    Notes m_notes;
    QLibrary m_library;
    CreateVDPlayerFunction m_create{nullptr};
    ReleaseVDPlayerFunction m_release{nullptr};
    IVDEngineCore *m_core{nullptr};
};

TEST_F(EngineCoreTest, ThereIsOneEngineAProcess)
{
    EXPECT_EQ(m_create(&m_config, &m_notes), nullptr);
    m_release(m_core);
    m_core = m_create(&m_config, &m_notes);
    EXPECT_NE(m_core, nullptr);
}

TEST_F(EngineCoreTest, MissingArgumentsAreRefused)
{
    m_release(m_core);
    m_core = nullptr;
    EXPECT_EQ(m_create(nullptr, &m_notes), nullptr);
    EXPECT_EQ(m_create(&m_config, nullptr), nullptr);
    m_release(nullptr);
    m_core = m_create(&m_config, &m_notes);
    ASSERT_NE(m_core, nullptr);
    m_release(nullptr);
    EXPECT_EQ(m_create(&m_config, &m_notes), nullptr) << "null released nothing";
}

TEST_F(EngineCoreTest, WritesItsLogIntoTheFolderThatThePlayerNames)
{
    EXPECT_TRUE(log().contains("[Engine] Quorin Media Player 3.2.0.0"));
}

TEST_F(EngineCoreTest, TellsTheFormOfASource)
{
    EXPECT_EQ(m_core->sourceForm(TestDiscs::dvdImage().toUtf8().constData()), VD_Source_ImageDvd);
    EXPECT_EQ(m_core->sourceForm(TestDiscs::bluRayFolder().toUtf8().constData()), VD_Source_FolderBluRay);
    EXPECT_EQ(m_core->sourceForm(MediaClips::pattern().c_str()), VD_Source_File);
    EXPECT_EQ(m_core->sourceForm(nullptr), VD_Source_File);
    EXPECT_EQ(m_core->sourceForm(""), VD_Source_File);
}

TEST_F(EngineCoreTest, PreparesADisc)
{
    const QByteArray disc = TestDiscs::bluRayImage().toUtf8();
    std::array<VDDiscTitle, 8> titles;
    int count = -1;
    int mainTitle = -1;
    ASSERT_TRUE(m_core->prepareDisc(disc.constData(), VD_Item_Disc, titles.data(), int(titles.size()), &count,
                                    &mainTitle));
    EXPECT_EQ(count, TestDiscs::TitleCount);
    EXPECT_EQ(mainTitle, TestDiscs::MainTitle);
    EXPECT_NEAR(titles[0].durationMs, TestDiscs::MainTitleMs, TestDiscs::ToleranceMs);
}

TEST_F(EngineCoreTest, ADiscWithMoreTitlesThanThereIsRoomForTellsTheirNumber)
{
    const QByteArray disc = TestDiscs::dvdImage().toUtf8();
    std::array<VDDiscTitle, 2> titles;
    titles[1].number = 4711;
    int count = 0;
    EXPECT_TRUE(m_core->prepareDisc(disc.constData(), VD_Item_Disc, titles.data(), 1, &count, nullptr));
    EXPECT_EQ(count, TestDiscs::TitleCount);
    EXPECT_EQ(titles[0].number, 1);
    EXPECT_EQ(titles[1].number, 4711);
    EXPECT_TRUE(m_core->prepareDisc(disc.constData(), VD_Item_Disc, nullptr, 8, &count, nullptr));
    EXPECT_TRUE(m_core->prepareDisc(disc.constData(), VD_Item_Disc, titles.data(), -3, nullptr, nullptr));
    EXPECT_EQ(titles[1].number, 4711);
}

TEST_F(EngineCoreTest, NoDiscToPrepareIsLogged)
{
    int count = 7;
    int mainTitle = 7;
    EXPECT_FALSE(m_core->prepareDisc("/nowhere", VD_Item_Disc, nullptr, 0, &count, &mainTitle));
    EXPECT_EQ(count, 0);
    EXPECT_EQ(mainTitle, 0);
    EXPECT_FALSE(m_core->prepareDisc(nullptr, VD_Item_Disc, nullptr, 0, nullptr, nullptr));
    EXPECT_FALSE(m_core->prepareDisc("Q", VD_Item_Disc, nullptr, 0, nullptr, nullptr));
    EXPECT_TRUE(log().contains("[Disc] no disc: /nowhere"));
}

TEST_F(EngineCoreTest, GivesAndTakesBackThumbnails)
{
    const int handle =
        m_core->openThumbnailSession(MediaClips::ladder().c_str(), VD_Item_File, 0, 324, 188, 0, 0, 0);
    ASSERT_GT(handle, 0);
    const VDPicture *key = nullptr;
    const VDPicture *exact = nullptr;
    ASSERT_TRUE(m_core->grabThumbnail(handle, 3450, 0, &key));
    ASSERT_TRUE(m_core->grabThumbnail(handle, 3450, 1, &exact));
    EXPECT_EQ(key->format, VD_Picture_Rgba);
    EXPECT_EQ(key->size, key->width * key->height * 4);
    EXPECT_NEAR(key->positionMs, 3000, 2);
    EXPECT_NEAR(exact->positionMs, 3400, 2);
    // The pictures outlive their session.
    m_core->closeThumbnailSession(handle);
    EXPECT_NE(std::memcmp(key->data, exact->data, std::size_t(key->size)), 0);
    m_core->releasePicture(key);
    m_core->releasePicture(exact);
    m_core->releasePicture(exact);
    m_core->releasePicture(nullptr);
    EXPECT_FALSE(m_core->grabThumbnail(handle, 0, 0, &key));
    EXPECT_EQ(key, nullptr);
    EXPECT_FALSE(m_core->grabThumbnail(handle, 0, 0, nullptr));
}

TEST_F(EngineCoreTest, ThumbnailsOfNothingAreRefused)
{
    EXPECT_EQ(m_core->openThumbnailSession(nullptr, 0, 0, 100, 100, 0, 0, 0), 0);
    EXPECT_EQ(m_core->openThumbnailSession("Q", 0, 0, 100, 100, 0, 0, 0), 0);
    m_core->closeThumbnailSession(12345);
}

TEST_F(EngineCoreTest, GivesAPictureOfASource)
{
    const std::string request =
        R"({"url":")" + MediaClips::pattern() + R"(","width": 320,"height": 240, "sourcetype": 0})";
    const VDPicture *picture = m_core->grabPicture(request.c_str());
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->format, VD_Picture_Jpeg);
    EXPECT_FALSE(QImage::fromData(picture->data, picture->size, "JPEG").isNull());
    m_core->releasePicture(picture);
    EXPECT_EQ(m_core->grabPicture("{"), nullptr);
    EXPECT_EQ(m_core->grabPicture(nullptr), nullptr);
}

TEST_F(EngineCoreTest, BacksUpADisc)
{
    const QByteArray disc = TestDiscs::bluRayImage().toUtf8();
    const QByteArray target = m_folder.filePath("copy.iso").toUtf8();
    EXPECT_EQ(m_core->backupProgress("V"), -1.0);
    ASSERT_TRUE(m_core->startBackup(disc.constData(), target.constData(), 0));
    QElapsedTimer timer;
    timer.start();
    while (!m_core->isBackupFinished(disc.constData()) && timer.elapsed() < 20000)
        std::this_thread::yield();
    EXPECT_TRUE(m_core->isBackupFinished(disc.constData()));
    EXPECT_FALSE(m_core->isBackupFailed(disc.constData()));
    EXPECT_EQ(m_core->backupProgress(disc.constData()), 1.0);
    m_core->stopBackup(disc.constData());
    EXPECT_FALSE(m_core->startBackup(disc.constData(), target.constData(), 0)) << "the target exists";
    EXPECT_FALSE(m_core->startBackup(nullptr, nullptr, 0));
    m_core->stopBackup(nullptr);
}

TEST_F(EngineCoreTest, ADiscThatComesAndGoesIsTold)
{
    qputenv("ORBIX_VO", "null");
    IVDPlayTool *tool = m_core->createPlayTool(0, nullptr, nullptr);
    qunsetenv("ORBIX_VO");
    ASSERT_TRUE(tool);
    const QString disc = m_folder.filePath("disc.iso");
    ASSERT_TRUE(tool->setStringProperty("disc.drive.K", disc.toUtf8().constData()));
    QElapsedTimer timer;
    timer.start();
    while (!log().contains("[Drive] K: is empty") && timer.elapsed() < 20000)
        std::this_thread::yield();
    ASSERT_TRUE(log().contains("[Drive] K: is empty"));
    ASSERT_TRUE(QFile::copy(TestDiscs::dvdImage(), m_folder.filePath("copy")));
    ASSERT_TRUE(QFile::rename(m_folder.filePath("copy"), disc));
    EXPECT_FALSE(tool->eject('K')) << "an image has no tray";
    EXPECT_TRUE(m_notes.waitForDiscEvents("K1 K3 "));
    ASSERT_TRUE(QFile::remove(disc));
    EXPECT_TRUE(m_notes.waitForDiscEvents("K1 K3 K2 "));
}

TEST_F(EngineCoreTest, AReleaseStopsABackup)
{
    const QString disc = m_folder.filePath("large.iso");
    ASSERT_TRUE(QFile::copy(TestDiscs::dvdImage(), disc));
    ASSERT_TRUE(QFile(disc).resize(4LL << 30));
    ASSERT_TRUE(m_core->startBackup(disc.toUtf8().constData(),
                                    m_folder.filePath("copy.iso").toUtf8().constData(), 0));
    m_release(m_core);
    m_core = nullptr;
    EXPECT_EQ(QDir(m_folder.path()).entryList({"copy.iso*"}, QDir::AllEntries | QDir::Hidden), QStringList());
}

TEST_F(EngineCoreTest, ManyThreadsUseItAtOnce)
{
    const std::string clip = MediaClips::ladder();
    std::vector<std::thread> threads;
    std::atomic<int> pictures{0};
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            const int handle = m_core->openThumbnailSession(clip.c_str(), 0, 0, 64, 64, 0, 0, 0);
            for (int second = 0; second < 10; ++second) {
                const VDPicture *picture = nullptr;
                if (m_core->grabThumbnail(handle, (second * (i + 3)) % 10 * 1000, 0, &picture))
                    ++pictures;
                m_core->releasePicture(picture);
                m_core->sourceForm(clip.c_str());
            }
            m_core->closeThumbnailSession(handle);
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    EXPECT_EQ(pictures, 40);
}

} // namespace
