// The window of PC mode with the real engine and a clip that plays in it, within the benchmark's own process.
// GUI thread, below the application object.
#pragma once

#include <memory>
#include <string>

class NormalMainWindow;

class PlayingWindow final {
public:
    struct Files {
        std::string engine;
        std::string resources;
        std::string clip;
        std::string home; // an empty folder that is nobody's home
    };

    // What must stand before the application object is made.
    static void prepare(const Files &files);

    explicit PlayingWindow(const Files &files);
    ~PlayingWindow();
    PlayingWindow(const PlayingWindow &) = delete;
    PlayingWindow &operator=(const PlayingWindow &) = delete;

    // The picture is there and its set-up has come to rest. False when it does not come.
    [[nodiscard]] bool waitForPicture();
    [[nodiscard]] NormalMainWindow &window() { return *m_window; }

    // Turns the event loop for a while.
    static void settle(int milliseconds);

private:
    std::string m_clip;
    std::unique_ptr<NormalMainWindow> m_window;
};
