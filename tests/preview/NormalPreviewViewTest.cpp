#include "ScriptedSource.h"

#include "dialogs/DialogSlider.h"
#include "preview/NormalPreviewView.h"
#include "preview/PreviewFetcher.h"
#include "preview/PreviewRoles.h"
#include "support/Eventually.h"
#include "ui/FocusRing.h"

#include <QAbstractItemModelTester>
#include <QKeyEvent>
#include <QListView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace {

constexpr int Total = 300; // seconds: sixty rows, five seconds apart

class NormalPreviewViewTest : public testing::Test {
protected:
    NormalPreviewViewTest()
    {
        window.resize(1000, 600);
        window.show();
        fetcher.setSource(QStringLiteral("/films/a.mkv"));
    }

    void openFilled(int total = Total)
    {
        view.open(total);
        view.resize(view.sizeHint());
        ASSERT_EVENTUALLY(view.state() == NormalPreviewView::State::Filled);
    }
    bool press(int key)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
        return view.handleKey(&event);
    }
    int rows() const { return view.model()->rowCount(); }
    int shownRows() const
    {
        int count = 0;
        for (int row = 0; row < rows(); ++row)
            count += view.list()->isRowHidden(row) ? 0 : 1;
        return count;
    }
    int second(int row) const { return view.model()->item(row)->data(PreviewRoles::Seconds).toInt(); }

    std::shared_ptr<ScriptedSource> source = std::make_shared<ScriptedSource>();
    QWidget window;
    PreviewFetcher fetcher{source};
    QVector<double> seeks;
    NormalPreviewView view{fetcher, [this](double seconds) { seeks.append(seconds); }, &window};
    QAbstractItemModelTester tester{view.model(), QAbstractItemModelTester::FailureReportingMode::Warning};
};

} // namespace

TEST_F(NormalPreviewViewTest, ShowsPicturesAtEvenIntervalsWithTheirTimes)
{
    EXPECT_EQ(view.state(), NormalPreviewView::State::Closed);
    openFilled();
    EXPECT_TRUE(view.isVisible());
    EXPECT_EQ(view.sourcePath(), QStringLiteral("/films/a.mkv"));
    ASSERT_EQ(rows(), 60);
    for (int row = 0; row < rows(); ++row) {
        EXPECT_EQ(second(row), row * 5);
        const QImage picture =
            QImage::fromData(view.model()->item(row)->data(PreviewRoles::Picture).toByteArray(), "PNG");
        EXPECT_EQ(picture.size(), QSize(324, 182));
    }
    EXPECT_EQ(view.model()->item(13)->text(), QStringLiteral("00:01:05"));
    EXPECT_EQ(shownRows(), 60);
    EXPECT_EQ(source->grabs().size(), 60);
}

TEST_F(NormalPreviewViewTest, ClosingDuringFillingEndsTheWorkerFirstAndNoPictureArrivesAfterwards)
{
    source->holdGrabs(true);
    view.open(Total);
    EXPECT_EQ(view.state(), NormalPreviewView::State::Filling);
    EXPECT_EQ(view.stopFlag(), 0);
    ASSERT_TRUE(source->waitInsideGrab());
    source->letGo();
    ASSERT_EVENTUALLY(rows() == 1);
    ASSERT_TRUE(source->waitInsideGrab());
    view.close();
    EXPECT_EQ(view.stopFlag(), 1);
    EXPECT_EQ(view.state(), NormalPreviewView::State::Closed);
    EXPECT_EQ(rows(), 0);
    ASSERT_EVENTUALLY(!fetcher.isWorking());
    EXPECT_FALSE(source->isOpen());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(source->grabs().size(), 2);
    EXPECT_TRUE(view.sourcePath().isEmpty());
    ASSERT_EVENTUALLY(!view.isVisible());
}

TEST_F(NormalPreviewViewTest, OpeningAgainAfterACloseDuringFillingFillsAnew)
{
    source->holdGrabs(true);
    view.open(Total);
    ASSERT_TRUE(source->waitInsideGrab());
    view.close();
    view.open(Total);
    source->holdGrabs(false);
    ASSERT_EVENTUALLY(view.state() == NormalPreviewView::State::Filled);
    ASSERT_EQ(rows(), 60);
    for (int row = 0; row < rows(); ++row)
        EXPECT_EQ(second(row), row * 5);
    EXPECT_TRUE(view.isVisible());
}

TEST_F(NormalPreviewViewTest, AChangeOfQuantityShowsOrHidesRowsWithoutNewEngineCalls)
{
    openFilled();
    const int fetched = source->grabs().size();
    for (int value = 0; value <= PreviewPlan::QuantityMost; ++value) {
        view.slot_changeQuanlity(value);
        const int step = PreviewPlan::stepOf(value);
        EXPECT_EQ(shownRows(), (60 + step - 1) / step) << value;
        for (int row = 0; row < rows(); ++row)
            EXPECT_EQ(view.list()->isRowHidden(row), row % step != 0) << row;
    }
    EXPECT_EQ(shownRows(), 60);
    EXPECT_FALSE(fetcher.isWorking());
    EXPECT_EQ(source->grabs().size(), fetched);
    EXPECT_EQ(source->opens(), 1);
}

TEST_F(NormalPreviewViewTest, TheSlidersDriveZoomAndQuantity)
{
    openFilled();
    view.quantitySlider()->setValue(0);
    EXPECT_EQ(shownRows(), 5);
    const int before = view.sizeHint().height();
    view.zoomSlider()->setValue(PreviewPlan::ZoomMost);
    EXPECT_GT(view.sizeHint().height(), before);
}

TEST_F(NormalPreviewViewTest, HiddenRowsLeaveNoGap)
{
    openFilled();
    view.slot_changeQuanlity(PreviewPlan::QuantityMost - 1);
    QCoreApplication::processEvents();
    const QRect first = view.list()->visualRect(view.model()->index(0, 0));
    const QRect next = view.list()->visualRect(view.model()->index(2, 0));
    EXPECT_EQ(next.left(), first.left() + first.width());
    EXPECT_EQ(next.top(), first.top());
}

TEST_F(NormalPreviewViewTest, RowsThatComeDuringASmallQuantityAreHiddenLikeTheOthers)
{
    view.slot_changeQuanlity(PreviewPlan::QuantityMost - 1);
    openFilled();
    EXPECT_EQ(rows(), 60);
    EXPECT_EQ(shownRows(), 30);
}

TEST_F(NormalPreviewViewTest, EachZoomGivesAWidthOfWholePicturesThatStandsInTheMiddle)
{
    openFilled();
    view.move(0, 300);
    int height = 0;
    for (int value = 0; value <= PreviewPlan::ZoomMost; ++value) {
        view.slot_changeZoom(value);
        EXPECT_EQ(view.width(), view.sizeHint().width());
        EXPECT_NEAR(view.geometry().center().x(), 500, 1);
        EXPECT_LE(view.width(), 1000);
        EXPECT_GE(view.height(), height);
        height = view.height();
        EXPECT_EQ(view.list()->visualRect(view.model()->index(0, 0)).size(),
                  PreviewPlan::cells(value, 1000 - 48, 1.0).cell);
    }
}

TEST_F(NormalPreviewViewTest, WholePicturesFillTheStripInEveryWindow)
{
    openFilled();
    for (const int width : {400, 480, 800, 1000, 1280, 1366, 1920, 2560}) {
        window.resize(width, 700);
        for (int value = 0; value <= PreviewPlan::ZoomMost; ++value) {
            view.slot_changeZoom(value);
            const int cell = view.list()->visualRect(view.model()->index(0, 0)).width();
            ASSERT_GT(cell, 0);
            EXPECT_EQ(view.list()->viewport()->width() % cell, 0) << width << ' ' << value;
            EXPECT_LE(view.width(), width);
        }
    }
}

TEST_F(NormalPreviewViewTest, AllRowsStandInOneLine)
{
    openFilled();
    QCoreApplication::processEvents();
    const int top = view.list()->visualRect(view.model()->index(0, 0)).top();
    for (int row = 1; row < rows(); ++row) {
        const QRect place = view.list()->visualRect(view.model()->index(row, 0));
        EXPECT_EQ(place.top(), top) << row;
        EXPECT_GT(place.left(), view.list()->visualRect(view.model()->index(row - 1, 0)).left()) << row;
    }
    EXPECT_LE(view.list()->visualRect(view.model()->index(0, 0)).height(), view.list()->viewport()->height());
}

TEST_F(NormalPreviewViewTest, AClickOnAPictureGoesThere)
{
    openFilled();
    QSignalSpy seeked(&view, &NormalPreviewView::sig_seeked);
    view.slot_seek(view.model()->index(12, 0));
    EXPECT_EQ(seeks, QVector<double>{60.0});
    EXPECT_EQ(seeked.count(), 1);
    QCoreApplication::processEvents();
    const QPoint place = view.list()->visualRect(view.model()->index(1, 0)).center();
    QTest::mouseClick(view.list()->viewport(), Qt::LeftButton, {}, place);
    EXPECT_EQ(seeks, (QVector<double>{60.0, 5.0}));
    EXPECT_EQ(seeked.count(), 2);
}

TEST_F(NormalPreviewViewTest, AnIndexOfNothingGoesNowhere)
{
    openFilled();
    QSignalSpy seeked(&view, &NormalPreviewView::sig_seeked);
    view.slot_seek({});
    const QPersistentModelIndex index = view.model()->index(3, 0);
    view.close();
    view.slot_seek(index);
    EXPECT_TRUE(seeks.isEmpty());
    EXPECT_EQ(seeked.count(), 0);
}

TEST_F(NormalPreviewViewTest, TheKeyboardWalksOverTheShownPicturesAndEnterGoesThere)
{
    openFilled();
    view.slot_changeQuanlity(PreviewPlan::QuantityMost - 1); // every second one
    EXPECT_TRUE(press(Qt::Key_Right));
    EXPECT_EQ(view.list()->currentIndex().row(), 0) << "the first press shows the cursor";
    EXPECT_TRUE(press(Qt::Key_Right));
    EXPECT_TRUE(press(Qt::Key_Right));
    EXPECT_EQ(view.list()->currentIndex().row(), 4);
    EXPECT_TRUE(press(Qt::Key_Left));
    EXPECT_EQ(view.list()->currentIndex().row(), 2);
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(seeks, QVector<double>{10.0});
    EXPECT_TRUE(press(Qt::Key_End));
    EXPECT_EQ(view.list()->currentIndex().row(), 58);
    EXPECT_TRUE(press(Qt::Key_Right));
    EXPECT_EQ(view.list()->currentIndex().row(), 58);
    EXPECT_TRUE(press(Qt::Key_Home));
    EXPECT_TRUE(press(Qt::Key_Left));
    EXPECT_EQ(view.list()->currentIndex().row(), 0);
    EXPECT_TRUE(press(Qt::Key_PageDown));
    EXPECT_GT(view.list()->currentIndex().row(), 2);
    EXPECT_TRUE(press(Qt::Key_Enter));
    EXPECT_EQ(seeks.size(), 2);
    EXPECT_FALSE(press(Qt::Key_Space)) << "the player's";
    EXPECT_FALSE(press(Qt::Key_Up));
}

TEST_F(NormalPreviewViewTest, TabReachesTheSlidersWhichTheArrowsThenMove)
{
    openFilled();
    QSignalSpy closed(&view, &NormalPreviewView::sig_closeClicked);
    EXPECT_TRUE(press(Qt::Key_Tab));
    EXPECT_EQ(window.focusWidget(), view.list());
    EXPECT_TRUE(press(Qt::Key_Tab));
    EXPECT_EQ(window.focusWidget(), view.zoomSlider());
    EXPECT_TRUE(FocusRing::isOn(view.zoomSlider()));
    const int zoom = view.zoomSlider()->value();
    EXPECT_TRUE(press(Qt::Key_Right));
    EXPECT_EQ(view.zoomSlider()->value(), zoom + 1);
    EXPECT_TRUE(press(Qt::Key_Tab));
    EXPECT_TRUE(press(Qt::Key_Left));
    EXPECT_EQ(view.quantitySlider()->value(), PreviewPlan::QuantityMost - 1);
    EXPECT_FALSE(press(Qt::Key_Return));
    EXPECT_TRUE(press(Qt::Key_Tab));
    EXPECT_TRUE(press(Qt::Key_Return));
    EXPECT_EQ(closed.count(), 1);
    EXPECT_TRUE(press(Qt::Key_Backtab));
    EXPECT_EQ(window.focusWidget(), view.quantitySlider());
    EXPECT_TRUE(press(Qt::Key_Escape));
    EXPECT_EQ(closed.count(), 2);
}

TEST_F(NormalPreviewViewTest, AClosedStripLeavesTheKeysToOthers)
{
    for (const int key : {Qt::Key_Tab, Qt::Key_Escape, Qt::Key_Right, Qt::Key_Return})
        EXPECT_FALSE(press(key)) << key;
}

TEST_F(NormalPreviewViewTest, TheCursorGoesWhenItsPictureIsHidden)
{
    openFilled();
    QSignalSpy cleared(&view, &NormalPreviewView::sig_clearCurrentIndex);
    view.list()->setCurrentIndex(view.model()->index(1, 0));
    view.slot_changeQuanlity(0);
    EXPECT_EQ(cleared.count(), 1);
    EXPECT_FALSE(view.list()->currentIndex().isValid());
}

TEST_F(NormalPreviewViewTest, ASourceWhosePicturesFailSaysSo)
{
    source->setOpensWell(false);
    openFilled();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(view.noteText(), QStringLiteral("There are no preview pictures for this source."));
    EXPECT_FALSE(view.zoomSlider()->isEnabled());
    EXPECT_LT(view.height(), 140);
    EXPECT_FALSE(press(Qt::Key_Right));
    EXPECT_TRUE(press(Qt::Key_Tab));
    EXPECT_TRUE(press(Qt::Key_Escape));
    view.close();
    EXPECT_TRUE(view.noteText().isEmpty());
}

TEST_F(NormalPreviewViewTest, ASourceOfUnknownLengthSaysSo)
{
    openFilled(0);
    EXPECT_EQ(rows(), 0);
    EXPECT_FALSE(view.noteText().isEmpty());
    EXPECT_TRUE(source->grabs().isEmpty());
}

TEST_F(NormalPreviewViewTest, ABadSpotLeavesARowWithItsTimeAlone)
{
    source->setAnswer([](int position) {
        return position == 10000 ? PreviewPicture{}
                                 : PreviewPicture{ScriptedSource::picture(position), position};
    });
    openFilled();
    EXPECT_EQ(rows(), 60);
    EXPECT_TRUE(view.model()->item(2)->data(PreviewRoles::Picture).toByteArray().isEmpty());
    EXPECT_EQ(view.model()->item(2)->text(), QStringLiteral("00:00:10"));
    EXPECT_TRUE(view.noteText().isEmpty());
}

TEST_F(NormalPreviewViewTest, MarksWhatPlaysAndStartsThere)
{
    view.setPlayingSecond(152);
    openFilled();
    QCoreApplication::processEvents();
    EXPECT_TRUE(view.model()->item(30)->data(PreviewRoles::Playing).toBool());
    EXPECT_TRUE(
        view.list()->viewport()->rect().intersects(view.list()->visualRect(view.model()->index(30, 0))));
    view.setPlayingSecond(155);
    EXPECT_FALSE(view.model()->item(30)->data(PreviewRoles::Playing).toBool());
    EXPECT_TRUE(view.model()->item(31)->data(PreviewRoles::Playing).toBool());
    press(Qt::Key_Right);
    EXPECT_EQ(view.list()->currentIndex().row(), 31);
}

TEST_F(NormalPreviewViewTest, WhateverTheKeyboardReachesIsSeenAsAWhole)
{
    openFilled();
    QCoreApplication::processEvents();
    for (const int key : {Qt::Key_Right, Qt::Key_End, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_Home,
                          Qt::Key_PageDown, Qt::Key_PageDown}) {
        EXPECT_TRUE(press(key));
        const QRect place = view.list()->visualRect(view.list()->currentIndex());
        EXPECT_GE(place.left(), 0) << key;
        EXPECT_LE(place.right(), view.list()->viewport()->rect().right()) << key;
        EXPECT_EQ(view.list()->horizontalScrollBar()->value() % place.width(), 0) << key;
    }
}

TEST_F(NormalPreviewViewTest, ThePictureUnderThePointerIsFramed)
{
    openFilled();
    QCoreApplication::processEvents();
    QWidget *viewport = view.list()->viewport();
    const QRect cell = view.list()->visualRect(view.model()->index(1, 0));
    const QImage before = viewport->grab(cell).toImage();
    const QImage other = viewport->grab(cell.translated(cell.width(), 0)).toImage();
    QHoverEvent enter(QEvent::HoverEnter, cell.center(), QPoint(-1, -1));
    QCoreApplication::sendEvent(viewport, &enter);
    QHoverEvent move(QEvent::HoverMove, cell.center(), cell.center() - QPoint(1, 0));
    QCoreApplication::sendEvent(viewport, &move);
    EXPECT_NE(viewport->grab(cell).toImage(), before);
    EXPECT_EQ(viewport->grab(cell.translated(cell.width(), 0)).toImage(), other);
}

TEST_F(NormalPreviewViewTest, TheWheelMovesTheStripSideways)
{
    openFilled();
    QCoreApplication::processEvents();
    QScrollBar *bar = view.list()->horizontalScrollBar();
    ASSERT_EQ(bar->value(), 0);
    const QPoint place = view.list()->viewport()->rect().center();
    QWheelEvent wheel(place, view.list()->viewport()->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(view.list()->viewport(), &wheel);
    EXPECT_GT(bar->value(), 0);
}

TEST_F(NormalPreviewViewTest, AStripThatGoesDuringTheFillingLeavesNothingBehind)
{
    source->holdGrabs(true);
    auto own = std::make_unique<NormalPreviewView>(
        fetcher, [](double) {}, &window);
    own->open(Total);
    ASSERT_TRUE(source->waitInsideGrab());
    own.reset();
    source->holdGrabs(false);
    ASSERT_EVENTUALLY(!fetcher.isWorking());
    QCoreApplication::sendPostedEvents();
}
