// The screen as a spectator sees it: waits until a colour or a painted window appears on it, measures how
// wide it shows, moves the pointer, and asks windows to close. Knows nothing of the programs that draw, so
// that it treats all of them alike.
//
// Owns its connection to the X server. One thread.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <sys/types.h>
#include <vector>

struct xcb_connection_t;

class Screen final {
public:
    struct Colour {
        int red{0};
        int green{0};
        int blue{0};
    };

    Screen();
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    // False when there is no display or it does not tell what changes on it.
    [[nodiscard]] bool isValid() const { return m_valid; }

    // Waits until the colour shows at some point of a grid over the screen, looking each time that something
    // was drawn. False after the given time.
    [[nodiscard]] bool waitForColour(const Colour &colour, double seconds);
    // The same for its disappearance.
    [[nodiscard]] bool waitForNoColour(const Colour &colour, double seconds);

    // Width in pixels of the longest run of the colour in any row of the grid; nothing when it does not show.
    [[nodiscard]] std::optional<int> widthOfColour(const Colour &colour) const;

    // Waits until the screen shows something of a window of the process: more than one colour within the
    // window's own area, looking each time that something was drawn. False after the given time.
    [[nodiscard]] bool waitForPaintedWindow(pid_t process, double seconds);
    // True when the process has a window that the window manager knows.
    [[nodiscard]] bool hasWindow(pid_t process) const;

    // Brightness, 0 to 255, of each pixel of a row; empty when the screen has no such row.
    [[nodiscard]] std::vector<std::uint8_t> brightnessOfRow(int x, int y, int width) const;
    // Waits until something was drawn since the last wait, or another descriptor is readable; false when
    // neither came in time.
    bool waitForDrawing(double seconds, int otherDescriptor = -1);
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] int height() const { return m_height; }
    void movePointer(int x, int y);

    // Asks the windows of a process that the window manager knows to close, as a click on their button does.
    void closeWindowsOf(pid_t process);

    // A plain window of the given size, mapped; the connection's.
    [[nodiscard]] std::uint32_t openWindow(int width, int height);
    void destroyWindow(std::uint32_t window);

private:
    [[nodiscard]] bool waitUntil(const std::function<bool()> &isTrue, double seconds);
    [[nodiscard]] bool showsColour(const Colour &colour) const;
    [[nodiscard]] bool showsPainted(std::uint32_t window) const;
    // The windows that belong to no other one.
    [[nodiscard]] std::vector<std::uint32_t> mainWindowsOf(pid_t process) const;
    [[nodiscard]] std::vector<std::uint32_t> valuesOf(std::uint32_t window, std::uint32_t property) const;
    [[nodiscard]] std::uint32_t atom(const char *name) const;

    xcb_connection_t *m_connection{nullptr};
    std::uint32_t m_root{0};
    std::uint32_t m_damage{0};
    int m_width{0};
    int m_height{0};
    bool m_valid{false};
};
