#include "ui/AnimateMenu.h"

#include <QPropertyAnimation>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace {

const QString Key = QStringLiteral("animate");
const QRect Place(0, 40, 240, 500);

class AnimateMenuTest : public testing::Test {
protected:
    AnimateMenuTest()
    {
        window.resize(800, 600);
        menu.setOpenGeometry(Place);
        window.show();
    }
    QPropertyAnimation *slide() { return static_cast<QPropertyAnimation *>(menu.animate(Key)); }
    // To the end of the run that is under way.
    void finish() { slide()->setCurrentTime(slide()->duration()); }
    void openFully()
    {
        menu.slideIn();
        finish();
    }
    int rowOf(PopDlgTyle dialog)
    {
        for (int row = 0; row < menu.rows().size(); ++row) {
            if (menu.rows().at(row).kind == AnimateMenu::Kind::Dialog && menu.rows().at(row).dialog == dialog)
                return row;
        }
        return AnimateMenu::NoRow;
    }
    void mouse(QEvent::Type type, const QPoint &at)
    {
        const bool isMove = type == QEvent::MouseMove;
        QMouseEvent event(type, at, isMove ? Qt::NoButton : Qt::LeftButton,
                          type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&menu, &event);
    }

    QWidget window;
    AnimateMenu menu{&window};
};

} // namespace

TEST_F(AnimateMenuTest, NothingIsBuiltBeforeItIsOpened)
{
    EXPECT_FALSE(menu.hasAnimate(Key));
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(AnimateMenuTest, OpensWithCurve38In1000Milliseconds)
{
    menu.slideIn();
    EXPECT_EQ(slide()->propertyName(), "geometryF");
    EXPECT_EQ(int(slide()->easingCurve().type()), 38);
    EXPECT_EQ(slide()->duration(), 1000);
    EXPECT_EQ(slide()->endValue().toRectF(), QRectF(Place));
    EXPECT_EQ(menu.width(), 0);
    EXPECT_EQ(menu.height(), Place.height());
    finish();
    EXPECT_EQ(menu.geometry(), Place);
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(AnimateMenuTest, ClosesWithCurve22In500MillisecondsAndHidesAtTheEnd)
{
    openFully();
    menu.slideOut();
    EXPECT_EQ(int(slide()->easingCurve().type()), 22);
    EXPECT_EQ(slide()->duration(), 500);
    EXPECT_TRUE(menu.isVisible());
    finish();
    EXPECT_FALSE(menu.isVisible());
}

TEST_F(AnimateMenuTest, EndOfTheForwardRunDoesNotHide)
{
    openFully();
    menu.slot_animateFinished();
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(AnimateMenuTest, SecondRunReversesFromThePresentValue)
{
    menu.slideIn();
    QPropertyAnimation *first = slide();
    first->setCurrentTime(200);
    const QRectF half = menu.geometryF();
    ASSERT_GT(half.width(), 0.0);
    ASSERT_LT(half.width(), double(Place.width()));
    menu.slideOut();
    EXPECT_EQ(slide(), first);
    EXPECT_EQ(first->startValue().toRectF(), half);
    EXPECT_EQ(first->state(), QAbstractAnimation::Running);
    menu.slideIn();
    EXPECT_EQ(slide(), first);
    EXPECT_EQ(first->startValue().toRectF(), half);
}

TEST_F(AnimateMenuTest, WidgetTakesTheRoundedGeometry)
{
    menu.setGeometryF(QRectF(0.0, 40.0, 100.6, 500.0));
    EXPECT_EQ(menu.width(), 101);
    EXPECT_DOUBLE_EQ(menu.property("geometryF").toRectF().width(), 100.6);
}

TEST_F(AnimateMenuTest, OpensFromTheRightSideToo)
{
    menu.setOpenGeometry({560, 40, 240, 500}, Qt::RightEdge);
    menu.slideIn();
    EXPECT_EQ(menu.x(), 800);
    finish();
    EXPECT_EQ(menu.geometry(), QRect(560, 40, 240, 500));
}

TEST(AnimateMenuLifeTest, DeletingAMenuWithARunningAnimationStopsItFirst)
{
    auto menu = std::make_unique<AnimateMenu>();
    menu->slideIn();
    QPointer<QAbstractAnimation> slide = menu->animate(Key);
    ASSERT_EQ(slide->state(), QAbstractAnimation::Running);
    bool isStopped = false;
    QObject::connect(
        slide, &QAbstractAnimation::stateChanged, slide,
        [&isStopped](QAbstractAnimation::State now) { isStopped = now == QAbstractAnimation::Stopped; });
    menu.reset();
    EXPECT_TRUE(isStopped);
    EXPECT_TRUE(slide.isNull());
}

TEST_F(AnimateMenuTest, ReleaseOnThePressedLineTellsItsDialog)
{
    openFully();
    QSignalSpy spy(&menu, &AnimateMenu::sig_showDialog);
    const QPoint at = menu.rowRect(rowOf(PopDlgTyle::Setting)).center();
    mouse(QEvent::MouseButtonPress, at);
    EXPECT_EQ(menu.pressedRow(), rowOf(PopDlgTyle::Setting));
    EXPECT_EQ(spy.count(), 0);
    mouse(QEvent::MouseButtonRelease, at);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<PopDlgTyle>(), PopDlgTyle::Setting);
    EXPECT_FALSE(menu.isOpen());
}

TEST_F(AnimateMenuTest, ReleaseOnAnotherLineTellsNothing)
{
    openFully();
    QSignalSpy spy(&menu, &AnimateMenu::sig_showDialog);
    mouse(QEvent::MouseButtonPress, menu.rowRect(rowOf(PopDlgTyle::Setting)).center());
    mouse(QEvent::MouseButtonRelease, menu.rowRect(rowOf(PopDlgTyle::About)).center());
    mouse(QEvent::MouseButtonPress, menu.rowRect(rowOf(PopDlgTyle::Setting)).center());
    mouse(QEvent::MouseButtonRelease, QPoint(-5, -5));
    EXPECT_EQ(spy.count(), 0);
    EXPECT_TRUE(menu.isOpen());
}

TEST_F(AnimateMenuTest, EachDialogLineTellsItsOwnKind)
{
    for (int row = 0; row < menu.rows().size(); ++row) {
        if (menu.rows().at(row).kind != AnimateMenu::Kind::Dialog)
            continue;
        openFully();
        QSignalSpy spy(&menu, &AnimateMenu::sig_showDialog);
        mouse(QEvent::MouseButtonPress, menu.rowRect(row).center());
        mouse(QEvent::MouseButtonRelease, menu.rowRect(row).center());
        ASSERT_EQ(spy.count(), 1) << row;
        EXPECT_EQ(spy.at(0).at(0).value<PopDlgTyle>(), menu.rows().at(row).dialog);
        finish();
    }
}

TEST_F(AnimateMenuTest, UpdateLineAsksForTheVersion)
{
    openFully();
    QSignalSpy version(&menu, &AnimateMenu::sig_checkVersion);
    QSignalSpy dialog(&menu, &AnimateMenu::sig_showDialog);
    for (int row = 0; row < menu.rows().size(); ++row) {
        if (menu.rows().at(row).kind == AnimateMenu::Kind::CheckVersion) {
            mouse(QEvent::MouseButtonPress, menu.rowRect(row).center());
            mouse(QEvent::MouseButtonRelease, menu.rowRect(row).center());
        }
    }
    EXPECT_EQ(version.count(), 1);
    EXPECT_EQ(dialog.count(), 0);
}

TEST_F(AnimateMenuTest, HoverFollowsThePointerAndSkipsWhatCanNotBeChosen)
{
    openFully();
    QVector<AnimateMenu::Row> rows = AnimateMenu::mainRows();
    rows[2].isEnabled = false;
    menu.setRows(rows);
    mouse(QEvent::MouseMove, menu.rowRect(0).center());
    EXPECT_EQ(menu.hoveredRow(), 0);
    mouse(QEvent::MouseMove, menu.rowRect(1).center()); // a line between two groups
    EXPECT_EQ(menu.hoveredRow(), AnimateMenu::NoRow);
    mouse(QEvent::MouseMove, menu.rowRect(2).center()); // switched off
    EXPECT_EQ(menu.hoveredRow(), AnimateMenu::NoRow);
    mouse(QEvent::MouseMove, menu.rowRect(3).center());
    EXPECT_EQ(menu.hoveredRow(), 3);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&menu, &leave);
    EXPECT_EQ(menu.hoveredRow(), AnimateMenu::NoRow);
}

TEST_F(AnimateMenuTest, KeysChooseWithoutAMouse)
{
    openFully();
    QSignalSpy spy(&menu, &AnimateMenu::sig_showDialog);
    QTest::keyClick(&menu, Qt::Key_Down);
    EXPECT_EQ(menu.hoveredRow(), 0);
    QTest::keyClick(&menu, Qt::Key_Down);
    EXPECT_EQ(menu.hoveredRow(), 2);
    QTest::keyClick(&menu, Qt::Key_Up);
    QTest::keyClick(&menu, Qt::Key_Up);
    EXPECT_EQ(menu.hoveredRow(), menu.rows().size() - 1);
    QTest::keyClick(&menu, Qt::Key_Return);
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<PopDlgTyle>(), PopDlgTyle::About);
}

TEST_F(AnimateMenuTest, EscapeCloses)
{
    openFully();
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_FALSE(menu.isOpen());
}

TEST_F(AnimateMenuTest, LineColorComesFromTheStyleSheet)
{
    menu.setStyleSheet(QStringLiteral("AnimateMenu { qproperty-colLineColor: #ff0000; }"));
    menu.ensurePolished();
    EXPECT_EQ(menu.colLineColor(), QColor(Qt::red));
    openFully();
    EXPECT_EQ(menu.grab().toImage().pixelColor(menu.width() - 1, menu.height() / 2), QColor(Qt::red));
}
