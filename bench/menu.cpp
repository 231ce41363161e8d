// How long the context menu takes from the click to its first paint while a film with very many tracks plays.
//
//   bench_menu ENGINE RESOURCES CLIP FOLDER OPENINGS
#include "PlayingWindow.h"
#include "Report.h"

#include "pc/NormalMainWindow.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QMenu>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr double LimitMs = 30;
constexpr int PaintMs = 500;

class TimedApplication final : public QApplication {
public:
    TimedApplication(int &argc, char **argv)
        : QApplication(argc, argv)
    {
    }

    bool notify(QObject *receiver, QEvent *event) override
    {
        const bool taken = QApplication::notify(receiver, event);
        if (event->type() == QEvent::Paint && timer.isValid() && qobject_cast<QMenu *>(receiver) != nullptr) {
            milliseconds.push_back(double(timer.nsecsElapsed()) / 1e6);
            timer.invalidate();
        }
        return taken;
    }

    QElapsedTimer timer;
    std::vector<double> milliseconds;
};

} // namespace

int main(int argc, char **argv)
{
    if (argc != 6) {
        std::fprintf(stderr, "usage: bench_menu ENGINE RESOURCES CLIP FOLDER OPENINGS\n");
        return 2;
    }
    const PlayingWindow::Files files{argv[1], argv[2], argv[3], argv[4]};
    PlayingWindow::prepare(files);
    TimedApplication application(argc, argv);
    const int openings = std::max(5, std::atoi(argv[5]));
    int entries = 0;
    {
        PlayingWindow playing(files);
        if (!playing.waitForPicture()) {
            std::fprintf(stderr, "bench_menu: the clip does not play\n");
            return 2;
        }
        NormalMainWindow &window = playing.window();
        for (int i = 0; i < openings; ++i) {
            QContextMenuEvent click(QContextMenuEvent::Mouse, {100, 100}, window.mapToGlobal({100, 100}));
            application.timer.start();
            QApplication::sendEvent(&window, &click);
            PlayingWindow::settle(PaintMs);
            if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget())) {
                entries = menu->findChildren<QAction *>().size();
                menu->close();
            }
        }
    }
    if (int(application.milliseconds.size()) != openings) {
        std::fprintf(stderr, "bench_menu: the menu was painted %zu of %d times\n",
                     application.milliseconds.size(), openings);
        return 2;
    }
    std::printf("# %d entries\n", entries);
    return reportOwn("context menu with 400 tracks, click to painted", "ms", application.milliseconds,
                     LimitMs)
               ? 0
               : 1;
}
