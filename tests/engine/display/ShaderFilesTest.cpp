// The picture effects that come with the program: each compiles, does to the picture what its name says, and
// leaves nothing behind.
#include "PictureMeasure.h"
#include "SurfaceWindow.h"
#include "play/PlayRig.h"
#include "play/TestClips.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <gtest/gtest.h>

#include <cmath>

using namespace libvp;
using PictureMeasure::contrast;
using PictureMeasure::mean;

namespace {

const QString effects = QStringLiteral(QUORIN_SYSTEM_DIR "/shaders/fx");

class ShaderFiles : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_window.isOpen()) << "this test draws: run it on a display";
        m_rig = std::make_unique<PlayRig>("gpu", m_window.handle());
        ASSERT_TRUE(m_rig->tool->isValid());
    }
    void TearDown() override { m_rig.reset(); }

    void openPaused(const char *clip)
    {
        PlayOptions options;
        options.plays = false;
        ASSERT_TRUE(m_rig->open(TestClips::path(clip), options));
    }

    [[nodiscard]] static std::string effect(const char *name) { return (effects + "/" + name).toStdString(); }

    // The picture once it has come to rest as it is wanted.
    bool waitForPicture(const std::function<bool(const QImage &)> &wanted)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 8000) {
            if (wanted(m_window.picture()))
                return true;
        }
        const auto last = mean(m_window.picture());
        ADD_FAILURE() << "red " << last[0] << " green " << last[1] << " blue " << last[2];
        return false;
    }

    SurfaceWindow m_window;
    std::unique_ptr<PlayRig> m_rig;
};

TEST_F(ShaderFiles, ThereAreSome)
{
    EXPECT_GE(QDir(effects).entryList({"*.fx"}).size(), 3);
}

TEST_F(ShaderFiles, EachChangesThePictureAndGoesWithoutATrace)
{
    openPaused("plain.mp4");
    const QImage plain = m_window.settled();
    for (const QString &name : QDir(effects).entryList({"*.fx"})) {
        ASSERT_TRUE(m_rig->tool->setCustomShader((effects + "/" + name).toStdString().c_str()));
        EXPECT_TRUE(waitForPicture([&](const QImage &picture) { return picture != plain; }))
            << name.toStdString();
        ASSERT_TRUE(m_rig->tool->setCustomShader(""));
        EXPECT_TRUE(waitForPicture([&](const QImage &picture) { return picture == plain; }))
            << name.toStdString();
    }
    EXPECT_EQ(m_rig->notes.count(VD_Error_ShaderInvalid), 0);
}

TEST_F(ShaderFiles, SharpenLiftsTheDetail)
{
    openPaused("plain.mp4");
    const double plain = contrast(m_window.settled());
    ASSERT_TRUE(m_rig->tool->setCustomShader(effect("Sharpen.fx").c_str()));
    EXPECT_TRUE(waitForPicture([plain](const QImage &picture) { return contrast(picture) > plain * 1.05; }));
}

TEST_F(ShaderFiles, WarmNightTakesBlueOutAndLeavesRed)
{
    openPaused("plain.mp4");
    const auto plain = mean(m_window.settled());
    SCOPED_TRACE(testing::Message() << "plain " << plain[0] << " " << plain[1] << " " << plain[2]);
    ASSERT_TRUE(m_rig->tool->setCustomShader(effect("Warm Night.fx").c_str()));
    EXPECT_TRUE(waitForPicture([&plain](const QImage &picture) {
        const auto now = mean(picture);
        return now[2] < plain[2] * 0.72 && now[2] > plain[2] * 0.5 && now[1] < plain[1]
               && std::abs(now[0] - plain[0]) < 2;
    }));
}

TEST_F(ShaderFiles, GrainLiesOnAFlatPictureAndMoves)
{
    openPaused("red.mp4");
    const QImage flat = m_window.settled();
    EXPECT_LT(contrast(flat), 0.5);
    const auto plain = mean(flat);
    ASSERT_TRUE(m_rig->tool->setCustomShader(effect("Film Grain.fx").c_str()));
    ASSERT_TRUE(waitForPicture([](const QImage &picture) { return contrast(picture) > 1; }));
    const QImage first = m_window.picture();
    EXPECT_LT(std::abs(mean(first)[0] - plain[0]), 8) << "as bright as before";
    m_rig->play->togglePause();
    EXPECT_TRUE(waitForPicture([&first](const QImage &picture) { return picture != first; }));
}

TEST_F(ShaderFiles, OneThatVanishedLeavesThePicture)
{
    const std::string shader = TestClips::scratchFolder() + "/Gone.fx";
    TestClips::write(shader,
                     "//!HOOK OUTPUT\n//!BIND HOOKED\nvec4 hook() { return vec4(0.0, 0.0, 1.0, 1.0); }\n");
    ASSERT_TRUE(m_rig->tool->setCustomShader(shader.c_str()));
    ASSERT_TRUE(QFile::remove(QString::fromStdString(shader)));
    openPaused("red.mp4");
    EXPECT_TRUE(waitForPicture([](const QImage &picture) {
        const auto now = mean(picture);
        return now[0] > 180 && now[2] < 60;
    }));
}

TEST_F(ShaderFiles, ABrokenOneIsNotedAndThePictureStays)
{
    openPaused("red.mp4");
    ASSERT_TRUE(waitForPicture([](const QImage &picture) { return mean(picture)[0] > 180; }));
    const std::string broken = TestClips::scratchFolder() + "/Broken.fx";
    TestClips::write(broken, "//!HOOK OUTPUT\n//!BIND HOOKED\nvec4 hook() { return nonsense(1.0); }\n");
    ASSERT_TRUE(m_rig->tool->setCustomShader(broken.c_str()));
    EXPECT_TRUE(m_rig->notes.waitFor(VD_Error_ShaderInvalid));
    EXPECT_TRUE(m_rig->waitForProperty("glsl-shaders", MpvList{}));
    EXPECT_TRUE(waitForPicture([](const QImage &picture) { return mean(picture)[0] > 180; }));
    EXPECT_TRUE(m_rig->play->isPlaying());
}

} // namespace
