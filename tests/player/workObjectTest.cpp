#include "player/workObject.h"

#include "PlayerFixture.h"

#include <QTemporaryFile>
#include <QThread>

using testing::Contains;
using testing::ElementsAre;

namespace {

// Stands for the window whose signals reach the worker.
class Owner final : public QObject {
    Q_OBJECT

signals:
    void sig_resizeRender(int nWidth, int nHeight);
    void sig_seek(int nTime);
    void sig_setup3D();
};

class WorkObject : public PlayerTest {
protected:
    WorkObject()
    {
        QObject::connect(&owner, &Owner::sig_resizeRender, work.get(), &workObject::slot_resizeRenderSize);
        QObject::connect(&owner, &Owner::sig_seek, work.get(), &workObject::slot_seek);
        QObject::connect(&owner, &Owner::sig_setup3D, work.get(), &workObject::slot_setup3D);
    }

    Owner owner;
    std::unique_ptr<workObject> work{std::make_unique<workObject>(player.get())};
};

} // namespace

TEST_F(WorkObject, LivesOnAThreadOfItsOwn)
{
    EXPECT_NE(work->thread(), QThread::currentThread());
    EXPECT_TRUE(work->thread()->isRunning());
}

TEST_F(WorkObject, ASeekDoesNotOvertakeAResize)
{
    start();
    engine.hold("IVDPlayTool::resizeSurface");
    emit owner.sig_resizeRender(800, 600);
    emit owner.sig_seek(30);
    emit owner.sig_seek(40);
    ASSERT_TRUE(engine.waitHeld("IVDPlayTool::resizeSurface"));
    EXPECT_THAT(engine.calls(), ElementsAre("IVDPlayTool::resizeSurface(800, 600)"));
    engine.release("IVDPlayTool::resizeSurface");
    ASSERT_TRUE(engine.waitCall("IVDPlay::seek(40, 1)"));
    EXPECT_THAT(engine.calls(), ElementsAre("IVDPlayTool::resizeSurface(800, 600)", "IVDPlay::seek(30, 1)",
                                            "IVDPlay::seek(40, 1)"));
}

TEST_F(WorkObject, OfTheSizesThatComeWhileTheEngineIsBusyOnlyTheLastIsCarriedOut)
{
    start();
    engine.hold("IVDPlayTool::resizeSurface");
    work->requestRenderSize(800, 600);
    ASSERT_TRUE(engine.waitHeld("IVDPlayTool::resizeSurface"));
    for (int width = 801; width <= 900; ++width)
        work->requestRenderSize(width, 600);
    engine.release("IVDPlayTool::resizeSurface");
    ASSERT_TRUE(engine.waitCall("IVDPlayTool::resizeSurface(900, 600)"));
    EXPECT_THAT(engine.calls(),
                ElementsAre("IVDPlayTool::resizeSurface(800, 600)", "IVDPlayTool::resizeSurface(900, 600)"));
}

TEST_F(WorkObject, OfTheSeeksThatComeWhileTheEngineIsBusyOnlyTheLastIsCarriedOut)
{
    start();
    engine.hold("IVDPlay::seek");
    work->requestSeek(1);
    ASSERT_TRUE(engine.waitHeld("IVDPlay::seek"));
    for (int second = 2; second <= 50; ++second)
        work->requestSeek(second);
    engine.release("IVDPlay::seek");
    ASSERT_TRUE(engine.waitCall("IVDPlay::seek(50, 1)"));
    EXPECT_THAT(engine.calls(), ElementsAre("IVDPlay::seek(1, 1)", "IVDPlay::seek(50, 1)"));
}

TEST_F(WorkObject, RequestsOfDifferentKindsKeepTheOrderInWhichTheyWereMade)
{
    QTemporaryFile subtitle;
    ASSERT_TRUE(subtitle.open());
    start();
    engine.hold("IVDPlayTool::resizeSurface");
    work->requestRenderSize(1, 1);
    ASSERT_TRUE(engine.waitHeld("IVDPlayTool::resizeSurface"));
    work->requestSeek(9);
    work->requestSeek(10);
    work->requestRenderSize(800, 600);
    work->requestSeek(19);
    work->requestSeek(20);
    work->requestSubtitle(subtitle.fileName());
    work->requestSeek(30);
    engine.release("IVDPlayTool::resizeSurface");
    ASSERT_TRUE(engine.waitCall("IVDPlay::seek(30, 1)"));
    using testing::StartsWith;
    const std::vector<std::string> calls = engine.calls();
    ASSERT_GE(calls.size(), 6U);
    EXPECT_THAT(std::vector<std::string>(calls.begin(), calls.begin() + 5),
                ElementsAre("IVDPlayTool::resizeSurface(1, 1)", "IVDPlay::seek(10, 1)",
                            "IVDPlayTool::resizeSurface(800, 600)", "IVDPlay::seek(20, 1)",
                            StartsWith("IVDPlay::addSubtitle(")));
    EXPECT_EQ(calls.back(), "IVDPlay::seek(30, 1)");
}

TEST_F(WorkObject, AddsASubtitleOnItsThread)
{
    start();
    QTemporaryFile subtitle;
    ASSERT_TRUE(subtitle.open());
    QMetaObject::invokeMethod(work.get(), "slot_addSubtitle", Q_ARG(QString, subtitle.fileName()));
    EXPECT_TRUE(engine.waitCall("IVDPlay::addSubtitle(" + subtitle.fileName().toStdString()));
}

TEST_F(WorkObject, SetsUp3D)
{
    start();
    engine.hold("IVDPlayTool::set3DEngine");
    emit owner.sig_setup3D();
    ASSERT_TRUE(engine.waitHeld("IVDPlayTool::set3DEngine"));
    engine.release("IVDPlayTool::set3DEngine");
    EXPECT_TRUE(engine.waitCall("IVDPlayTool::setIntProperty(videoscreen.stereoscopicmode"));
}

TEST_F(WorkObject, EndsItsThreadAfterTheCommandThatRuns)
{
    start();
    engine.hold("IVDPlay::seek");
    emit owner.sig_seek(1);
    ASSERT_TRUE(engine.waitHeld("IVDPlay::seek"));
    engine.release("IVDPlay::seek");
    work.reset();
    EXPECT_THAT(engine.calls(), Contains("IVDPlay::seek(1, 1)"));
}

#include "workObjectTest.moc"
