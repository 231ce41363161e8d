// Overlays that fade over a playing film: how evenly they fade, and what that costs the film. The player and
// a bare one play the same clip over the whole screen with the same video output while the pointer moves now
// and then; only the player has something to show for it. Run under a compositor, as without one nothing
// fades.
//
//   bench_overlay PLAYER PEER CLIP FOLDER PAIRS SECONDS
//
// The clip carries the number of each frame as a row of white and black cells, and the screen is as large as
// it.
#include "ChildProcess.h"
#include "FadeWatch.h"
#include "FrameCells.h"
#include "Report.h"
#include "Screen.h"
#include "Side.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <memory>
#include <set>

namespace {

constexpr double Patience = 60;
constexpr double LateMs = 33;
constexpr double LateLimit = 5;
constexpr double DroppedLimit = 1;
// A hand moves the pointer for a moment. Bars rest 3 seconds after the last move, and take a quarter of a
// second to go.
constexpr double MoveEverySeconds = 5;
constexpr double MoveSeconds = 0.3;
constexpr double MoveStepSeconds = 0.02;
constexpr double MovePixels = 60;

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

struct Stretch {
    double droppedPercent{0};
    double latePercent{0};
    int fades{0};
    std::size_t steps{0};
};

Stretch play(Screen &screen, const Side &side, double seconds)
{
    side.forgetClip();
    ChildProcess process(side.command, side.variables);
    // The first frames go into the start of the program, which is not what is measured here.
    const Clock::time_point begin = Clock::now();
    while (!FrameCells::read(screen)) {
        if (secondsSince(begin) > Patience)
            giveUp(side, "no picture appeared");
        screen.waitForDrawing(1);
    }
    if (process.waitForEnd(1))
        giveUp(side, "ended while it was to play");

    FadeWatch fades(process.id());
    std::set<int> seen;
    const Clock::time_point start = Clock::now();
    double nextMove = 0;
    for (double now = 0; now < seconds; now = secondsSince(start)) {
        if (now >= nextMove) {
            const double phase = std::fmod(now, MoveEverySeconds);
            const int shift = int(phase / MoveSeconds * MovePixels);
            screen.movePointer(screen.width() / 2 + shift, screen.height() / 2 + shift);
            nextMove = phase < MoveSeconds ? now + MoveStepSeconds : now - phase + MoveEverySeconds;
        }
        screen.waitForDrawing(std::max(0.001, std::min(seconds, nextMove) - now), fades.descriptor());
        fades.read();
        if (const std::optional<int> frame = FrameCells::read(screen))
            seen.insert(*frame);
    }
    if (seen.empty())
        giveUp(side, "the picture was gone");

    Stretch result;
    const int played = *seen.rbegin() - *seen.begin() + 1;
    result.droppedPercent = 100.0 * (played - int(seen.size())) / played;
    result.fades = fades.fades();
    result.steps = fades.intervals().size();
    if (result.steps > 0) {
        const auto late = std::count_if(fades.intervals().begin(), fades.intervals().end(),
                                        [](double interval) { return interval > LateMs; });
        result.latePercent = 100.0 * double(late) / double(result.steps);
    }
    screen.closeWindowsOf(process.id());
    if (!process.waitForEnd(Patience))
        giveUp(side, "did not end when its window was closed");
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 7) {
        std::fprintf(stderr, "usage: bench_overlay PLAYER PEER CLIP FOLDER PAIRS SECONDS\n");
        return 2;
    }
    const std::string clip = argv[3];
    const std::string folder = argv[4];
    const int pairs = std::max(1, std::atoi(argv[5]));
    const double seconds = std::max(2 * MoveEverySeconds, std::atof(argv[6]));
    Screen screen;
    if (!screen.isValid()) {
        std::fprintf(stderr, "bench_overlay: no display that tells what changes on it\n");
        return 2;
    }

    const Side ours({argv[1], clip, "fullscreen"}, folder + "/overlay-ours",
                    {"ORBIX_VO=x11", "ORBIX_AO=null", "QT_QPA_PLATFORM=xcb"});
    const Side peer({argv[2], "--no-config", "--vo=x11", "--ao=null", "--hwdec=no", "--osc=no", "--fs", clip},
                    folder + "/overlay-peer", {});
    std::vector<double> dropped[2];
    std::vector<double> late;
    int fades = 0;
    std::size_t steps = 0;
    for (int i = 0; i < pairs; ++i) {
        for (const int side : {i % 2, 1 - i % 2}) {
            const Stretch stretch = play(screen, side == 0 ? ours : peer, seconds);
            dropped[side].push_back(stretch.droppedPercent);
            if (side == 0) {
                if (stretch.steps == 0)
                    giveUp(ours, "no overlay faded");
                late.push_back(stretch.latePercent);
                fades += stretch.fades;
                steps += stretch.steps;
            }
        }
    }
    std::printf("# %d fades of %zu steps\n", fades, steps);
    bool kept = reportOwn("steps of a fade later than 33 ms", "%", late, LateLimit);
    kept &= reportDifference("frames dropped while overlays fade", "%", dropped[0], dropped[1], DroppedLimit);
    return kept ? 0 : 1;
}
