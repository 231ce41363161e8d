// Watches from outside how the windows of a process fade: each step of their opacity, with the X server's own
// time.
//
// Owns a connection of its own to the X server. One thread.
#pragma once

#include <cstdint>
#include <map>
#include <sys/types.h>
#include <vector>

struct xcb_connection_t;

class FadeWatch final {
public:
    explicit FadeWatch(pid_t process);
    ~FadeWatch();
    FadeWatch(const FadeWatch &) = delete;
    FadeWatch &operator=(const FadeWatch &) = delete;

    // Readable when there is something to take in.
    [[nodiscard]] int descriptor() const;
    // Takes in what has happened since the last call.
    void read();

    // Milliseconds between two steps of one fade, of all fades so far.
    [[nodiscard]] const std::vector<double> &intervals() const { return m_intervals; }
    [[nodiscard]] int fades() const { return m_fades; }

private:
    void watchWindows();
    [[nodiscard]] std::vector<std::uint32_t> childrenOf(std::uint32_t window) const;
    [[nodiscard]] std::uint32_t programOf(std::uint32_t window) const;
    [[nodiscard]] std::vector<std::uint32_t> valuesOf(std::uint32_t window, std::uint32_t property) const;
    [[nodiscard]] std::uint32_t atom(const char *name) const;

    xcb_connection_t *m_connection{nullptr};
    std::uint32_t m_root{0};
    std::uint32_t m_owner{0};
    std::uint32_t m_program{0}; // what the numbers of all its windows have in common
    std::uint32_t m_opacity{0};
    std::map<std::uint32_t, std::uint32_t> m_lastStep; // of a window, in the server's milliseconds
    std::vector<double> m_intervals;
    int m_fades{0};
};
