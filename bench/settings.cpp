// From the call that opens the settings dialog to its first painted picture, against an empty dialog of the
// same size that is opened in turn with it.
//
//   bench_settings ROUNDS
//
// The first opening of each is for fonts, sheets and pictures; those that follow are what a user waits for
// who opens it again and again: a new dialog each time, as the program makes it.
#include "Statistics.h"

#include "core/SettingsManager.h"
#include "settings/NormalSettingPage.h"

#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QResource>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

constexpr double LimitMs = 150;
constexpr int PatienceMs = 10000;

// Tells when a window and all that is in it has been painted for the first time.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget *window)
        : m_window(window)
    {
        qApp->installEventFilter(this);
    }
    bool isPainted() const { return m_isPainted; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()
            && static_cast<QWidget *>(watched)->window() == m_window)
            m_isPainted = true;
        return false;
    }

private:
    QWidget *m_window;
    bool m_isPainted{false};
};

// Milliseconds from nothing to a painted window; negative where it never was painted.
double open(const std::function<std::unique_ptr<QDialog>()> &make)
{
    QElapsedTimer time;
    time.start();
    const std::unique_ptr<QDialog> dialog = make();
    const PaintWatch watch(dialog.get());
    dialog->show();
    while (!watch.isPainted() && time.elapsed() < PatienceMs)
        QApplication::processEvents(QEventLoop::AllEvents, PatienceMs);
    // The rest of the same picture: all parts of the window are painted in one go.
    QApplication::sendPostedEvents();
    return watch.isPainted() ? double(time.nsecsElapsed()) / 1e6 : -1;
}

class NoHost final : public ISettingsHost {};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: bench_settings ROUNDS\n");
        return 2;
    }
    const int rounds = std::max(1, std::atoi(argv[1]));
    QResource::registerResource(QApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc"));
    QTemporaryDir folder;
    SettingsManager store(folder.filePath(QStringLiteral("config.ini")));
    NoHost host;
    const auto settings = [&store, &host]() -> std::unique_ptr<QDialog> {
        auto dialog = std::make_unique<NormalSettingPage>(store, host);
        dialog->prepare();
        return dialog;
    };
    QSize size;
    {
        const auto first = settings();
        first->show();
        QApplication::processEvents();
        size = first->size();
    }
    const auto empty = [size]() -> std::unique_ptr<QDialog> {
        auto dialog = std::make_unique<QDialog>();
        dialog->resize(size);
        return dialog;
    };
    (void)open(empty);

    std::vector<double> ours;
    std::vector<double> bare;
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(open(empty));
        ours.push_back(open(settings));
        if (ours.back() < 0 || bare.back() < 0) {
            std::fprintf(stderr, "bench_settings: a dialog was never painted\n");
            return 2;
        }
    }
    const double value = median(ours);
    std::printf("%-44s %9.1f %9.1f %-3s %8.1f  <= %-6.1f %s\n", "settings dialog, open to painted", value,
                median(bare), "ms", value, LimitMs, value <= LimitMs ? "kept" : "MISSED");
    return value <= LimitMs ? 0 : 1;
}
