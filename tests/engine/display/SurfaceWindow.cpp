#include "SurfaceWindow.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

struct SurfaceWindow::Native {
    Display *display = nullptr;
    Window window = 0;
};

SurfaceWindow::SurfaceWindow()
    : m_native(std::make_unique<Native>())
{
    m_native->display = XOpenDisplay(nullptr);
    if (!m_native->display)
        return;
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True; // nobody moves or covers it
    m_native->window =
        XCreateWindow(m_native->display, DefaultRootWindow(m_native->display), 0, 0, width, height, 0,
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
    XImage *image = XGetImage(m_native->display, m_native->window, 0, 0, width, height, AllPlanes, ZPixmap);
    if (!image)
        return {};
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < width; ++x)
            line[x] = static_cast<QRgb>(XGetPixel(image, x, y)) | 0xFF000000U;
    }
    XDestroyImage(image);
    return picture;
}
