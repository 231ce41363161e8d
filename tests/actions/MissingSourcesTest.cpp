// A play queue whose files are gone, in the window, over the real engine.
#include "ActionRig.h"

#include "play/TestClips.h"
#include "support/Eventually.h"

#include "core/SettingsKeys.h"
#include "overlays/PlayOverlays.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "player/QPlayer.h"
#include "queue/NormalPlaylistView.h"
#include "queue/PlayQueue.h"
#include "queue/QueueOrder.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTimer>

namespace {

constexpr int kMissing = 10000;
constexpr int kLongestSilenceMs = 3000;

} // namespace

TEST(MissingSources, TenThousandBetweenTwoThatAreThereArePassedOverWithoutAStall)
{
    ActionRig rig;
    const QString first = rig.path("a first.mp4");
    const QString last = rig.path("z last.mp4");
    ASSERT_TRUE(QFile::copy(QString::fromStdString(TestClips::path("short.mp4")), first));
    ASSERT_TRUE(QFile::copy(QString::fromStdString(TestClips::path("plain.mp4")), last));
    QVariantMap stored{{first, {}}, {last, {}}};
    for (int n = 0; n < kMissing; ++n)
        stored.insert(rig.path(QStringLiteral("missing %1.mkv").arg(n, 5, 10, QLatin1Char('0'))), QVariant());
    ActionRig::settings().setValue(QLatin1String(SettingsKeys::PC_Playlist), stored);
    ActionRig::settings().setValue(QLatin1String(SettingsKeys::PC_PlaylistLoopType),
                                   int(QueueOrder::Sequence));
    rig.restart();
    // Whatever asks has something to complain of.
    bool isAsked = false;
    rig.answer([&isAsked](QWidget &window) {
        isAsked = true;
        return window.close();
    });
    // How long the window answers nobody.
    QElapsedTimer clock;
    qint64 longest = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &tick, [&] { longest = qMax(longest, clock.restart()); });
    clock.start();
    tick.start(10);

    PlayQueue *queue = rig.window().overlays()->playlist()->queue();
    rig.window().slot_playSource(first);
    ASSERT_EVENTUALLY(queue->count() == kMissing + 2);
    ASSERT_EVENTUALLY(rig.window().playControl()->currentPath() == last && rig.player().isPlaying());
    EXPECT_TRUE(rig.reaches("path", last));
    EXPECT_FALSE(isAsked);
    queue->removeInvalid();
    ASSERT_EVENTUALLY(queue->count() == 2);
    EXPECT_TRUE(rig.player().isPlaying());
    EXPECT_LT(longest, kLongestSilenceMs);
}
