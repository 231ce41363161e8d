// Exact seeks through the engine's contract against the same seeks given to libmpv directly: the time from
// the request to the new picture. Same clip, same positions, same video output, taken in turns.
//
//   bench_seek ENGINE CLIP FOLDER PAIRS SEEKS
#include "EngineHost.h"
#include "Report.h"
#include "Screen.h"

#include <mpv/client.h>

#include <clocale>
#include <cstdlib>
#include <random>
#include <string>

namespace {

constexpr int Width = 1280;
constexpr int Height = 720;
constexpr double SeekLimit = 1.2;
constexpr double Patience = 30;

using Clock = std::chrono::steady_clock;

// Waits for one event; false when it does not come.
bool awaitEvent(mpv_handle *mpv, mpv_event_id wanted)
{
    for (;;) {
        const mpv_event *event = mpv_wait_event(mpv, Patience);
        if (event->event_id == wanted)
            return true;
        if (event->event_id == MPV_EVENT_NONE || event->event_id == MPV_EVENT_END_FILE
            || event->event_id == MPV_EVENT_SHUTDOWN)
            return false;
    }
}

// Adds the milliseconds of each seek to times.
bool seekDirectly(const std::string &clip, std::uint32_t window, const std::vector<double> &positions,
                  std::vector<double> &times)
{
    mpv_handle *mpv = mpv_create();
    if (!mpv)
        return false;
    std::int64_t id = window;
    mpv_set_option(mpv, "wid", MPV_FORMAT_INT64, &id);
    for (const auto &[name, value] :
         {std::pair("vo", "x11"), std::pair("ao", "null"), std::pair("hwdec", "no"),
          std::pair("config", "no"), std::pair("terminal", "no")})
        mpv_set_option_string(mpv, name, value);
    const char *load[] = {"loadfile", clip.c_str(), nullptr};
    bool good = mpv_initialize(mpv) >= 0 && mpv_command(mpv, load) >= 0
                && awaitEvent(mpv, MPV_EVENT_PLAYBACK_RESTART);
    for (std::size_t i = 0; good && i < positions.size(); ++i) {
        const std::string target = std::to_string(positions[i]);
        const char *seek[] = {"seek", target.c_str(), "absolute+exact", nullptr};
        const Clock::time_point start = Clock::now();
        good = mpv_command_async(mpv, 0, seek) >= 0 && awaitEvent(mpv, MPV_EVENT_SEEK)
               && awaitEvent(mpv, MPV_EVENT_PLAYBACK_RESTART);
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    mpv_terminate_destroy(mpv);
    return good;
}

bool seekThroughEngine(const std::string &library, const std::string &folder, const std::string &clip,
                       std::uint32_t window, const std::vector<double> &positions, std::vector<double> &times)
{
    EngineHost engine(library, folder, window, Width, Height);
    if (!engine.open(clip))
        return false;
    for (const double position : positions) {
        double milliseconds = 0;
        if (!engine.seek(position, milliseconds))
            return false;
        times.push_back(milliseconds);
    }
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 6) {
        std::fprintf(stderr, "usage: bench_seek ENGINE CLIP FOLDER PAIRS SEEKS\n");
        return 2;
    }
    std::setlocale(LC_NUMERIC, "C");
    setenv("ORBIX_VO", "x11", 1);
    setenv("ORBIX_AO", "null", 1);
    const std::string clip = argv[2];
    const int pairs = std::max(1, std::atoi(argv[4]));
    const int seeks = std::max(1, std::atoi(argv[5]));
    Screen screen;
    if (!screen.isValid()) {
        std::fprintf(stderr, "bench_seek: no display\n");
        return 2;
    }

    // A fixed seed: every run goes to the same places.
    std::mt19937 random(20200715);
    std::uniform_real_distribution<double> place(1.0, 55.0);
    std::vector<double> medians[2];
    for (int i = 0; i < pairs; ++i) {
        std::vector<double> positions(static_cast<std::size_t>(seeks));
        for (double &position : positions)
            position = place(random);
        for (const int side : {i % 2, 1 - i % 2}) {
            const std::uint32_t window = screen.openWindow(Width, Height);
            std::vector<double> times;
            const bool good = side == 0 ? seekThroughEngine(argv[1], argv[3], clip, window, positions, times)
                                        : seekDirectly(clip, window, positions, times);
            screen.destroyWindow(window);
            if (!good) {
                std::fprintf(stderr, "bench_seek: %s failed after %zu seeks\n",
                             side == 0 ? "the engine" : "libmpv", times.size());
                return 1;
            }
            medians[side].push_back(median(times));
        }
    }
    return reportRatio("exact seek to new picture", "ms", medians[0], medians[1], SeekLimit) ? 0 : 1;
}
