// From the start of a program, without a file, to a window that shows something: the player against others.
// All are looked at from outside by the same means and take turns.
//
//   bench_window PLAYER LIGHT HEAVY FOLDER ROUNDS
//
// LIGHT is a player of widgets, against which the player must be no slower; HEAVY one of a scene graph,
// against which it may take half the time. FOLDER is for the homes of all three.
#include "ChildProcess.h"
#include "Report.h"
#include "Screen.h"
#include "Side.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {

constexpr double Patience = 60;
constexpr double LightLimit = 1.0;
constexpr double HeavyLimit = 0.5;

using Clock = std::chrono::steady_clock;

// Milliseconds until the window is painted. The program is closed as its user would.
double start(Screen &screen, const Side &side)
{
    side.makeHome();
    const Clock::time_point begin = Clock::now();
    ChildProcess process(side.command, side.variables);
    if (!screen.waitForPaintedWindow(process.id(), Patience))
        giveUp(side, "no window appeared");
    const double milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
    // A program that is still busy with its start may ask something when it is closed, or miss it.
    double before = -1;
    for (double now = process.processorSeconds(); now > before; now = process.processorSeconds()) {
        before = now;
        if (process.waitForEnd(0.3))
            giveUp(side, "ended by itself");
    }
    screen.closeWindowsOf(process.id());
    if (!process.waitForEnd(Patience))
        giveUp(side, "did not end when its window was closed");
    return milliseconds;
}

// Nothing of what is measured goes to the network.
void forbidUpdateCheck(const Side &side)
{
    const std::filesystem::path folder = side.home + "/config/smplayer";
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "smplayer.ini") << "[update_checker]\nenabled=false\n";
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 6) {
        std::fprintf(stderr, "usage: bench_window PLAYER LIGHT HEAVY FOLDER ROUNDS\n");
        return 2;
    }
    const std::string folder = argv[4];
    const int rounds = std::max(1, std::atoi(argv[5]));
    Screen screen;
    if (!screen.isValid()) {
        std::fprintf(stderr, "bench_window: no display that tells what changes on it\n");
        return 2;
    }

    const std::vector<std::string> display{"QT_QPA_PLATFORM=xcb", "ORBIX_AO=null"};
    const Side sides[] = {Side({argv[1]}, folder + "/window-ours", display),
                          Side({argv[2]}, folder + "/window-light", display),
                          Side({argv[3]}, folder + "/window-heavy", display)};
    forbidUpdateCheck(sides[1]);
    // A first start of each is for the caches and for what a program sets up once.
    for (const Side &side : sides)
        (void)start(screen, side);

    std::vector<double> times[3];
    for (int round = 0; round < rounds; ++round) {
        for (int turn = 0; turn < 3; ++turn) {
            const int side = (round + turn) % 3;
            times[side].push_back(start(screen, sides[side]));
        }
    }
    bool kept = reportRatio("window after start, against light", "ms", times[0], times[1], LightLimit);
    kept &= reportRatio("window after start, against heavy", "ms", times[0], times[2], HeavyLimit);
    return kept ? 0 : 1;
}
