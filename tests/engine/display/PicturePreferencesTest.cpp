// Preferences of the picture as they are seen: measured in the pixels that the server shows.
#include "PictureMeasure.h"
#include "SurfaceWindow.h"
#include "play/PlayRig.h"
#include "play/TestClips.h"

#include <gtest/gtest.h>

using namespace libvp;
using PictureMeasure::combs;
using PictureMeasure::mean;

namespace {

class PicturePreferences : public testing::Test {
protected:
    void make(int width = 640, int height = 360)
    {
        m_rig.reset();
        m_window = std::make_unique<SurfaceWindow>(width, height);
        ASSERT_TRUE(m_window->isOpen()) << "this test draws: run it on a display";
        m_rig = std::make_unique<PlayRig>("gpu", m_window->handle());
        ASSERT_TRUE(m_rig->tool->isValid());
    }
    void TearDown() override { m_rig.reset(); }

    QImage shown(const char *clip, double second = 0)
    {
        PlayOptions options;
        options.plays = false;
        options.start = second;
        EXPECT_TRUE(m_rig->open(TestClips::path(clip), options));
        return m_window->settled();
    }

    static double brightness(const QImage &picture)
    {
        const auto channels = mean(picture);
        return (channels[0] + channels[1] + channels[2]) / 3;
    }

    std::unique_ptr<SurfaceWindow> m_window;
    std::unique_ptr<PlayRig> m_rig;
};

TEST_F(PicturePreferences, LimitedRangeLiftsBlackAndLowersWhite)
{
    make();
    // Green of the red half and of the cyan half: black and white of one channel.
    const auto levels = [this] {
        const QImage picture = shown("sbs.mkv");
        return std::make_pair(qGreen(picture.pixel(100, 180)), qGreen(picture.pixel(540, 180)));
    };
    const auto full = levels();
    EXPECT_LT(full.first, 6);
    EXPECT_GT(full.second, 249);
    ASSERT_TRUE(m_rig->tool->setBoolProperty("videoscreen.limitedrange", true));
    const auto limited = levels();
    EXPECT_NEAR(limited.first, 16, 4);
    EXPECT_NEAR(limited.second, 235, 4);
}

TEST_F(PicturePreferences, ToneMappingAndLuminanceChangeAnHdrPicture)
{
    make();
    const double mapped = brightness(shown("hdr.mkv", 0.5));
    m_rig->tool->enableToneMap(false);
    const double passed = brightness(shown("hdr.mkv", 0.5));
    EXPECT_GT(std::abs(mapped - passed), 5);
    m_rig->tool->setHDRMode(1);
    EXPECT_NEAR(brightness(shown("hdr.mkv", 0.5)), mapped, 1) << "brought down all the same";
    m_rig->tool->enableToneMap(true);
    ASSERT_TRUE(m_rig->tool->setIntProperty("videoscreen.sdrvalue", 90));
    const double bright = brightness(shown("hdr.mkv", 0.5));
    ASSERT_TRUE(m_rig->tool->setIntProperty("videoscreen.sdrvalue", 10));
    const double dark = brightness(shown("hdr.mkv", 0.5));
    EXPECT_GT(bright, mapped + 2);
    EXPECT_LT(dark, mapped - 2);
}

TEST_F(PicturePreferences, EachToneCurveDrawsItsOwnPicture)
{
    make();
    std::vector<QImage> pictures;
    for (int curve = 0; curve < 4; ++curve) {
        m_rig->tool->setSDRMode(curve);
        pictures.push_back(shown("hdr.mkv", 0.5));
        for (int other = 0; other < curve; ++other)
            EXPECT_NE(pictures[static_cast<std::size_t>(curve)], pictures[static_cast<std::size_t>(other)])
                << curve << " and " << other;
    }
}

TEST_F(PicturePreferences, DeinterlacingTakesTheCombsAway)
{
    make(720, 576);
    m_rig->tool->setViewMode(VD_View_FitWindow); // one line of the source on one of the surface
    m_rig->tool->setDeinterlaceMode(0);
    const double combed = combs(shown("interlaced.mpg", 1));
    m_rig->tool->setDeinterlaceMode(2);
    const double clean = combs(shown("interlaced.mpg", 1));
    EXPECT_LT(clean, combed * 0.7) << combed;
}

TEST_F(PicturePreferences, BrightnessContrastAndSaturationAreSeen)
{
    make();
    const double plain = brightness(shown("plain.mp4", 1));
    m_rig->tool->setBrightness(70);
    EXPECT_GT(brightness(m_window->settled()), plain + 10);
    m_rig->tool->setBrightness(50);
    m_rig->tool->setContrast(25);
    EXPECT_LT(brightness(m_window->settled()), plain - 10);
    m_rig->tool->setContrast(50);
    m_rig->tool->setSaturation(0);
    const QImage gray = m_window->settled();
    int colored = 0;
    for (int y = 0; y < gray.height(); y += 4) {
        for (int x = 0; x < gray.width(); x += 4) {
            const QColor color = gray.pixelColor(x, y);
            colored += std::abs(color.red() - color.blue()) > 12 ? 1 : 0;
        }
    }
    EXPECT_LT(colored, 50);
}

} // namespace
