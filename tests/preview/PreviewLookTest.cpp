// Draws strip and pop-up at the scales of the usual displays: nothing may be cut off or pressed together.
// With QUORIN_LOOK_DIR set the pictures are kept there for the eye.
#include "ScriptedSource.h"

#include "core/ApplicationInfoManager.h"
#include "dialogs/DialogSlider.h"
#include "preview/NormalPreviewPopView.h"
#include "preview/NormalPreviewView.h"
#include "preview/PreviewFetcher.h"
#include "support/Eventually.h"
#include "transport/TransportButton.h"
#include "ui/LookTokens.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QResource>
#include <QStandardItemModel>

#include <cmath>

#include <gtest/gtest.h>

namespace {

QImage film(int positionMs, const QSize &size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    const int hue = positionMs / 1000 * 7 % 360;
    QLinearGradient sky(0, 0, size.width(), size.height());
    sky.setColorAt(0, QColor::fromHsv(hue, 190, 70));
    sky.setColorAt(0.6, QColor::fromHsv((hue + 30) % 360, 150, 160));
    sky.setColorAt(1, QColor::fromHsv((hue + 60) % 360, 120, 60));
    painter.fillRect(image.rect(), sky);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(240, 200, 140, 200));
    painter.drawEllipse(
        QPointF(size.width() * (0.3 + 0.4 * std::abs(std::sin(positionMs / 9000.0))), size.height() * 0.4),
        size.height() * 0.16, size.height() * 0.16);
    painter.setBrush(QColor(20, 26, 36, 220));
    painter.drawEllipse(QPointF(size.width() * 0.2, size.height() * 1.1), size.width() * 0.5,
                        size.height() * 0.35);
    painter.drawEllipse(QPointF(size.width() * 0.9, size.height() * 1.15), size.width() * 0.4,
                        size.height() * 0.5);
    return image;
}

class PreviewLookTest : public testing::TestWithParam<int> {
protected:
    void SetUp() override
    {
        ApplicationInfoManager::instance()->setScreenDpi(GetParam());
        const QString resources = QApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
        if (QFile::exists(resources))
            QResource::registerResource(resources);
        source->setAnswer([](int position) {
            return position == 715000 ? PreviewPicture{}
                                      : PreviewPicture{film(position, {324, 182}), position};
        });
        window.resize(Look::px(1280), Look::px(720));
        window.show();
        fetcher.setSource(QStringLiteral("/films/a.mkv"));
    }
    void TearDown() override { ApplicationInfoManager::instance()->setScreenDpi(96); }

    static void keep(QWidget &widget, const QString &name)
    {
        const QString folder = qEnvironmentVariable("QUORIN_LOOK_DIR");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        const int around = Look::px(24);
        QImage image(widget.size() + QSize(2 * around, 2 * around), QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        painter.drawImage(image.rect(), film(40000, {640, 360}));
        widget.render(&painter, QPoint(around, around), {}, QWidget::DrawChildren);
        painter.end();
        image.save(QStringLiteral("%1/%2_%3.png").arg(folder, name).arg(GetParam()));
    }

    // The strip, filled and at rest.
    void open(NormalPreviewView &view, int total)
    {
        view.setPlayingSecond(70);
        view.open(total);
        view.resize(view.sizeHint());
        view.animate(QStringLiteral("animate"))->setCurrentTime(Look::FadeInMs);
        ASSERT_EVENTUALLY(view.state() == NormalPreviewView::State::Filled);
        QApplication::processEvents();
    }

    // Every part that is seen has the room it asks for, stands inside and covers no other.
    static void expectRoom(const NormalPreviewView &view)
    {
        QVector<QRect> places;
        for (const QWidget *part : view.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (!part->isVisible())
                continue;
            EXPECT_TRUE(view.rect().contains(part->geometry())) << qPrintable(part->accessibleName());
            if (const auto *label = qobject_cast<const QLabel *>(part)) {
                EXPECT_GE(label->width(), label->sizeHint().width()) << qPrintable(label->text());
            }
            for (const QRect &other : qAsConst(places))
                EXPECT_FALSE(other.intersects(part->geometry()));
            places.append(part->geometry());
        }
        EXPECT_GE(places.size(), 6);
    }

    std::shared_ptr<ScriptedSource> source = std::make_shared<ScriptedSource>();
    QWidget window;
    PreviewFetcher fetcher{source};
};

} // namespace

TEST_P(PreviewLookTest, StripAtEachZoom)
{
    NormalPreviewView view(
        fetcher, [](double) {}, &window);
    open(view, 780);
    for (int zoom = 0; zoom <= PreviewPlan::ZoomMost; zoom += 3) {
        view.slot_changeZoom(zoom);
        QApplication::processEvents();
        expectRoom(view);
        keep(view, QStringLiteral("strip_zoom%1").arg(zoom));
    }
}

TEST_P(PreviewLookTest, StripUnderTheKeyboardsCursor)
{
    NormalPreviewView view(
        fetcher, [](double) {}, &window);
    open(view, 780);
    QKeyEvent right(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    EXPECT_TRUE(view.handleKey(&right));
    QApplication::processEvents();
    keep(view, QStringLiteral("strip_cursor"));
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    EXPECT_TRUE(view.handleKey(&tab));
    keep(view, QStringLiteral("strip_slider"));
    expectRoom(view);
}

TEST_P(PreviewLookTest, StripWhileItFills)
{
    NormalPreviewView view(
        fetcher, [](double) {}, &window);
    source->holdGrabs(true);
    view.open(780);
    view.resize(view.sizeHint());
    view.animate(QStringLiteral("animate"))->setCurrentTime(Look::FadeInMs);
    for (int row = 1; row <= 4; ++row) {
        ASSERT_TRUE(source->waitInsideGrab());
        source->letGo();
        ASSERT_EVENTUALLY(view.model()->rowCount() == row);
    }
    QApplication::processEvents();
    expectRoom(view);
    keep(view, QStringLiteral("strip_filling"));
    view.close();
}

TEST_P(PreviewLookTest, StripWithoutPictures)
{
    source->setOpensWell(false);
    NormalPreviewView view(
        fetcher, [](double) {}, &window);
    open(view, 780);
    expectRoom(view);
    keep(view, QStringLiteral("strip_nothing"));
}

TEST_P(PreviewLookTest, StripOnADisplayThatCannotBlend)
{
    NormalPreviewView view(
        fetcher, [](double) {}, &window);
    view.setCompact(true);
    open(view, 780);
    keep(view, QStringLiteral("strip_compact"));
    EXPECT_EQ(view.grab().toImage().pixelColor(view.width() / 2, 4).alpha(), 255);
}

TEST_P(PreviewLookTest, StripInANarrowWindow)
{
    window.resize(Look::px(480), Look::px(360));
    NormalPreviewView view(
        fetcher, [](double) {}, &window);
    open(view, 780);
    keep(view, QStringLiteral("strip_narrow"));
    EXPECT_LE(view.width(), window.width());
}

TEST_P(PreviewLookTest, PopUp)
{
    NormalPreviewPopView pop(&window);
    const QPoint at = window.mapToGlobal(QPoint(Look::px(600), Look::px(640)));
    pop.slot_showSeekView(QStringLiteral("01:02:37"), at);
    pop.showNoPicture(3757000);
    keep(pop, QStringLiteral("pop_time"));
    pop.showPicture(3757000, film(3757000, {324, 182}));
    EXPECT_TRUE(window.rect().contains(pop.geometry()));
    keep(pop, QStringLiteral("pop_picture"));
    pop.showPicture(3757000, film(3757000, {324, 135}));
    keep(pop, QStringLiteral("pop_wide"));
    pop.showPicture(3757000, film(3757000, {106, 188}));
    keep(pop, QStringLiteral("pop_upright"));
    pop.slot_showSeekView(QStringLiteral("01:12:37"), at);
    ASSERT_EVENTUALLY(!pop.hasPicture());
    keep(pop, QStringLiteral("pop_waiting"));
    pop.showPicture(4357000, film(4357000, {324, 182}));
    pop.setCompact(true);
    keep(pop, QStringLiteral("pop_compact"));
}

INSTANTIATE_TEST_SUITE_P(Scales, PreviewLookTest, testing::Values(96, 144, 192),
                         [](const auto &scale) { return std::to_string(scale.param); });
