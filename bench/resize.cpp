// What an event of a resize costs the GUI thread while a film plays: the window of PC mode with the real
// engine, resized step by step, every delivery of a resize event to the window timed, the layout of its
// children, the overlays and the word to the engine included.
//
//   bench_resize ENGINE RESOURCES CLIP FOLDER RESIZES
#include "PlayingWindow.h"
#include "Report.h"

#include "pc/NormalMainWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QResizeEvent>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr double LimitMs = 8;
constexpr int Steps = 40; // from one size to the other and back
constexpr QSize Smallest{900, 560};
constexpr int StepWidth = 8;
constexpr int StepHeight = 5;

class TimedApplication final : public QApplication {
public:
    TimedApplication(int &argc, char **argv)
        : QApplication(argc, argv)
    {
    }

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (receiver != watched || event->type() != QEvent::Resize)
            return QApplication::notify(receiver, event);
        QElapsedTimer timer;
        timer.start();
        const bool taken = QApplication::notify(receiver, event);
        milliseconds.push_back(double(timer.nsecsElapsed()) / 1e6);
        return taken;
    }

    QObject *watched{nullptr};
    std::vector<double> milliseconds;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 6) {
        std::fprintf(stderr, "usage: bench_resize ENGINE RESOURCES CLIP FOLDER RESIZES\n");
        return 2;
    }
    const PlayingWindow::Files files{argv[1], argv[2], argv[3], argv[4]};
    PlayingWindow::prepare(files);
    TimedApplication application(argc, argv);
    {
        PlayingWindow playing(files);
        if (!playing.waitForPicture()) {
            std::fprintf(stderr, "bench_resize: the clip does not play\n");
            return 2;
        }
        NormalMainWindow &window = playing.window();
        application.watched = &window;
        const int resizes = std::max(Steps, std::atoi(argv[5]));
        for (int i = 0; i < resizes; ++i) {
            const int phase = i % Steps;
            const int step = phase < Steps / 2 ? phase : Steps - phase;
            window.resize(Smallest.width() + step * StepWidth, Smallest.height() + step * StepHeight);
            PlayingWindow::settle(16);
        }
        application.watched = nullptr;
    }
    if (application.milliseconds.empty()) {
        std::fprintf(stderr, "bench_resize: the window was not resized\n");
        return 2;
    }
    auto sorted = application.milliseconds;
    std::sort(sorted.begin(), sorted.end());
    std::printf("# %zu events, the slowest %.1f ms\n", sorted.size(), sorted.back());
    const double late = sorted[sorted.size() * 95 / 100];
    const bool kept = reportOwn("event of a resize while a film plays, median", "ms", sorted, LimitMs);
    return reportOwn("the same, 95 of 100 are faster", "ms", {late}, LimitMs) && kept ? 0 : 1;
}
