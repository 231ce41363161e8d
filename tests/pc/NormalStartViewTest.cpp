// The start page: what it answers, how the keyboard gets around it, and how it looks. With QUORIN_LOOK_DIR
// set the pictures are kept there for the eye.
#include "start/NormalStartView.h"

#include "start/PosterView.h"
#include "start/RecentCard.h"
#include "start/StartButton.h"
#include "ui/FocusRing.h"

#include "core/ApplicationInfoManager.h"
#include "ui/LookTokens.h"
#include "ui/StyleLoader.h"
#include "ui/StyleSheetScaler.h"

#include "support/Eventually.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QPainter>
#include <QResource>
#include <QScrollArea>
#include <QScrollBar>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

QByteArray artwork(int number)
{
    QImage image(224, 126, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const int hue = number * 67 % 360;
    painter.fillRect(image.rect(), QColor::fromHsv(hue, 130, 60));
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 4; ++i) {
        painter.setBrush(QColor::fromHsv((hue + 25 * i) % 360, 150, 130 + 20 * i, 170));
        painter.drawEllipse(QPointF((number * 53 + i * 71) % 224, (number * 31 + i * 47) % 126), 30 + 12 * i,
                            30 + 12 * i);
    }
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QVector<RecentFiles::Entry> recentFiles(int count)
{
    const QVector<RecentFiles::Entry> some{
        {"Northern Line (2021).mkv", "/media/films/Northern Line (2021)/Northern Line (2021).mkv",
         RecentFiles::File, 2530, artwork(1)},
        {"A Year of Small Rain - The Very Long Director's Cut of the Second Season.mkv",
         "/media/films/a folder with a rather long name/and another one below it/A Year of Small Rain.mkv",
         RecentFiles::File, 65, artwork(2)},
        {"THE_GLASS_HARBOUR", "D", RecentFiles::Disc, 0, {}},
        {"Paper Astronauts", "/media/discs/Paper Astronauts", RecentFiles::Folder, 0, {}},
        {"Seven Quiet Rivers.flac", "/music/Seven Quiet Rivers.flac", RecentFiles::File, 0, {}},
        {"Meridian.mp4", "/media/films/Meridian.mp4", RecentFiles::File, 7000, artwork(3)},
        {"gone.mkv", "/net/gone.mkv", RecentFiles::File, 300, artwork(4)},
        {"Old Salt Road.iso", "/media/discs/Old Salt Road.iso", RecentFiles::File, 0, {}},
    };
    QVector<RecentFiles::Entry> entries;
    for (int i = 0; i < count; ++i) {
        RecentFiles::Entry entry = some.at(i % some.size());
        if (i >= some.size() && entry.path.size() > 1)
            entry.path.prepend(QStringLiteral("/%1").arg(i));
        entries << entry;
    }
    return entries;
}

class NormalStartViewTest : public testing::Test {
protected:
    static QString resourceFile()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/../bin/quorin6.rcc");
    }
    static void SetUpTestSuite() { ASSERT_TRUE(QResource::registerResource(resourceFile())); }
    static void TearDownTestSuite() { QResource::unregisterResource(resourceFile()); }
    void TearDown() override { ApplicationInfoManager::instance()->setScreenDpi(96); }

    // The page as the only content of a window.
    void open(const QSize &size, int recentCount, int scale = 1)
    {
        ApplicationInfoManager::instance()->setScreenDpi(96 * scale);
        QFile sheet(QLatin1String(StyleLoader::kCssPrefix) + QStringLiteral("pcstyle.css"));
        ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
        m_view = std::make_unique<NormalStartView>([](const QString &path) { return !path.contains("gone"); },
                                                   nullptr);
        m_view->setStyleSheet(StyleSheetScaler::scaled(QString::fromUtf8(sheet.readAll()), float(scale)));
        m_view->resize(size * scale);
        QSignalSpy poster(m_view->poster(), &PosterView::posterChanged);
        m_view->setRecent(recentFiles(recentCount));
        m_view->show();
        QApplication::setActiveWindow(m_view.get());
        ASSERT_EVENTUALLY(poster.size() == 1);
        if (recentCount > 6) {
            ASSERT_EVENTUALLY(m_view->cards().at(6)->isMissing());
        }
    }
    [[nodiscard]] RecentCard *card(int index) const { return m_view->cards().at(index); }
    [[nodiscard]] StartButton *button(const char *name) const
    {
        return m_view->findChild<StartButton *>(QLatin1String(name));
    }
    void key(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
    // Whether the window has given a control the keyboard by then depends on the window system.
    void firstTab()
    {
        QWidget *now = QApplication::focusWidget();
        QTest::keyClick(now != nullptr ? now : m_view.get(), Qt::Key_Tab);
    }
    void keep(const char *name) const
    {
        const QString folder = qEnvironmentVariable("QUORIN_LOOK_DIR");
        if (folder.isEmpty())
            return;
        QDir().mkpath(folder);
        EXPECT_TRUE(m_view->grab().save(QStringLiteral("%1/start_%2.png").arg(folder, QLatin1String(name))));
    }
    // Nothing is cut off and nothing overlaps.
    void expectRoom() const
    {
        QVector<QWidget *> parts{button("primaryButton")};
        if (!m_view->cards().isEmpty())
            parts << button("startClear") << m_view->findChild<QScrollArea *>();
        for (QWidget *part : qAsConst(parts)) {
            EXPECT_TRUE(m_view->rect().contains(part->geometry())) << qPrintable(part->objectName());
            EXPECT_TRUE(part->isVisible());
            for (QWidget *other : qAsConst(parts))
                EXPECT_TRUE(part == other || !part->geometry().intersects(other->geometry()));
        }
        EXPECT_GE(button("primaryButton")->width(), button("primaryButton")->sizeHint().width());
        for (const RecentCard *each : m_view->cards())
            EXPECT_TRUE(each->parentWidget()->rect().contains(each->geometry()));
    }

    std::unique_ptr<NormalStartView> m_view;
};

} // namespace

TEST_F(NormalStartViewTest, ButtonAsksForMedia)
{
    open({1024, 536}, 0);
    QSignalSpy spy(m_view.get(), &NormalStartView::openMediaClicked);
    QTest::mouseClick(button("primaryButton"), Qt::LeftButton);
    EXPECT_EQ(spy.size(), 1);
    EXPECT_FALSE(button("startClear")->isVisible());
}

TEST_F(NormalStartViewTest, CardAsksForItsPath)
{
    open({1024, 536}, 4);
    QSignalSpy spy(m_view.get(), &NormalStartView::recentClicked);
    QTest::mouseClick(card(2), Qt::LeftButton);
    ASSERT_EQ(spy.size(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), "D");
}

TEST_F(NormalStartViewTest, ListMayBeReplacedByTheClickThatUsesIt)
{
    open({1024, 536}, 4);
    QObject::connect(m_view.get(), &NormalStartView::recentClicked, m_view.get(),
                     [this] { m_view->setRecent(recentFiles(2)); });
    QTest::mouseClick(card(1), Qt::LeftButton);
    EXPECT_EQ(m_view->cards().size(), 2);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(m_view->findChildren<RecentCard *>().size(), 2);
}

TEST_F(NormalStartViewTest, ClearIsOfferedOnlyWhereThereIsSomething)
{
    open({1024, 536}, 3);
    QSignalSpy spy(m_view.get(), &NormalStartView::recentCleared);
    QTest::mouseClick(button("startClear"), Qt::LeftButton);
    EXPECT_EQ(spy.size(), 1);
    m_view->setRecent({});
    EXPECT_FALSE(button("startClear")->isVisible());
    EXPECT_FALSE(m_view->findChild<QScrollArea *>()->isVisible());
}

TEST_F(NormalStartViewTest, KeyboardReachesEverythingInOrder)
{
    open({1024, 536}, 3);
    QVector<QWidget *> wanted{button("primaryButton"), button("startClear"), card(0), card(1), card(2)};
    firstTab();
    for (QWidget *part : qAsConst(wanted)) {
        EXPECT_EQ(QApplication::focusWidget(), part);
        EXPECT_TRUE(FocusRing::isOn(part));
        EXPECT_FALSE(part->accessibleName().isEmpty() && qobject_cast<QPushButton *>(part)->text().isEmpty());
        key(Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), wanted.first());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), wanted.last());
}

TEST_F(NormalStartViewTest, EnterOpensWhatHasTheCursor)
{
    open({1024, 536}, 3);
    QSignalSpy media(m_view.get(), &NormalStartView::openMediaClicked);
    QSignalSpy recent(m_view.get(), &NormalStartView::recentClicked);
    QSignalSpy cleared(m_view.get(), &NormalStartView::recentCleared);
    firstTab();
    ASSERT_EQ(QApplication::focusWidget(), button("primaryButton"));
    key(Qt::Key_Return);
    EXPECT_EQ(media.size(), 1);
    key(Qt::Key_Tab);
    key(Qt::Key_Enter);
    EXPECT_EQ(cleared.size(), 1);
    key(Qt::Key_Tab);
    key(Qt::Key_Return);
    ASSERT_EQ(recent.size(), 1);
    EXPECT_EQ(recent.at(0).at(0).toString(), card(0)->entry().path);
}

TEST_F(NormalStartViewTest, KeysBelongToTheWindowUntilTheCursorIsSeen)
{
    open({1024, 536}, 3);
    QSignalSpy media(m_view.get(), &NormalStartView::openMediaClicked);
    m_view->window()->setProperty(FocusRing::Property, false);
    button("primaryButton")->setFocus(Qt::ActiveWindowFocusReason);
    for (const Qt::Key each : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Left}) {
        QKeyEvent event(QEvent::KeyPress, each, Qt::NoModifier);
        event.accept();
        QApplication::sendEvent(button("primaryButton"), &event);
        EXPECT_FALSE(event.isAccepted()) << each;
    }
    EXPECT_TRUE(media.isEmpty());
    // With Alt they stay the window's for good.
    button("primaryButton")->setFocus(Qt::TabFocusReason);
    m_view->window()->setProperty(FocusRing::Property, true);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::AltModifier);
    QApplication::sendEvent(button("primaryButton"), &event);
    EXPECT_FALSE(event.isAccepted());
    EXPECT_TRUE(media.isEmpty());
}

TEST_F(NormalStartViewTest, ArrowsMoveByRowsAndColumns)
{
    open({1024, 536}, 8);
    card(0)->setFocus(Qt::TabFocusReason);
    struct Step {
        Qt::Key key;
        int index;
    };
    for (const Step &step :
         {Step{Qt::Key_Left, 0}, Step{Qt::Key_Right, 1}, Step{Qt::Key_Down, 5}, Step{Qt::Key_Down, 5},
          Step{Qt::Key_Right, 6}, Step{Qt::Key_Up, 2}, Step{Qt::Key_Up, 2}, Step{Qt::Key_Left, 1}}) {
        key(step.key);
        EXPECT_EQ(QApplication::focusWidget(), card(step.index)) << step.index;
    }
}

TEST_F(NormalStartViewTest, CursorIsScrolledIntoView)
{
    open({480, 230}, 24);
    auto *wall = m_view->findChild<QScrollArea *>();
    EXPECT_EQ(wall->verticalScrollBar()->value(), 0);
    card(23)->setFocus(Qt::TabFocusReason);
    EXPECT_GT(wall->verticalScrollBar()->value(), 0);
    const QRect place(card(23)->mapTo(wall, QPoint(0, 0)), card(23)->size());
    EXPECT_TRUE(wall->rect().contains(place));
}

TEST_F(NormalStartViewTest, MouseTakesTheCursorsFrameAway)
{
    open({1024, 536}, 3);
    card(0)->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(FocusRing::isOn(card(0)));
    QTest::mousePress(card(1), Qt::LeftButton);
    EXPECT_FALSE(FocusRing::isOn(card(0)));
    EXPECT_FALSE(FocusRing::isOn(card(1)));
}

TEST_F(NormalStartViewTest, SourceThatIsGoneIsDimmedAndSaysSo)
{
    open({1024, 536}, 8);
    const QVector<RecentCard *> cards = m_view->cards();
    for (const RecentCard *each : cards)
        EXPECT_EQ(each->isMissing(), each->entry().name == "gone.mkv") << qPrintable(each->entry().name);
    EXPECT_TRUE(card(6)->accessibleDescription().contains("Not found"));
    EXPECT_EQ(card(6)->folderText(), "Not found");
}

TEST_F(NormalStartViewTest, FolderThatDoesNotAnswerDoesNotHoldThePageUp)
{
    QSemaphore gate;
    NormalStartView view(
        [&gate](const QString &) {
            gate.acquire();
            return false;
        },
        nullptr);
    view.resize(1024, 536);
    view.setRecent(recentFiles(3));
    view.show();
    EXPECT_FALSE(view.grab().isNull());
    EXPECT_FALSE(view.cards().at(0)->isMissing());
    gate.release(3);
    ASSERT_EVENTUALLY(view.cards().at(0)->isMissing());
}

TEST_F(NormalStartViewTest, BrokenPictureGivesThePlaceholder)
{
    open({1024, 536}, 0);
    QVector<RecentFiles::Entry> entries = recentFiles(1);
    entries[0].picture = "no picture";
    m_view->setRecent(entries);
    EXPECT_FALSE(m_view->grab().isNull());
    entries[0].picture.clear();
    const QImage broken = card(0)->grab().toImage();
    m_view->setRecent(entries);
    EXPECT_EQ(card(0)->grab().toImage(), broken);
}

TEST_F(NormalStartViewTest, CardsTellFolderAndKind)
{
    open({1024, 536}, 8);
    EXPECT_EQ(card(0)->folderText(), QDir::toNativeSeparators("/media/films/Northern Line (2021)"));
    EXPECT_EQ(card(0)->typeText(), "MKV");
    EXPECT_EQ(card(2)->folderText(), "D:");
    EXPECT_EQ(card(2)->typeText(), "");
    EXPECT_EQ(card(3)->typeText(), "");
    EXPECT_TRUE(card(0)->accessibleDescription().contains("00:42:10"));
    RecentFiles::Entry root;
    root.path = "/film.mkv";
    root.name = "film.mkv";
    EXPECT_EQ(RecentCard(root).folderText(), QDir::toNativeSeparators("/"));
}

TEST_F(NormalStartViewTest, DropIsShownOverEverythingAndGoesAway)
{
    open({1024, 536}, 8);
    const QImage before = m_view->grab().toImage();
    m_view->setDropping(true);
    EXPECT_TRUE(m_view->isDropping());
    EXPECT_NE(m_view->grab().toImage(), before);
    m_view->setDropping(true);
    m_view->setDropping(false);
    EXPECT_FALSE(m_view->isDropping());
    EXPECT_EQ(m_view->grab().toImage(), before);
}

TEST_F(NormalStartViewTest, PosterReachesThePicture)
{
    open({1024, 536}, 0);
    QImage white(64, 36, QImage::Format_RGB32);
    white.fill(Qt::white);
    m_view->setPoster(white, false);
    EXPECT_FALSE(m_view->poster()->isDefault());
    m_view->poster()->setOpacityProgress(0.0);
    EXPECT_EQ(m_view->grab().toImage().pixelColor(5, 5), QColor(Qt::white));
}

// ---- how it looks

struct LookRow {
    const char *name;
    QSize size; // design pixels
    int recentCount;
    int scale;
};

class NormalStartViewLook : public NormalStartViewTest, public testing::WithParamInterface<LookRow> {};

TEST_P(NormalStartViewLook, HasRoomForEverything)
{
    const LookRow row = GetParam();
    open(row.size, row.recentCount, row.scale);
    expectRoom();
    keep(row.name);
}

INSTANTIATE_TEST_SUITE_P(
    Pages, NormalStartViewLook,
    testing::Values(LookRow{"empty", {1024, 536}, 0, 1}, LookRow{"empty_small", {480, 230}, 0, 1},
                    LookRow{"usual", {1024, 536}, 8, 1}, LookRow{"usual_2x", {1024, 536}, 8, 2},
                    LookRow{"many", {1024, 536}, 24, 1}, LookRow{"small", {480, 230}, 8, 1},
                    LookRow{"small_2x", {480, 230}, 8, 2}, LookRow{"narrow", {600, 800}, 8, 1},
                    LookRow{"large", {1920, 1040}, 24, 1}, LookRow{"uhd", {3840, 2120}, 24, 1},
                    LookRow{"uhd_2x", {1920, 1060}, 12, 2}));

TEST_F(NormalStartViewTest, LookOfACardWithTheCursorAndOfADrop)
{
    open({1024, 536}, 8);
    card(1)->setFocus(Qt::TabFocusReason);
    const QPoint corner = card(1)->mapTo(m_view.get(), QPoint(card(1)->width() / 2, 0));
    EXPECT_EQ(m_view->grab().toImage().pixel(corner), Look::AccentHover);
    keep("cursor");
    m_view->setDropping(true);
    keep("dropping");
    m_view->setDropping(false);
    QImage poster = QImage::fromData(artwork(7));
    m_view->setPoster(poster, false);
    keep("poster");
}
