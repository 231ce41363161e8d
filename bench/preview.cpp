// Pictures above the seek slider: from the hover to the painted picture through pop-up, fetcher, player and
// engine, against a bare loop over libavcodec on the same clip. Same positions, taken in turns.
//
// The clip lasts two hours; scripts/bench makes it.
//
//   bench_preview ENGINE CLIP FOLDER PAIRS PICTURES
#include "KeyFrameLoop.h"
#include "Report.h"

#include "core/SettingsManager.h"
#include "player/QPlayer.h"
#include "preview/NormalPreviewPopView.h"
#include "preview/PlayerPreviewSource.h"
#include "preview/PreviewFetcher.h"
#include "ui/FixedDigits.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <chrono>
#include <clocale>
#include <cstdlib>
#include <random>
#include <string>

namespace {

using Clock = std::chrono::steady_clock;

// Pictures a second at least 0.8 times those of the bare loop: so much more time a picture at most.
constexpr double TimeLimit = 1.25;
constexpr double HoverLimit = 150;
constexpr int PatienceMs = 30000;
constexpr int FilmSeconds = 7000;
constexpr int MsASecond = 1000;
// The engine's pictures of 16 to 9.
constexpr int Width = 324;
constexpr int Height = 182;

double since(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

class Hovers final {
public:
    Hovers(QPlayer &player, const QString &clip)
        : m_fetcher(std::make_shared<PlayerPreviewSource>(&player))
    {
        m_window.resize(1280, 720);
        m_window.show();
        QObject::connect(&m_pop, &NormalPreviewPopView::sig_pictureWanted, &m_fetcher,
                         &PreviewFetcher::request);
        QObject::connect(&m_fetcher, &PreviewFetcher::pictureReady, &m_pop,
                         &NormalPreviewPopView::showPicture);
        QObject::connect(&m_fetcher, &PreviewFetcher::pictureReady, &m_loop, [this](int positionMs) {
            if (positionMs != m_wantedMs)
                return;
            m_pop.repaint();
            m_time = since(m_start);
            m_loop.quit();
        });
        QObject::connect(&m_fetcher, &PreviewFetcher::pictureMissing, &m_loop, &QEventLoop::quit);
        m_fetcher.setSource(clip);
    }

    // Milliseconds until the picture is there, below 0 when none comes.
    double hover(int second)
    {
        m_wantedMs = second * MsASecond;
        m_time = -1;
        QTimer::singleShot(PatienceMs, &m_loop, &QEventLoop::quit);
        m_start = Clock::now();
        m_pop.slot_showSeekView(FixedDigits::clock(second), m_window.mapToGlobal(QPoint(second % 1280, 640)));
        if (m_time < 0)
            m_loop.exec();
        return m_time;
    }

private:
    PreviewFetcher m_fetcher;
    QWidget m_window;
    NormalPreviewPopView m_pop{&m_window};
    QEventLoop m_loop;
    Clock::time_point m_start;
    int m_wantedMs{0};
    double m_time{-1};
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 6) {
        std::fprintf(stderr, "usage: bench_preview ENGINE CLIP FOLDER PAIRS PICTURES\n");
        return 2;
    }
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    QApplication app(argc, argv);
    std::setlocale(LC_NUMERIC, "C");
    const QString clip = QString::fromLocal8Bit(argv[2]);
    const int pairs = std::max(1, std::atoi(argv[4]));
    const int pictures = std::max(1, std::atoi(argv[5]));

    SettingsManager settings(QString::fromLocal8Bit(argv[3]) + QStringLiteral("/config.ini"));
    QPlayer player(std::make_unique<LibraryEngineLoader>(QString::fromLocal8Bit(argv[1])), &settings);

    // A fixed seed: every run goes to the same places.
    std::mt19937 random(20200715);
    std::uniform_int_distribution<int> place(1, FilmSeconds);
    std::vector<double> all[2];
    std::vector<double> first;
    std::vector<double> medians[2];
    for (int i = 0; i < pairs; ++i) {
        std::vector<int> seconds(static_cast<std::size_t>(pictures));
        for (int &second : seconds)
            second = place(random);
        // Each side opens the file anew; that is counted as the first hover of ours, and not among the rest.
        for (const int side : {i % 2, 1 - i % 2}) {
            std::vector<double> times;
            if (side == 0) {
                Hovers hovers(player, clip);
                first.push_back(hovers.hover(0));
                for (const int second : seconds)
                    times.push_back(hovers.hover(second));
            } else {
                KeyFrameLoop loop(Width, Height);
                std::vector<std::uint8_t> pixels;
                const bool isOpen = loop.open(argv[2]) && loop.grab(0, pixels);
                for (const int second : seconds) {
                    const Clock::time_point start = Clock::now();
                    const bool isThere = isOpen && loop.grab(second * MsASecond, pixels);
                    times.push_back(isThere ? since(start) : -1);
                }
            }
            if (*std::min_element(times.begin(), times.end()) < 0) {
                std::fprintf(stderr, "bench_preview: %s gave no picture\n",
                             side == 0 ? "ours" : "the bare loop");
                return 1;
            }
            double sum = 0;
            for (const double time : times)
                sum += time;
            medians[side].push_back(sum / pictures);
            all[side].insert(all[side].end(), times.begin(), times.end());
        }
    }
    const std::string of = " (" + QFileInfo(clip).suffix().toStdString() + ")";
    bool isKept =
        reportRatio(("time of a preview picture" + of).c_str(), "ms", medians[0], medians[1], TimeLimit);
    isKept &= reportOwn(("hover to painted picture" + of).c_str(), "ms", all[0], HoverLimit);
    isKept &= reportOwn(("first hover, with the file's opening" + of).c_str(), "ms", first, HoverLimit);
    return isKept ? 0 : 1;
}
