#include "FakeCommands.h"
#include "MouseMoves.h"
#include "ScriptedSource.h"
#include "TestSettings.h"

#include "playcontrol/BehaviourNames.h"
#include "preview/PreviewFetcher.h"
#include "preview/SmartPreview.h"
#include "support/Eventually.h"
#include "transport/NormalOperateBar.h"
#include "transport/NormalProgressBar.h"
#include "transport/TransportButton.h"
#include "ui/OverlayHost.h"

#include <QSignalSpy>
#include <QStandardItemModel>

#include <gtest/gtest.h>

namespace {

const QString Film = QStringLiteral("/films/a.mkv");

class SmartPreviewTest : public testing::Test {
protected:
    SmartPreviewTest()
    {
        window.resize(1000, 600);
        window.show();
        bar.setGeometry(0, 468, 1000, 132);
        bar.show();
        preview.connectBar(&bar);
        bar.slot_setUiByStatus(QPlayer::QPlayerStatus_Playing);
        bar.slot_setTimeInfo(0, 3600);
    }

    void begin(SmartPreview::Kind kind = SmartPreview::Kind::File)
    {
        preview.beginSource(Film, kind);
        preview.slot_setTimeInfo(0, 3600);
    }

    // The pointer on the seek slider, at a part of its length.
    void hover(double part)
    {
        NormalProgressBar *slider = bar.progressBar();
        moveMouse(slider, {qRound(slider->width() * part), slider->height() / 2});
    }
    void leave()
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(bar.progressBar(), &event);
    }
    TransportButton *button() { return bar.button(NormalOperateBar::Button::Preview); }

    TestSettings settings;
    FakeCommands commands;
    std::shared_ptr<ScriptedSource> source = std::make_shared<ScriptedSource>();
    QWidget window;
    NormalOperateBar bar{commands.commands(), *settings, &window};
    QVector<double> seeks;
    SmartPreview preview{&window, source, [this](double seconds) { seeks.append(seconds); }};
    QSignalSpy behaviour{&preview, &SmartPreview::sig_userBehaviour};
    QSignalSpy message{&preview, &SmartPreview::sig_message};
};

} // namespace

TEST_F(SmartPreviewTest, HoveringTheBarShowsThePictureOfThatTime)
{
    begin();
    hover(0.5);
    EXPECT_TRUE(preview.popView()->isVisible());
    ASSERT_EVENTUALLY(preview.popView()->hasPicture());
    ASSERT_EQ(source->grabs().size(), 1);
    EXPECT_NEAR(source->grabs().first(), 1800000, 15000);
    leave();
    EXPECT_FALSE(preview.popView()->isVisible());
}

TEST_F(SmartPreviewTest, TheButtonIsBackInTheBarAndOpensAndClosesTheStrip)
{
    begin();
    ASSERT_TRUE(button()->isVisible());
    button()->click();
    EXPECT_TRUE(preview.isStripOpen());
    EXPECT_TRUE(button()->isChecked());
    ASSERT_EVENTUALLY(preview.strip()->model()->rowCount() == 60);
    ASSERT_EQ(behaviour.count(), 1);
    EXPECT_EQ(behaviour.at(0).at(0).toString(), QStringLiteral("NormalFileSmartViewUsed"));
    EXPECT_EQ(behaviour.at(0).at(1).toString(), QStringLiteral("true"));
    button()->click();
    EXPECT_FALSE(preview.isStripOpen());
    EXPECT_FALSE(button()->isChecked());
    EXPECT_EQ(behaviour.count(), 1);
}

TEST_F(SmartPreviewTest, ADiscSaysThatItIsComingAndShowsTheTimeAlone)
{
    begin(SmartPreview::Kind::Disc);
    button()->click();
    EXPECT_FALSE(preview.isStripOpen());
    EXPECT_FALSE(button()->isChecked());
    ASSERT_EQ(message.count(), 1);
    EXPECT_EQ(message.at(0).at(0).toString(),
              QStringLiteral("The Smart Preview feature on DVDs and Blu-rays is coming soon!"));
    ASSERT_EQ(behaviour.count(), 1);
    EXPECT_EQ(behaviour.at(0).at(0).toString(), QStringLiteral("OtherFileSmartViewUsed"));
    hover(0.5);
    EXPECT_TRUE(preview.popView()->isVisible());
    EXPECT_LT(preview.popView()->card().height(), 40);
    EXPECT_EQ(source->opens(), 0);
}

TEST_F(SmartPreviewTest, ABrokenFileShowsTheTimeAlone)
{
    source->setOpensWell(false);
    begin();
    hover(0.25);
    ASSERT_EVENTUALLY(!preview.fetcher()->isWorking());
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(preview.popView()->isVisible());
    EXPECT_FALSE(preview.popView()->hasPicture());
    EXPECT_LT(preview.popView()->card().height(), 40);
    hover(0.75);
    EXPECT_LT(preview.popView()->card().height(), 40);
    EXPECT_EQ(source->opens(), 1);
}

TEST_F(SmartPreviewTest, AJumpHidesTheButtonAndTheStripStays)
{
    begin();
    button()->click();
    ASSERT_EVENTUALLY(preview.strip()->model()->rowCount() > 3);
    preview.strip()->slot_seek(preview.strip()->model()->index(2, 0));
    EXPECT_EQ(seeks, QVector<double>{120.0});
    EXPECT_FALSE(button()->isVisible());
    EXPECT_TRUE(preview.isStripOpen());
}

TEST_F(SmartPreviewTest, TheEndOfTheSourceClosesStripPictureAndSession)
{
    begin();
    button()->click();
    hover(0.5);
    ASSERT_EVENTUALLY(preview.strip()->model()->rowCount() > 0);
    preview.endSource();
    EXPECT_FALSE(preview.isStripOpen());
    EXPECT_FALSE(button()->isChecked());
    EXPECT_FALSE(preview.popView()->isVisible());
    ASSERT_EVENTUALLY(!source->isOpen());
    ASSERT_EVENTUALLY(!preview.fetcher()->isWorking());
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(preview.strip()->model()->rowCount(), 0);
    button()->click();
    EXPECT_FALSE(preview.isStripOpen());
    EXPECT_FALSE(button()->isChecked());
}

TEST_F(SmartPreviewTest, AThousandHoversOverTheBarFetchFewPictures)
{
    begin();
    source->holdGrabs(true);
    hover(0.01);
    ASSERT_TRUE(source->waitInsideGrab());
    for (int i = 0; i < 1000; ++i)
        hover((i + 1) / 1001.0);
    source->holdGrabs(false);
    ASSERT_EVENTUALLY(!preview.fetcher()->isWorking());
    EXPECT_LE(source->grabs().size(), 3);
    ASSERT_EVENTUALLY(preview.popView()->hasPicture());
}

TEST_F(SmartPreviewTest, AStripThatIsOpenedBeforeTheLengthIsKnownFillsWhenItIs)
{
    preview.beginSource(Film, SmartPreview::Kind::File);
    button()->click();
    EXPECT_TRUE(preview.isStripOpen());
    EXPECT_FALSE(preview.strip()->noteText().isEmpty());
    preview.slot_setTimeInfo(1, 3600);
    EXPECT_TRUE(preview.isStripOpen());
    EXPECT_TRUE(button()->isChecked());
    EXPECT_TRUE(preview.strip()->noteText().isEmpty());
    ASSERT_EVENTUALLY(preview.strip()->model()->rowCount() == 60);
    preview.slot_setTimeInfo(2, 3601); // a length that grows a little is no new source
    EXPECT_EQ(preview.strip()->model()->rowCount(), 60);
}

TEST_F(SmartPreviewTest, OverTheVideoBothAreOverlaysOfTheHost)
{
    OverlayHost host(&window);
    host.setCompositingQuery([] { return true; });
    preview.addTo(host, 1, 3);
    begin();
    button()->click();
    EXPECT_TRUE(host.isShown(preview.strip()));
    EXPECT_TRUE(preview.strip()->isWindow());
    EXPECT_NEAR(preview.strip()->geometry().center().x(), window.geometry().center().x(), 1);
    const int width = preview.strip()->width();
    preview.strip()->slot_changeZoom(0);
    EXPECT_EQ(preview.strip()->size(), preview.strip()->sizeHint());
    EXPECT_LE(preview.strip()->width(), 1000);
    EXPECT_NEAR(preview.strip()->geometry().center().x(), window.geometry().center().x(), 1);
    EXPECT_GT(width, 0);
    hover(0.0);
    EXPECT_TRUE(host.isShown(preview.popView()));
    EXPECT_GE(preview.popView()->card().translated(preview.popView()->pos()).left(),
              window.geometry().left());
    leave();
    EXPECT_FALSE(host.isShown(preview.popView()));
    preview.endSource();
    EXPECT_FALSE(host.isShown(preview.strip()));
}
