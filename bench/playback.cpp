// The player against a bare one, from outside: time from the start of the program to the first picture,
// processor time of a stretch of playback, peak memory. Both play the same clip with the same video output
// into a picture of the same size, are measured by the same means and take turns in each pair.
//
//   bench_playback PLAYER PEER CLIP FOLDER PAIRS SECONDS
//
// FOLDER is for the homes of both. The clip shows a box of the marker colour, a quarter of the picture wide.
#include "ChildProcess.h"
#include "Report.h"
#include "Screen.h"
#include "Side.h"

#include <chrono>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <thread>

namespace {

constexpr Screen::Colour Marker{200, 30, 160};
constexpr double Patience = 60;
constexpr double StartupLimit = 1.5;
constexpr double ProcessorLimit = 1.15;
constexpr double MemoryLimit = 80;

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// A run of one side up to its first picture; ends politely.
class Run final {
public:
    Run(Screen &screen, const Side &side)
        : m_screen(screen)
        , m_side(side)
    {
        side.forgetClip();
        if (!screen.waitForNoColour(Marker, Patience))
            giveUp(side, "an earlier picture stays on the screen");
        const Clock::time_point start = Clock::now();
        m_process = std::make_unique<ChildProcess>(side.command, side.variables);
        if (!screen.waitForColour(Marker, Patience))
            giveUp(side, "no picture appeared");
        m_startup = secondsSince(start);
    }

    ~Run()
    {
        m_screen.closeWindowsOf(m_process->id());
        if (!m_process->waitForEnd(Patience))
            giveUp(m_side, "did not end when its window was closed");
    }

    Run(const Run &) = delete;
    Run &operator=(const Run &) = delete;

    [[nodiscard]] double startup() const { return m_startup; }
    [[nodiscard]] ChildProcess &process() { return *m_process; }

private:
    Screen &m_screen;
    const Side &m_side;
    std::unique_ptr<ChildProcess> m_process;
    double m_startup{0};
};

// Width of the picture that a side shows once it has settled, and what a stretch of playback costs it.
struct Stretch {
    double processorSeconds{0};
    double peakMemory{0};
    int pictureWidth{0};
};

// The measured time itself passes by the clock: there is nothing to wait for but the end of the stretch.
void letPlay(ChildProcess &process, const Side &side, double seconds)
{
    if (process.waitForEnd(seconds))
        giveUp(side, "ended while it was to play");
}

Stretch play(Screen &screen, const Side &side, double seconds)
{
    Run run(screen, side);
    Stretch result;
    const double before = run.process().processorSeconds();
    letPlay(run.process(), side, seconds);
    result.processorSeconds = run.process().processorSeconds() - before;
    result.peakMemory = run.process().peakMemory();
    const std::optional<int> box = screen.widthOfColour(Marker);
    if (!box)
        giveUp(side, "the picture was gone");
    // The colour fades over half a pixel at either edge.
    result.pictureWidth = (*box + 1) * 4;
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 7) {
        std::fprintf(stderr, "usage: bench_playback PLAYER PEER CLIP FOLDER PAIRS SECONDS\n");
        return 2;
    }
    const std::string clip = argv[3];
    const std::string folder = argv[4];
    const int pairs = std::max(1, std::atoi(argv[5]));
    const double seconds = std::max(1.0, std::atof(argv[6]));
    Screen screen;
    if (!screen.isValid()) {
        std::fprintf(stderr, "bench_playback: no display that tells what changes on it\n");
        return 2;
    }

    const Side ours({argv[1], clip}, folder + "/ours",
                    {"ORBIX_VO=x11", "ORBIX_AO=null", "QT_QPA_PLATFORM=xcb"});
    const auto peerOf = [&](const std::string &geometry) {
        return Side(
            {argv[2], "--no-config", "--vo=x11", "--ao=null", "--hwdec=no", "--geometry=" + geometry, clip},
            folder + "/peer", {});
    };

    // A first run of each is for the disk's and the fonts' caches, and tells how large a picture is compared.
    const int width = play(screen, ours, 3).pictureWidth;
    const Side peer = peerOf(std::to_string(width) + 'x' + std::to_string(width * 9 / 16) + "+40+40");
    const int peerWidth = play(screen, peer, 3).pictureWidth;
    std::printf("# picture width: %d and %d pixels\n", width, peerWidth);
    if (std::abs(width - peerWidth) > width / 50 + 4)
        giveUp(peer, "shows a picture of another size");

    std::vector<double> startups[2];
    for (int i = 0; i < pairs; ++i) {
        for (const int side : {i % 2, 1 - i % 2})
            startups[side].push_back(Run(screen, side == 0 ? ours : peer).startup() * 1000);
    }
    bool kept = reportRatio("start-up to first picture", "ms", startups[0], startups[1], StartupLimit);

    std::vector<double> processor[2];
    std::vector<double> memory[2];
    for (int i = 0; i < pairs; ++i) {
        for (const int side : {i % 2, 1 - i % 2}) {
            const Stretch stretch = play(screen, side == 0 ? ours : peer, seconds);
            processor[side].push_back(stretch.processorSeconds * 1000 / seconds);
            memory[side].push_back(stretch.peakMemory);
        }
    }
    kept &=
        reportRatio("processor time a second of playback", "ms", processor[0], processor[1], ProcessorLimit);
    kept &= reportDifference("peak memory", "MB", memory[0], memory[1], MemoryLimit);
    return kept ? 0 : 1;
}
