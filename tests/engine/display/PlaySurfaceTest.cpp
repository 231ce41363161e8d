// What the user sees: the engine draws into a native window, and its pixels are read back from the server.
#include "play/PlayRig.h"
#include "play/TestClips.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <functional>

using namespace libvp;

namespace {

struct Color {
    int red = -1;
    int green = -1;
    int blue = -1;

    [[nodiscard]] bool isRed() const { return red > 180 && green < 80 && blue < 80; }
    [[nodiscard]] bool isCyan() const { return red < 80 && green > 180 && blue > 180; }
    [[nodiscard]] bool isBlack() const { return red >= 0 && red < 30 && green < 30 && blue < 30; }
};

constexpr int width = 640;
constexpr int height = 360;

class PlaySurface : public testing::Test {
protected:
    void SetUp() override
    {
        m_display = XOpenDisplay(nullptr);
        ASSERT_NE(m_display, nullptr) << "this test draws: run it on a display";
        m_window = XCreateSimpleWindow(m_display, DefaultRootWindow(m_display), 0, 0, width, height, 0, 0, 0);
        XSetWindowAttributes attributes{};
        attributes.override_redirect = True; // nobody moves or covers it
        XChangeWindowAttributes(m_display, m_window, CWOverrideRedirect, &attributes);
        XSelectInput(m_display, m_window, PointerMotionMask | ButtonPressMask);
        XMapRaised(m_display, m_window);
        XSync(m_display, False);
    }

    void TearDown() override
    {
        m_rig.reset();
        if (m_display) {
            XDestroyWindow(m_display, m_window);
            XCloseDisplay(m_display);
        }
    }

    void make(const char *outputs)
    {
        m_rig = std::make_unique<PlayRig>(outputs, reinterpret_cast<void *>(m_window));
        ASSERT_TRUE(m_rig->tool->isValid());
    }

    Color at(int x, int y)
    {
        Color color;
        XImage *image = XGetImage(m_display, m_window, x, y, 1, 1, AllPlanes, ZPixmap);
        if (!image)
            return color;
        const unsigned long pixel = XGetPixel(image, 0, 0);
        XDestroyImage(image);
        color.red = static_cast<int>(pixel >> 16 & 0xFF);
        color.green = static_cast<int>(pixel >> 8 & 0xFF);
        color.blue = static_cast<int>(pixel & 0xFF);
        return color;
    }

    // Looks at the screen until it shows what is wanted.
    bool shows(int x, int y, bool (Color::*wanted)() const)
    {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 8000) {
            if ((at(x, y).*wanted)())
                return true;
        }
        const Color color = at(x, y);
        ADD_FAILURE() << x << "," << y << " is " << color.red << " " << color.green << " " << color.blue;
        return false;
    }

    void openPaused(const char *clip)
    {
        PlayOptions options;
        options.plays = false;
        ASSERT_TRUE(m_rig->open(TestClips::path(clip), options));
    }

    Display *m_display = nullptr;
    Window m_window = 0;
    std::unique_ptr<PlayRig> m_rig;
};

TEST_F(PlaySurface, PictureFillsTheSurfaceInEachOutput)
{
    for (const char *outputs : {"x11", "gpu", "gpu,x11"}) {
        make(outputs);
        openPaused("red.mp4");
        EXPECT_TRUE(shows(10, 10, &Color::isRed)) << outputs;
        EXPECT_TRUE(shows(width - 10, height - 10, &Color::isRed)) << outputs;
        m_rig.reset();
        XClearWindow(m_display, m_window);
    }
}

TEST_F(PlaySurface, ViewModesShapeThePicture)
{
    make("x11");
    openPaused("sbs.mkv"); // 32:9, bars above and below
    EXPECT_TRUE(shows(100, height / 2, &Color::isRed));
    EXPECT_TRUE(shows(width - 100, height / 2, &Color::isCyan));
    EXPECT_TRUE(shows(width / 2, 20, &Color::isBlack));
    m_rig->tool->setViewMode(VD_View_FitWindow);
    EXPECT_TRUE(shows(100, 20, &Color::isRed));
    m_rig->tool->setViewMode(VD_View_Default);
    EXPECT_TRUE(shows(width / 2, 20, &Color::isBlack));
    m_rig->tool->setViewMode(VD_View_FillWindow);
    EXPECT_TRUE(shows(100, 20, &Color::isRed));
    m_rig->tool->setViewMode(VD_View_4_3);
    EXPECT_TRUE(shows(20, height / 2, &Color::isBlack));
    EXPECT_TRUE(shows(120, 20, &Color::isRed));
    m_rig->tool->setViewMode(VD_View_Custom);
    m_rig->tool->setPixelRatio(0.5f); // 16:9
    EXPECT_TRUE(shows(100, 20, &Color::isRed));
}

TEST_F(PlaySurface, ShiftGoesDownAndZoomGrows)
{
    make("x11");
    openPaused("sbs.mkv"); // the picture is 180 lines high, from 90 to 270
    m_rig->tool->setViewMode(VD_View_Custom);
    EXPECT_TRUE(shows(100, 110, &Color::isRed));
    m_rig->tool->setVerticalShift(0.4f);
    EXPECT_TRUE(shows(100, 110, &Color::isBlack));
    EXPECT_TRUE(shows(100, 320, &Color::isRed));
    m_rig->tool->setVerticalShift(0);
    m_rig->tool->setZoomAmount(0.5f);
    EXPECT_TRUE(shows(100, height / 2, &Color::isBlack));
    EXPECT_TRUE(shows(200, height / 2, &Color::isRed));
    m_rig->tool->setZoomAmount(2);
    EXPECT_TRUE(shows(20, 20, &Color::isRed));
}

TEST_F(PlaySurface, RotationAndFlipsTurnThePicture)
{
    make("x11");
    openPaused("sbs.mkv");
    EXPECT_TRUE(shows(100, height / 2, &Color::isRed));
    m_rig->tool->setFlipState(1);
    EXPECT_TRUE(shows(100, height / 2, &Color::isCyan));
    m_rig->tool->setFlipState(0);
    m_rig->tool->setRotation(1); // red goes to the top
    EXPECT_TRUE(shows(width / 2, 60, &Color::isRed));
    EXPECT_TRUE(shows(width / 2, height - 60, &Color::isCyan));
    m_rig->tool->setRotation(2);
    EXPECT_TRUE(shows(100, height / 2, &Color::isCyan));
}

TEST_F(PlaySurface, PictureFollowsTheSizeOfTheSurface)
{
    make("x11");
    openPaused("red.mp4");
    EXPECT_TRUE(shows(width - 10, height - 10, &Color::isRed));
    XResizeWindow(m_display, m_window, 960, 540);
    XSync(m_display, False);
    m_rig->tool->resizeSurface(960, 540);
    EXPECT_TRUE(shows(950, 530, &Color::isRed));
}

TEST_F(PlaySurface, ShaderChangesThePicture)
{
    make("gpu");
    const std::string shader = TestClips::scratchFolder() + "/invert.glsl";
    TestClips::write(shader,
                     "//!HOOK MAIN\n//!BIND HOOKED\nvec4 hook()\n{\n    vec4 c = HOOKED_tex(HOOKED_pos);\n"
                     "    return vec4(1.0 - c.rgb, c.a);\n}\n");
    openPaused("red.mp4");
    EXPECT_TRUE(shows(100, 100, &Color::isRed));
    ASSERT_TRUE(m_rig->tool->setCustomShader(shader.c_str()));
    EXPECT_TRUE(shows(100, 100, &Color::isCyan));
    ASSERT_TRUE(m_rig->tool->setCustomShader(""));
    EXPECT_TRUE(shows(100, 100, &Color::isRed));
    EXPECT_EQ(m_rig->notes.count(VD_Error_ShaderInvalid), 0);
}

TEST_F(PlaySurface, ShaderThatDoesNotCompileIsNotedAndOff)
{
    make("gpu");
    for (const char *text :
         {"//!HOOK MAIN\n//!BIND HOOKED\nvec4 hook() { return broken(; }\n", "no shader at all"}) {
        const std::string shader = TestClips::scratchFolder() + "/bad.glsl";
        TestClips::write(shader, text);
        const int before = m_rig->notes.count(VD_Error_ShaderInvalid);
        ASSERT_TRUE(m_rig->tool->setCustomShader(shader.c_str()));
        ASSERT_TRUE(m_rig->open(TestClips::path("red.mp4")));
        EXPECT_TRUE(m_rig->notes.waitFor(VD_Error_ShaderInvalid, before + 1));
        EXPECT_TRUE(m_rig->waitForProperty("glsl-shaders", MpvList{}));
        EXPECT_STREQ(m_rig->tool->customShader(), "");
        EXPECT_TRUE(shows(100, 100, &Color::isRed)) << "the play goes on";
        EXPECT_EQ(m_rig->notes.count(VD_Error_ShaderInvalid), before + 1);
    }
}

TEST_F(PlaySurface, InformationLiesOverThePicture)
{
    make("x11");
    openPaused("red.mp4");
    EXPECT_TRUE(shows(100, 100, &Color::isRed));
    const auto textPixels = [this] {
        int count = 0;
        XImage *image = XGetImage(m_display, m_window, 0, 0, width / 2, height / 4, AllPlanes, ZPixmap);
        for (int y = 0; image && y < height / 4; ++y) {
            for (int x = 0; x < width / 2; ++x)
                count += (XGetPixel(image, x, y) & 0xFF) > 150 ? 1 : 0;
        }
        if (image)
            XDestroyImage(image);
        return count;
    };
    const auto waitForText = [&textPixels](bool wanted) {
        QElapsedTimer timer;
        timer.start();
        while (timer.elapsed() < 8000) {
            if ((textPixels() > 50) == wanted)
                return true;
        }
        return false;
    };
    m_rig->tool->showInformationOverlay(true);
    EXPECT_TRUE(waitForText(true));
    m_rig->tool->showInformationOverlay(false);
    EXPECT_TRUE(waitForText(false));
}

TEST_F(PlaySurface, MouseReachesTheSurfacesOwner)
{
    make("x11");
    openPaused("red.mp4");
    EXPECT_TRUE(shows(100, 100, &Color::isRed));
    XWarpPointer(m_display, None, m_window, 0, 0, 0, 0, 50, 50);
    XWarpPointer(m_display, None, m_window, 0, 0, 0, 0, 120, 90);
    XSync(m_display, False);
    XEvent event;
    EXPECT_TRUE(XCheckWindowEvent(m_display, m_window, PointerMotionMask, &event))
        << "the picture's own window takes no part in it";
}

TEST_F(PlaySurface, HundredPlaysOnOneSurface)
{
    make("x11");
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(m_rig->open(TestClips::path(i % 2 ? "red.mp4" : "sbs.mkv"))) << i;
        m_rig->close();
    }
    openPaused("red.mp4");
    EXPECT_TRUE(shows(100, 100, &Color::isRed));
}

} // namespace
