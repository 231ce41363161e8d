#include "ui/OverlayHost.h"

#include "ui/OverlayWidget.h"

#include "support/Eventually.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class Card final : public OverlayWidget {
public:
    QSize wanted{120, 40};
    int shadeHeight{0};
    [[nodiscard]] QSize sizeHint() const override { return wanted; }
    [[nodiscard]] bool takesMouseAt(const QPoint &position) const override
    {
        return position.y() >= shadeHeight;
    }
};

class Picture final : public QWidget {
public:
    using QWidget::QWidget;
    QVector<QEvent::Type> events;
    QPoint lastPosition;

protected:
    bool event(QEvent *event) override
    {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
            lastPosition = static_cast<QMouseEvent *>(event)->pos();
            [[fallthrough]];
        case QEvent::ContextMenu:
            events << event->type();
            event->accept();
            return true;
        default:
            return QWidget::event(event);
        }
    }
};

class OverlayHosts : public testing::Test {
protected:
    void SetUp() override
    {
        area = new Picture(&window);
        window.setGeometry(100, 50, 800, 500);
        area->setGeometry(0, 40, 800, 460);
        host = new OverlayHost(&window, area);
        host->setCompositingQuery([this] { return blends; });
        card = new Card;
    }
    void TearDown() override { delete card.data(); }
    void showWindow()
    {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    [[nodiscard]] QPoint origin() const { return area->mapToGlobal(QPoint(0, 0)); }

    QWidget window;
    Picture *area{nullptr};
    OverlayHost *host{nullptr};
    QPointer<Card> card;
    bool blends{true};
    const OverlayRule bottomLeft{OverlayRule::Anchor::BottomLeft, QMargins(24, 0, 0, 16), 1};
};

} // namespace

TEST_F(OverlayHosts, MakesATranslucentToolWindowThatIsNeverActivated)
{
    host->add(card, bottomLeft);
    EXPECT_EQ(card->parent(), &window);
    EXPECT_TRUE(card->isWindow());
    EXPECT_EQ(card->windowFlags() & Qt::WindowType_Mask, Qt::Tool);
    EXPECT_TRUE(card->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_TRUE(card->windowFlags() & Qt::WindowDoesNotAcceptFocus);
    EXPECT_TRUE(card->testAttribute(Qt::WA_TranslucentBackground));
    EXPECT_TRUE(card->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(card->isVisible());
}

TEST_F(OverlayHosts, StandsAtItsAnchorAndFollowsMoveAndResize)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    ASSERT_TRUE(card->isVisible());
    EXPECT_EQ(card->geometry(), QRect(origin() + QPoint(24, 460 - 16 - 40), QSize(120, 40)));

    window.move(180, 90);
    ASSERT_EVENTUALLY(window.pos() == QPoint(180, 90));
    EXPECT_EQ(card->geometry().topLeft(), origin() + QPoint(24, 460 - 16 - 40));

    window.resize(900, 640);
    area->setGeometry(0, 0, 900, 640);
    ASSERT_EVENTUALLY(card->geometry().topLeft() == origin() + QPoint(24, 640 - 16 - 40));
}

TEST_F(OverlayHosts, TakesItsNewSizeWhenItsShapeChanges)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    card->wanted = QSize(300, 80);
    emit card->sig_shapeChanged();
    EXPECT_EQ(card->geometry(), QRect(origin() + QPoint(24, 460 - 16 - 80), QSize(300, 80)));
}

TEST_F(OverlayHosts, FadesInAndOut)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    EXPECT_LT(card->windowOpacity(), 1.0);
    ASSERT_EVENTUALLY(card->windowOpacity() == 1.0);
    card->disappear();
    EXPECT_TRUE(card->isVisible());
    EXPECT_FALSE(host->isShown(card));
    ASSERT_EVENTUALLY(!card->isVisible());
}

TEST_F(OverlayHosts, AFadeThatTurnsRoundGoesOnFromWhereItIs)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    ASSERT_EVENTUALLY(card->windowOpacity() == 1.0);
    card->disappear();
    ASSERT_EVENTUALLY(card->windowOpacity() < 0.8);
    const double before = card->windowOpacity();
    card->appear();
    EXPECT_GE(card->windowOpacity(), before - 0.05);
    EXPECT_TRUE(card->isVisible());
    ASSERT_EVENTUALLY(card->windowOpacity() == 1.0);
    EXPECT_TRUE(card->isVisible());
}

TEST_F(OverlayHosts, WithoutCompositorItIsCutToItsShapeAndDoesNotFade)
{
    blends = false;
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    EXPECT_TRUE(card->isCompact());
    EXPECT_EQ(card->windowOpacity(), 1.0);
    ASSERT_FALSE(card->mask().isEmpty());
    EXPECT_FALSE(card->mask().contains(QPoint(0, 0)));
    EXPECT_TRUE(card->mask().contains(QPoint(60, 20)));
    card->disappear();
    EXPECT_FALSE(card->isVisible());
}

TEST_F(OverlayHosts, ACompositorThatStartsIsNoticedAtTheNextShow)
{
    blends = false;
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    card->disappear();
    blends = true;
    card->appear();
    EXPECT_TRUE(host->isBlending());
    EXPECT_FALSE(card->isCompact());
    EXPECT_TRUE(card->mask().isEmpty());
}

TEST_F(OverlayHosts, AHiddenWindowHidesOverlaysAndBringsThemBack)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    window.hide();
    EXPECT_FALSE(card->isVisible());
    EXPECT_TRUE(host->isShown(card));
    window.show();
    EXPECT_TRUE(card->isVisible());
    EXPECT_EQ(card->windowOpacity(), 1.0);
}

TEST_F(OverlayHosts, AMinimisedWindowHidesOverlaysAndBringsThemBack)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    window.showMinimized();
    ASSERT_EVENTUALLY(!card->isVisible());
    EXPECT_TRUE(host->isShown(card));
    window.showNormal();
    ASSERT_EVENTUALLY(card->isVisible());
}

TEST_F(OverlayHosts, APictureThatIsNotShownHasNoOverlays)
{
    showWindow();
    host->add(card, bottomLeft);
    area->hide();
    card->appear();
    EXPECT_FALSE(card->isVisible());
    area->show();
    EXPECT_TRUE(card->isVisible());
}

TEST_F(OverlayHosts, ShownBeforeItsWindowItComesWithIt)
{
    host->add(card, bottomLeft);
    card->appear();
    EXPECT_FALSE(card->isVisible());
    showWindow();
    EXPECT_TRUE(card->isVisible());
}

TEST_F(OverlayHosts, HideAllIsAtOnceAndForgetsTheWish)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    host->hideAll();
    EXPECT_FALSE(card->isVisible());
    EXPECT_FALSE(host->isShown(card));
    EXPECT_FALSE(card->isWanted());
    window.hide();
    window.show();
    EXPECT_FALSE(card->isVisible());
}

TEST_F(OverlayHosts, AFreeOverlayKeepsThePlaceItGaveItself)
{
    showWindow();
    auto *free = new QLabel(QStringLiteral("free"));
    host->add(free, {OverlayRule::Anchor::Free, QMargins(), 5});
    free->setGeometry(333, 222, 50, 20);
    host->show(free);
    EXPECT_EQ(free->geometry(), QRect(333, 222, 50, 20));
    EXPECT_TRUE(host->covers(QPoint(340, 230)));
    EXPECT_FALSE(host->covers(QPoint(10, 10)));
}

TEST_F(OverlayHosts, ClicksOnTheShadeGoToThePicture)
{
    showWindow();
    card->wanted = QSize(200, 100);
    card->shadeHeight = 60;
    host->add(card, bottomLeft);
    card->appear();
    QTest::mouseClick(card, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    EXPECT_EQ(area->events, QVector<QEvent::Type>({QEvent::MouseButtonPress, QEvent::MouseButtonRelease}));
    EXPECT_EQ(area->lastPosition, area->mapFromGlobal(card->mapToGlobal(QPoint(10, 10))));
    area->events.clear();
    QTest::mouseClick(card, Qt::LeftButton, Qt::NoModifier, QPoint(10, 80));
    EXPECT_TRUE(area->events.isEmpty());
    QTest::mouseDClick(card, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
    EXPECT_TRUE(area->events.contains(QEvent::MouseButtonDblClick));
}

TEST_F(OverlayHosts, MovesWithoutAButtonAreNotSeenTwice)
{
    showWindow();
    card->shadeHeight = 40;
    host->add(card, bottomLeft);
    card->appear();
    QTest::mouseMove(card, QPoint(10, 10));
    QTest::mouseMove(card, QPoint(12, 10));
    EXPECT_FALSE(area->events.contains(QEvent::MouseMove));
}

TEST_F(OverlayHosts, ADeletedOverlayIsForgotten)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    delete card;
    host->updatePlaces();
    window.resize(500, 400);
    EXPECT_FALSE(host->covers(QPoint(150, 400)));
}

TEST_F(OverlayHosts, ADeletedHostLeavesTheOverlayToTheWindow)
{
    showWindow();
    host->add(card, bottomLeft);
    card->appear();
    delete host;
    window.resize(500, 400);
    card->disappear();
    EXPECT_EQ(card->parent(), &window);
}
