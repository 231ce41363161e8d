// The panel and its tab as they look over a film, at the scales of the usual displays. With QUORIN_LOOK_DIR
// set the pictures are kept there for the eye.
#include "TestSettings.h"

#include "queue/NormalPlaylistSwitch.h"
#include "queue/NormalPlaylistView.h"
#include "queue/QueueHead.h"
#include "queue/QueueListView.h"

#include "core/ApplicationInfoManager.h"
#include "ui/FocusRing.h"
#include "ui/LookTokens.h"
#include "ui/StyleLoader.h"
#include "ui/StyleSheetScaler.h"

#include "support/Eventually.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QResource>
#include <QTest>

#include <gtest/gtest.h>

#include <cmath>

namespace {

class PlaylistLooks : public testing::TestWithParam<int> {
protected:
    static QString resourceFile()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
    }
    static void SetUpTestSuite() { ASSERT_TRUE(QResource::registerResource(resourceFile())); }
    static void TearDownTestSuite() { QResource::unregisterResource(resourceFile()); }
    void SetUp() override
    {
        ApplicationInfoManager::instance()->setScreenDpi(96 * GetParam() / 100);
        NormalPlaylistView::Services services;
        services.queue.exists = [](const QString &path) { return !path.contains("Lost"); };
        services.queue.titles = [](const QString &, int) {
            PlayerDisc disc;
            disc.isValid = true;
            disc.mainTitle = 2;
            disc.titles = {{1, 95000, 1, {}}, {2, 7581000, 24, {}}, {3, 1320000, 4, {}}};
            return disc;
        };
        panel = std::make_unique<NormalPlaylistView>(*settings, services);
        panel->setWindowFlag(Qt::FramelessWindowHint);
        panel->setAttribute(Qt::WA_TranslucentBackground);
        QFile sheet(QLatin1String(StyleLoader::kCssPrefix) + QStringLiteral("pcstyle.css"));
        ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
        panel->setStyleSheet(
            StyleSheetScaler::scaled(QString::fromUtf8(sheet.readAll()), float(GetParam()) / 100));
        panel->resize(Look::px(NormalPlaylistView::designWidth()), Look::px(580));
    }
    void TearDown() override { ApplicationInfoManager::instance()->setScreenDpi(96); }

    void open()
    {
        panel->open();
        ASSERT_EVENTUALLY(panel->cardRect().left() == 0);
    }
    void fill()
    {
        panel->addSources(
            {"/films/2021/Northern Line (2021).mkv", "D",
             "/films/2019/The Glass Harbour and the Long Way Home to the Sea (2019).mkv",
             "/films/Lost/Paper Astronauts.mp4", "/music/Seven Quiet Rivers/01 Winter Engine.flac",
             "smb://attic/films/Old Salt Road.avi", "/films/Meridian Disc",
             "/films/images/A Year of Small Rain.iso", "3_/music/Live at the Pier/Concert.cue"});
        ASSERT_EVENTUALLY(panel->queue()->model()->goneRows().size() == 1);
        ASSERT_EVENTUALLY(panel->queue()->model()->titleCount(1) == 3);
    }
    [[nodiscard]] QModelIndex row(int number) const { return panel->queue()->model()->index(number); }

    QImage grab(QWidget &widget, const char *name)
    {
        const int around = Look::px(24);
        QImage image(widget.size() + QSize(around, 2 * around), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        QLinearGradient sky(0, 0, image.width(), image.height());
        sky.setColorAt(0, QColor(0x2f, 0x4f, 0x9f));
        sky.setColorAt(0.6, QColor(0xd8, 0xa0, 0x60));
        sky.setColorAt(1, QColor(0xf4, 0xea, 0xd8));
        painter.fillRect(image.rect(), sky);
        widget.render(&painter, QPoint(around, around), {}, QWidget::DrawChildren);
        painter.end();
        const QString folder = qEnvironmentVariable("QUORIN_LOOK_DIR");
        if (!folder.isEmpty()) {
            QDir().mkpath(folder);
            image.save(QStringLiteral("%1/%2_%3.png").arg(folder, QLatin1String(name)).arg(GetParam()));
        }
        return image;
    }

    // How often a colour stands in a part of the panel, as the picture shows it.
    [[nodiscard]] static int count(const QImage &image, const QRect &part, QRgb color)
    {
        int hits = 0;
        for (int y = part.top(); y <= part.bottom(); ++y) {
            for (int x = part.left(); x <= part.right(); ++x) {
                const QColor pixel = image.pixelColor(x, y);
                const QColor wanted = Look::color(color);
                if (std::abs(pixel.red() - wanted.red()) < 16 && std::abs(pixel.green() - wanted.green()) < 16
                    && std::abs(pixel.blue() - wanted.blue()) < 16)
                    ++hits;
            }
        }
        return hits;
    }
    // A row's place in the picture.
    [[nodiscard]] QRect placeOf(const QModelIndex &index) const
    {
        const QRect rect = panel->list()->visualRect(index);
        const QPoint origin = panel->list()->viewport()->mapTo(panel.get(), rect.topLeft());
        return QRect(origin + QPoint(Look::px(24), Look::px(24)), rect.size());
    }

    TestSettings settings;
    std::unique_ptr<NormalPlaylistView> panel;
};

} // namespace

TEST_P(PlaylistLooks, AQueueThatPlays)
{
    open();
    fill();
    panel->slot_changeExpandState(row(1));
    panel->queue()->playRow(row(0));
    panel->beginSource("/films/2021/Northern Line (2021).mkv");
    panel->slot_setPlayStatus(QPlayer::QPlayerStatus_Playing);
    panel->slot_setMetaInfo(QPlayer::QPlayerMetaType_Time, "00:48:03 / 02:06:21");
    panel->list()->setCurrentIndex(row(2));
    QApplication::processEvents();
    const QImage image = grab(*panel, "playlist_list");
    EXPECT_GT(count(image, placeOf(row(0)), Look::AccentHover), 40) << "the row that plays";
    EXPECT_EQ(count(image, placeOf(row(4)), Look::AccentHover), 0);
    EXPECT_GT(count(image, placeOf(row(3)), Look::Beyond), 10) << "the row that is gone";
    EXPECT_GT(count(image, placeOf(row(1)), Look::Text), 10);
}

TEST_P(PlaylistLooks, EveryNameOfTheHeadHasItsRoom)
{
    open();
    fill();
    for (const QLabel *label : panel->head()->findChildren<QLabel *>()) {
        EXPECT_GE(label->width(), label->sizeHint().width()) << qPrintable(label->text());
        EXPECT_TRUE(panel->head()->rect().contains(label->geometry()));
    }
}

TEST_P(PlaylistLooks, TheCursorOfTheKeyboardIsSeen)
{
    open();
    fill();
    panel->setKeyboardUsed(true);
    panel->list()->setFocus();
    panel->list()->setCurrentIndex(row(4));
    QApplication::processEvents();
    const QImage without = grab(*panel, "playlist_plain");
    EXPECT_EQ(count(without, placeOf(row(4)), Look::AccentHover), 0);
    QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    EXPECT_TRUE(panel->handleKey(&down));
    const QImage image = grab(*panel, "playlist_cursor");
    EXPECT_GT(count(image, placeOf(row(5)), Look::AccentHover), Look::px(300));
}

TEST_P(PlaylistLooks, EmptyItInvites)
{
    open();
    const QImage image = grab(*panel, "playlist_empty");
    EXPECT_GT(count(image, image.rect(), Look::Text), 40);
}

TEST_P(PlaylistLooks, AWallOfTiles)
{
    open();
    fill();
    panel->setGrid(true);
    panel->queue()->playRow(row(1));
    panel->beginSource("D");
    panel->slot_setPlayStatus(QPlayer::QPlayerStatus_Paused);
    panel->list()->setCurrentIndex(row(2));
    QApplication::processEvents();
    const QImage image = grab(*panel, "playlist_tiles");
    const QRect first = panel->grid()->visualRect(row(0));
    const QRect second = panel->grid()->visualRect(row(1));
    EXPECT_EQ(first.top(), second.top());
    EXPECT_LE(second.right(), panel->grid()->viewport()->width());
    EXPECT_GT(count(image, image.rect(), Look::AccentHover), 40);
}

TEST_P(PlaylistLooks, WithoutBlendingNothingIsTranslucent)
{
    panel->setCompact(true);
    panel->open();
    fill();
    const QImage image = grab(*panel, "playlist_compact");
    const QPoint inside = QPoint(Look::px(24 + 180), Look::px(24 + 500));
    EXPECT_EQ(image.pixelColor(inside), Look::color(Look::Panel));
}

TEST_P(PlaylistLooks, TheTabAtRestAndUnderThePointer)
{
    NormalPlaylistSwitch tab;
    tab.setWindowFlag(Qt::FramelessWindowHint);
    tab.setAttribute(Qt::WA_TranslucentBackground);
    tab.resize(tab.sizeHint());
    tab.appear();
    grab(tab, "playlist_tab");
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&tab, &enter);
    ASSERT_EVENTUALLY(qFuzzyCompare(tab.warmth(), 1.0));
    const QImage image = grab(tab, "playlist_tab_hover");
    EXPECT_GT(count(image, image.rect(), Look::ControlBright), 4);
}

INSTANTIATE_TEST_SUITE_P(Scales, PlaylistLooks, testing::Values(100, 150, 200));
