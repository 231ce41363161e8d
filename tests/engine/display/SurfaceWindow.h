// A native window that an engine draws into, and its pixels as the server has them.
#pragma once

#include <QImage>

#include <memory>

class SurfaceWindow final {
public:
    static constexpr int width = 640;
    static constexpr int height = 360;

    SurfaceWindow();
    ~SurfaceWindow();
    SurfaceWindow(const SurfaceWindow &) = delete;
    SurfaceWindow &operator=(const SurfaceWindow &) = delete;

    // False without a display.
    [[nodiscard]] bool isOpen() const;
    [[nodiscard]] void *handle() const;
    [[nodiscard]] QImage picture() const;

private:
    struct Native;
    std::unique_ptr<Native> m_native;
};
