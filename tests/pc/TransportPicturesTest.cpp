// The transport controls as they look: the pictures are drawn over a frame at several scales and checked at
// the points that matter. With QUORIN_PICTURES set to a folder they are written there, to be looked at.
#include "FakeCommands.h"
#include "MouseMoves.h"
#include "TestSettings.h"

#include "overlays/NormalMetaView.h"
#include "overlays/NormalTipLabel.h"
#include "transport/NormalOperateBar.h"
#include "transport/NormalPlaySpeedBar.h"
#include "transport/NormalProgressBar.h"
#include "transport/TransportButton.h"
#include "ui/FocusRing.h"

#include "core/ApplicationInfoManager.h"
#include "core/SettingsKeys.h"
#include "ui/LookTokens.h"
#include "ui/TransportIcons.h"

#include "support/Eventually.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QResource>
#include <QTest>

#include <gtest/gtest.h>

namespace {

constexpr int kWidth = 1280;
constexpr int kHeight = 720;

class TransportPictures : public testing::TestWithParam<int> {
protected:
    static void SetUpTestSuite() { ASSERT_TRUE(QResource::registerResource(resourceFile())); }
    static void TearDownTestSuite() { QResource::unregisterResource(resourceFile()); }
    static QString resourceFile()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
    }
    void SetUp() override { ApplicationInfoManager::instance()->setScreenDpi(96 * GetParam() / 100); }
    void TearDown() override { ApplicationInfoManager::instance()->setScreenDpi(96); }

    [[nodiscard]] static int scaled(int design) { return design * GetParam() / 100; }
    [[nodiscard]] static QImage frame()
    {
        QImage image(scaled(kWidth), scaled(kHeight), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        QLinearGradient sky(0, 0, image.width(), image.height());
        sky.setColorAt(0, QColor(0x2f, 0x4f, 0x5f));
        sky.setColorAt(0.5, QColor(0xd8, 0xa0, 0x60));
        sky.setColorAt(1, QColor(0xf4, 0xea, 0xd8));
        painter.fillRect(image.rect(), sky);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(30, 60, 40, 200));
        painter.drawEllipse(QPointF(image.width() * 0.3, image.height()), image.width() * 0.35,
                            image.height() * 0.5);
        return image;
    }
    static void put(QImage &image, QWidget &widget, QPoint at)
    {
        QPainter painter(&image);
        widget.render(&painter, at, QRegion(), QWidget::DrawChildren);
    }
    static void keep(const QImage &image, const QString &name)
    {
        const QString folder = qEnvironmentVariable("QUORIN_PICTURES");
        if (!folder.isEmpty()) {
            EXPECT_TRUE(
                image.save(QDir(folder).filePath(QStringLiteral("%1_%2.png").arg(name).arg(GetParam()))));
        }
    }
    void playing(NormalOperateBar &bar)
    {
        bar.resize(scaled(kWidth), bar.sizeHint().height());
        bar.show();
        bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
        bar.slot_setTimeInfo(2883, 7581);
        bar.setChapterMarks({0, 1060, 2350, 4320, 5990});
        bar.slot_moveVolumnSlider(64);
    }

    FakeCommands player;
    TestSettings settings;
};

} // namespace

TEST_P(TransportPictures, Playing)
{
    NormalOperateBar bar(player.commands(), *settings);
    playing(bar);
    QImage image = frame();
    const int top = image.height() - bar.height();
    put(image, bar, QPoint(0, top));

    // The time line: accent up to the position, and the shade that lets the picture through above it.
    const SeekTrack track = bar.progressBar()->track();
    const QPoint origin = QPoint(0, top) + bar.progressBar()->pos();
    const int y = origin.y() + qFloor(track.groove().center().y());
    EXPECT_EQ(image.pixel(origin.x() + qRound(track.xOf(500)), y), Look::Accent);
    EXPECT_NE(image.pixel(origin.x() + qRound(track.xOf(6500)), y), Look::Accent);
    EXPECT_EQ(image.pixel(scaled(600), top), frame().pixel(scaled(600), top));
    EXPECT_LT(qGray(image.pixel(scaled(600), image.height() - 2)), 40);
    // The pause mark is there.
    const QPoint pause = QPoint(0, top) + bar.button(NormalOperateBar::Button::Pause)->geometry().center();
    EXPECT_GT(qGray(image.pixel(pause.x() - scaled(4), pause.y())), 150);
    keep(image, QStringLiteral("playing"));
}

TEST_P(TransportPictures, HoverAndKeyboard)
{
    NormalOperateBar bar(player.commands(), *settings);
    playing(bar);
    NormalProgressBar *progress = bar.progressBar();
    QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(progress, &enter);
    moveMouse(progress, QPoint(progress->width() / 2, scaled(12)));
    bar.setProperty(FocusRing::Property, true);
    bar.button(NormalOperateBar::Button::Fast)->setFocus();
    bar.button(NormalOperateBar::Button::Playlist)->setChecked(true);
    const auto picture = [&] {
        QImage image = frame();
        put(image, bar, QPoint(0, image.height() - bar.height()));
        return image;
    };
    const SeekTrack track = progress->track();
    const QPoint played(progress->x() + qRound(track.xOf(500)),
                        scaled(kHeight) - bar.height() + progress->y() + qFloor(track.groove().center().y()));
    ASSERT_EVENTUALLY(picture().pixel(played) == Look::AccentHover); // it warms up under the pointer
    const QImage image = picture();
    keep(image, QStringLiteral("hover"));
    const QImage rested = [&] {
        bar.setProperty(FocusRing::Property, false);
        return picture();
    }();
    EXPECT_NE(image, rested);
}

TEST_P(TransportPictures, Idle)
{
    NormalOperateBar bar(player.commands(), *settings);
    bar.resize(scaled(kWidth), bar.sizeHint().height());
    bar.show();
    QImage image = frame();
    put(image, bar, QPoint(0, image.height() - bar.height()));
    const QPoint play = QPoint(0, image.height() - bar.height())
                        + bar.button(NormalOperateBar::Button::Play)->geometry().center();
    EXPECT_LT(qGray(image.pixel(play)), 130);
    keep(image, QStringLiteral("idle"));
}

TEST_P(TransportPictures, CompactWithNotes)
{
    settings->setValue(SettingsKeys::PC_ShowMeta, true);
    NormalOperateBar bar(player.commands(), *settings);
    playing(bar);
    bar.setCompact(true);
    QImage image = frame();
    const int top = image.height() - bar.height();
    {
        QImage panel(bar.size(), QImage::Format_ARGB32_Premultiplied);
        panel.fill(Qt::transparent);
        put(panel, bar, QPoint());
        QPainter painter(&image);
        painter.setClipPath(bar.opaqueShape().translated(0, top));
        painter.drawImage(0, top, panel);
    }
    // Outside its shape nothing of it is seen.
    EXPECT_EQ(image.pixel(2, image.height() - 2), frame().pixel(2, image.height() - 2));
    EXPECT_EQ(image.pixel(scaled(700), image.height() - scaled(10)), Look::Panel);
    keep(image, QStringLiteral("compact"));
}

TEST_P(TransportPictures, Notes)
{
    settings->setValue(SettingsKeys::PC_ShowMeta, true);
    QImage image = frame();
    NormalTipLabel tip(*settings);
    tip.setSpeedText([] { return QStringLiteral("4"); });
    tip.showTip(NormalTipLabel::FastForward);
    put(image, tip, QPoint(scaled(24), scaled(24)));

    NormalPlaySpeedBar speed(player.commands());
    speed.slot_updateSpeed(QPlayer::QPlayerStatus_Rewind);
    speed.resize(speed.sizeHint());
    put(image, speed, QPoint(scaled(24), scaled(90)));

    NormalMetaView meta(*settings);
    meta.setDisplayName(QStringLiteral("Northern Line (2021).mkv"));
    meta.slot_setMetaInfo(QPlayer::QPlayerMetaType_Video, QStringLiteral("HEVC 3840*2160 | HDR->SDR"));
    meta.slot_setMetaInfo(QPlayer::QPlayerMetaType_Audio, QStringLiteral("English, TrueHD 7.1"));
    meta.slot_setMetaInfo(QPlayer::QPlayerMetaType_Subtitle, QStringLiteral("English (SRT)"));
    meta.slot_setMetaInfo(QPlayer::QPlayerMetaType_Chapter, QStringLiteral("2 / 5"));
    meta.slot_setMetaInfo(QPlayer::QPlayerMetaType_Time, QStringLiteral("00:48:03 / 02:06:21"));
    meta.resize(meta.sizeHint());
    put(image, meta, QPoint(scaled(24), scaled(160)));
    EXPECT_NE(image, frame());
    keep(image, QStringLiteral("notes"));
}

TEST_P(TransportPictures, EveryIconIsThereInTheSizeItIsAskedFor)
{
    for (const char *name :
         {"transport_play", "transport_pause", "transport_stop", "transport_rewind", "transport_forward",
          "transport_previous", "transport_next", "transport_frame_back", "transport_frame_next",
          "transport_volume", "transport_mute", "transport_cube", "transport_3d", "transport_preview",
          "transport_playlist", "transport_full", "transport_unfull", "transport_close"}) {
        const QPixmap icon = TransportIcons::pixmap(QLatin1String(name), scaled(20), Qt::red);
        ASSERT_FALSE(icon.isNull()) << name;
        EXPECT_EQ(icon.size(), QSize(scaled(20), scaled(20))) << name;
        const QImage image = icon.toImage();
        bool drawn = false;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                drawn = drawn || qAlpha(image.pixel(x, y)) > 200;
        }
        EXPECT_TRUE(drawn) << name;
    }
    EXPECT_TRUE(TransportIcons::pixmap(QStringLiteral("no such icon"), 20, Qt::red).isNull());
}

INSTANTIATE_TEST_SUITE_P(Scales, TransportPictures, testing::Values(100, 150, 200),
                         [](const auto &scale) { return "Percent" + std::to_string(scale.param); });
