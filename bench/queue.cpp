// A long play queue: ten thousand sources come into the open panel, are scrolled through and are stored. The
// same number of bare items in a bare model, without a view, is what it is measured against; a list of them
// in a plain view for the scrolling, and the plain text of the paths as a file for the store.
//
//   bench_queue PAIRS
//
// Draws offscreen; the panel is all there, with its rows, its store and its look at the disk.
#include "Report.h"

#include "core/SettingsManager.h"
#include "queue/NormalPlaylistView.h"
#include "queue/QueueListView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr int Rows = 10000;
constexpr int Steps = 200;
constexpr double AppendLimit = 3;
constexpr double ScrollLimit = 3;
constexpr double SaveLimit = 60;
constexpr double TurnLimitMs = 50;

double ms(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

QStringList paths(int round)
{
    QStringList made;
    made.reserve(Rows);
    for (int i = 0; i < Rows; ++i)
        made << QStringLiteral("/films/collection %1/Film number %2.mkv").arg(round).arg(i);
    return made;
}

double appendBare(QStandardItemModel &model, const QStringList &sources)
{
    QElapsedTimer timer;
    timer.start();
    for (const QString &path : sources) {
        auto *item = new QStandardItem(path.mid(path.lastIndexOf(QLatin1Char('/')) + 1));
        item->setData(path, Qt::UserRole + 1);
        item->setData(-1, Qt::UserRole + 2);
        model.appendRow(item);
    }
    return ms(timer);
}

// From the call to the last row; the longest turn of the event loop is what a user would feel.
double appendOurs(NormalPlaylistView &panel, const QStringList &sources, double *longestTurn)
{
    QElapsedTimer timer;
    timer.start();
    QElapsedTimer turn;
    turn.start();
    panel.addSources(sources);
    while (panel.queue()->model()->sourceCount() < sources.size()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents);
        *longestTurn = std::max(*longestTurn, ms(turn));
        turn.start();
    }
    return ms(timer);
}

// Through the whole list and back, drawn at each step.
double scroll(QTreeView &view)
{
    QScrollBar *bar = view.verticalScrollBar();
    QImage image(view.size(), QImage::Format_ARGB32_Premultiplied);
    QElapsedTimer timer;
    timer.start();
    for (int step = 0; step < Steps; ++step) {
        bar->setValue(bar->maximum() / Steps * step);
        view.viewport()->render(&image);
    }
    return ms(timer);
}

double writeText(const QString &name, const QStringList &sources)
{
    const QByteArray text = sources.join(QLatin1Char('\n')).toUtf8();
    QElapsedTimer timer;
    timer.start();
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        std::exit(2);
    return ms(timer);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const int pairs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    QTemporaryDir folder;
    std::vector<double> append[2];
    std::vector<double> scrolled[2];
    std::vector<double> saved[2];
    std::vector<double> turns;
    for (int round = 0; round < pairs; ++round) {
        const QStringList sources = paths(round);
        QStandardItemModel bare;
        append[1].push_back(appendBare(bare, sources));

        SettingsManager settings(folder.filePath(QStringLiteral("%1.ini").arg(round)));
        NormalPlaylistView panel(settings, {});
        panel.resize(372, 600);
        panel.open();
        while (panel.cardRect().left() > 0)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        double longest = 0;
        append[0].push_back(appendOurs(panel, sources, &longest));
        turns.push_back(longest);

        QTreeView plain;
        plain.setUniformRowHeights(true);
        plain.setModel(&bare);
        plain.resize(panel.list()->size());
        plain.show();
        QCoreApplication::processEvents();
        scrolled[1].push_back(scroll(plain));
        scrolled[0].push_back(scroll(*panel.list()));

        saved[1].push_back(writeText(folder.filePath(QStringLiteral("plain.txt")), sources));
        QElapsedTimer timer;
        timer.start();
        panel.save();
        saved[0].push_back(ms(timer));
    }
    bool kept = reportRatio("10,000 sources into the open queue", "ms", append[0], append[1], AppendLimit);
    kept &= reportRatio("scrolling through them, 200 pictures", "ms", scrolled[0], scrolled[1], ScrollLimit);
    kept &= reportRatio("storing them, against their plain text", "ms", saved[0], saved[1], SaveLimit);
    const double longest = *std::max_element(turns.begin(), turns.end());
    std::printf("# longest turn of the event loop while they come: %.1f ms, <= %.0f %s\n", longest,
                TurnLimitMs, longest <= TurnLimitMs ? "kept" : "MISSED");
    return kept && longest <= TurnLimitMs ? 0 : 1;
}
