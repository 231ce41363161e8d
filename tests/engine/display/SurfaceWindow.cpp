#include "SurfaceWindow.h"

#include "PictureMeasure.h"

#include <QElapsedTimer>

#include <X11/Xlib.h>
#include <X11/Xutil.h>

struct SurfaceWindow::Native {
    Display *display = nullptr;
    Window window = 0;
};

SurfaceWindow::SurfaceWindow(int width, int height)
    : m_width(width)
    , m_height(height)
    , m_native(std::make_unique<Native>())
{
    m_native->display = XOpenDisplay(nullptr);
    if (!m_native->display)
        return;
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True; // nobody moves or covers it
    m_native->window =
        XCreateWindow(m_native->display, DefaultRootWindow(m_native->display), 0, 0, m_width, height, 0,
                      CopyFromParent, InputOutput, CopyFromParent, CWOverrideRedirect, &attributes);
    XMapRaised(m_native->display, m_native->window);
    XSync(m_native->display, False);
}

SurfaceWindow::~SurfaceWindow()
{
    if (!isOpen())
        return;
    XDestroyWindow(m_native->display, m_native->window);
    XCloseDisplay(m_native->display);
}

bool SurfaceWindow::isOpen() const
{
    return m_native->display != nullptr;
}

void *SurfaceWindow::handle() const
{
    return reinterpret_cast<void *>(m_native->window);
}

QImage SurfaceWindow::picture() const
{
    XImage *image =
        XGetImage(m_native->display, m_native->window, 0, 0, m_width, m_height, AllPlanes, ZPixmap);
    if (!image)
        return {};
    QImage picture(m_width, m_height, QImage::Format_RGB32);
    for (int y = 0; y < m_height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < m_width; ++x)
            line[x] = static_cast<QRgb>(XGetPixel(image, x, y)) | 0xFF000000U;
    }
    XDestroyImage(image);
    return picture;
}

QImage SurfaceWindow::settled() const
{
    constexpr int limit = 8000;
    constexpr int still = 300;
    constexpr double black = 3;
    QImage last = picture();
    QElapsedTimer whole;
    QElapsedTimer unchanged;
    whole.start();
    unchanged.start();
    while (whole.elapsed() < limit) {
        const QImage next = picture();
        const auto mean = PictureMeasure::mean(next);
        if (next != last || mean[0] + mean[1] + mean[2] < black)
            unchanged.restart();
        else if (unchanged.elapsed() >= still)
            break;
        last = next;
    }
    return last;
}
