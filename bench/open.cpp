// A request in a window that is open already, to the first picture on the screen: the player, asked over the
// desktop's own interface for it, against the bare library in a small host. Both run as processes of their
// own that have come to rest, play the same clip with the same video output into a picture of the same size,
// and take turns.
//
//   bench_open PLAYER SESSION CLIP FOLDER PAIRS
//   bench_open --host CLIP WIDTH HEIGHT           the small host; loads the clip when it gets a SIGUSR1
//
// SESSION is the player's name on the session bus. The clip shows a box of the marker colour, a quarter of
// the picture wide.
#include "ChildProcess.h"
#include "Report.h"
#include "Screen.h"
#include "Side.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUrl>

#include <mpv/client.h>

#include <chrono>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace {

constexpr Screen::Colour Marker{200, 30, 160};
constexpr double Patience = 60;
constexpr double OpenLimit = 1.3;
constexpr double RestSeconds = 0.5;

using Clock = std::chrono::steady_clock;

// ---- the small host

int host(const char *clip, int width, int height)
{
    std::setlocale(LC_NUMERIC, "C");
    sigset_t request;
    sigemptyset(&request);
    sigaddset(&request, SIGUSR1);
    // Threads of the library inherit this, so that the signal waits for its reader.
    pthread_sigmask(SIG_BLOCK, &request, nullptr);
    Screen screen;
    std::int64_t window = screen.openWindow(width, height);
    mpv_handle *mpv = mpv_create();
    if (!mpv)
        return 1;
    mpv_set_option(mpv, "wid", MPV_FORMAT_INT64, &window);
    // What takes time at a load is set as the player sets it: it looks for a hardware decoder first.
    for (const auto &[name, value] :
         {std::pair("vo", "x11"), std::pair("ao", "null"), std::pair("hwdec", "auto-safe"),
          std::pair("config", "no"), std::pair("terminal", "no")})
        mpv_set_option_string(mpv, name, value);
    if (mpv_initialize(mpv) < 0)
        return 1;
    int number = 0;
    sigwait(&request, &number);
    const char *load[] = {"loadfile", clip, nullptr};
    if (mpv_command_async(mpv, 0, load) < 0)
        return 1;
    while (mpv_wait_event(mpv, -1)->event_id != MPV_EVENT_SHUTDOWN)
        continue;
    return 0;
}

// ---- the measurement

// A process at rest takes no processor time that can be seen.
void waitForRest(ChildProcess &process, const Side &side)
{
    for (double before = -1, now = process.processorSeconds(); now > before;
         now = process.processorSeconds()) {
        before = now;
        if (process.waitForEnd(RestSeconds))
            giveUp(side, "ended by itself");
    }
}

class Benchmark final {
public:
    Benchmark(Screen &screen, Side ours, QString session, QString clip)
        : m_screen(screen)
        , m_ours(std::move(ours))
        , m_session(std::move(session))
        , m_clip(std::move(clip))
    {
    }

    // Milliseconds; the width of the box is kept.
    double askPlayer()
    {
        m_ours.forgetClip();
        waitForEmptyScreen(m_ours);
        ChildProcess process(m_ours.command, m_ours.variables);
        if (!m_screen.waitForPaintedWindow(process.id(), Patience))
            giveUp(m_ours, "no window appeared");
        waitForRest(process, m_ours);
        QDBusConnection bus = QDBusConnection::sessionBus();
        if (!bus.interface()->isServiceRegistered(m_session))
            giveUp(m_ours, "has no media session on the bus");
        QDBusMessage request = QDBusMessage::createMethodCall(
            m_session, QStringLiteral("/org/mpris/MediaPlayer2"),
            QStringLiteral("org.mpris.MediaPlayer2.Player"), QStringLiteral("OpenUri"));
        request << QUrl::fromLocalFile(m_clip).toString(QUrl::FullyEncoded);
        const Clock::time_point begin = Clock::now();
        bus.send(request);
        const double milliseconds = waitForPicture(m_ours, begin);
        m_screen.closeWindowsOf(process.id());
        if (!process.waitForEnd(Patience))
            giveUp(m_ours, "did not end when its window was closed");
        return milliseconds;
    }

    double askHost(const Side &peer)
    {
        waitForEmptyScreen(peer);
        ChildProcess process(peer.command, peer.variables);
        waitForRest(process, peer);
        const Clock::time_point begin = Clock::now();
        kill(process.id(), SIGUSR1);
        return waitForPicture(peer, begin);
    }

    [[nodiscard]] int pictureWidth() const { return m_boxWidth * 4; }

private:
    void waitForEmptyScreen(const Side &side)
    {
        if (!m_screen.waitForNoColour(Marker, Patience))
            giveUp(side, "an earlier picture stays on the screen");
    }

    double waitForPicture(const Side &side, Clock::time_point begin)
    {
        if (!m_screen.waitForColour(Marker, Patience))
            giveUp(side, "no picture appeared");
        const double milliseconds = std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
        // The colour fades over half a pixel at either edge.
        m_boxWidth = m_screen.widthOfColour(Marker).value_or(0) + 1;
        return milliseconds;
    }

    Screen &m_screen;
    Side m_ours;
    QString m_session;
    QString m_clip;
    int m_boxWidth{0};
};

} // namespace

int main(int argc, char **argv)
{
    if (argc == 5 && std::strcmp(argv[1], "--host") == 0)
        return host(argv[2], std::atoi(argv[3]), std::atoi(argv[4]));
    if (argc != 6) {
        std::fprintf(stderr, "usage: bench_open PLAYER SESSION CLIP FOLDER PAIRS\n");
        return 2;
    }
    const QCoreApplication application(argc, argv);
    const std::string folder = argv[4];
    const int pairs = std::max(1, std::atoi(argv[5]));
    Screen screen;
    if (!screen.isValid()) {
        std::fprintf(stderr, "bench_open: no display that tells what changes on it\n");
        return 2;
    }

    const Side ours({argv[1]}, folder + "/open-ours",
                    {"ORBIX_VO=x11", "ORBIX_AO=null", "QT_QPA_PLATFORM=xcb"});
    Benchmark benchmark(screen, ours, QString::fromLocal8Bit(argv[2]), QString::fromLocal8Bit(argv[3]));
    // A first request to each is for the disk's cache, and tells how large a picture is compared.
    (void)benchmark.askPlayer();
    const int width = benchmark.pictureWidth();
    const Side peer({QCoreApplication::applicationFilePath().toStdString(), "--host", argv[3],
                     std::to_string(width), std::to_string(width * 9 / 16)},
                    folder + "/open-peer", {});
    peer.makeHome();
    (void)benchmark.askHost(peer);
    std::printf("# picture width: %d and %d pixels\n", width, benchmark.pictureWidth());
    if (std::abs(width - benchmark.pictureWidth()) > width / 50 + 4)
        giveUp(peer, "shows a picture of another size");

    std::vector<double> times[2];
    for (int i = 0; i < pairs; ++i) {
        for (const int side : {i % 2, 1 - i % 2})
            times[side].push_back(side == 0 ? benchmark.askPlayer() : benchmark.askHost(peer));
    }
    return reportRatio("request in an open window to first picture", "ms", times[0], times[1], OpenLimit) ? 0
                                                                                                          : 1;
}
