// A native window that an engine draws into, and its pixels as the server has them.
#pragma once

#include <QImage>

#include <memory>

class SurfaceWindow final {
public:
    explicit SurfaceWindow(int width = 640, int height = 360);
    ~SurfaceWindow();
    SurfaceWindow(const SurfaceWindow &) = delete;
    SurfaceWindow &operator=(const SurfaceWindow &) = delete;

    // False without a display.
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] void *handle() const;
    [[nodiscard]] QImage picture() const;
    // The picture once it is drawn to its end: not black, and unchanged for a while.
    [[nodiscard]] QImage settled() const;

private:
    struct Native;
    int m_width;
    int m_height;
    std::unique_ptr<Native> m_native;
};
