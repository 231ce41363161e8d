// Discs that come and go while the program runs, over the real engine: a drive of the engine that is an
// image, there or not.
#include "ActionRig.h"

#include "discs/TestDiscs.h"
#include "support/Eventually.h"

#include "core/SettingsKeys.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "player/DeferredSetup.h"
#include "player/EngineProperties.h"
#include "player/QPlayer.h"

#include <QFile>

namespace {

class DiscArrival : public testing::Test {
protected:
    static constexpr char Drive[] = "K";

    // Makes the drive, which is empty.
    void SetUp() override
    {
        ASSERT_FALSE(TestDiscs::dvdImage().isEmpty()) << TestDiscs::error().toStdString();
        const auto *setUp = m_rig.window().findChild<DeferredSetup *>();
        ASSERT_NE(setUp, nullptr);
        ASSERT_EVENTUALLY(setUp->player() != nullptr);
        const QString empty = QStringLiteral("[Drive] K: is empty");
        const int before = m_rig.engineLines(empty);
        ASSERT_EVENTUALLY(lookNow());
        ASSERT_EVENTUALLY(m_rig.engineLines(empty) > before);
        // After the window, which has been told by the time that this is.
        QObject::connect(&m_rig.player(), &QPlayer::sig_DiscEventOccured, &m_listener,
                         [this](char drive, VD_OPTRA_DISC_NOTIFY_TYPE type) {
                             m_events += QLatin1Char(drive) + QString::number(int(type)) + QLatin1Char(' ');
                         });
    }

    // A letter is looked at at once when it is bound. False before there is an output.
    bool lookNow()
    {
        const QByteArray name = QByteArray(EngineProperties::Drive) + Drive;
        return m_rig.player().setStringProperty(name.constData(), disc().toUtf8());
    }

    void insertDisc()
    {
        const QString copy = m_rig.path(QStringLiteral("copy"));
        ASSERT_TRUE(QFile::copy(TestDiscs::dvdImage(), copy));
        ASSERT_TRUE(QFile::rename(copy, disc()));
        ASSERT_TRUE(lookNow());
        ASSERT_EVENTUALLY(m_events == QLatin1String("K1 K3 "));
    }

    void removeDisc()
    {
        ASSERT_TRUE(QFile::remove(disc()));
        ASSERT_TRUE(lookNow());
        ASSERT_EVENTUALLY(m_events == QLatin1String("K1 K3 K2 "));
    }

    static void setAutoPlay(bool on)
    {
        ActionRig::settings().setValue(QLatin1String(SettingsKeys::PC_AutoPlay), on);
    }

    [[nodiscard]] bool discPlays() const
    {
        const NormalPlayControl *control = m_rig.window().playControl();
        return control->currentPath() == QLatin1String(Drive) && !control->isOpening()
               && m_rig.player().isPlaying() && QPlayer::isMoving(m_rig.player().status())
               && m_rig.player().totalTime() > 0;
    }

    QString disc() const { return m_rig.path(QStringLiteral("disc.iso")); }

    ActionRig m_rig;
    QObject m_listener;
    QString m_events;
};

} // namespace

TEST_F(DiscArrival, OpensWhereNothingPlaysAndItsRemovalEndsIt)
{
    ASSERT_NO_FATAL_FAILURE(insertDisc());
    EXPECT_TRUE(m_rig.window().playControl()->hasSource()) << "by the standard of the settings";
    ASSERT_EVENTUALLY(discPlays());
    EXPECT_TRUE(m_rig.window().isPlayViewShown());
    ASSERT_NO_FATAL_FAILURE(removeDisc());
    ASSERT_EVENTUALLY(!m_rig.window().isPlayViewShown() && !m_rig.player().isPlaying());
    EXPECT_FALSE(m_rig.window().playControl()->hasSource());
}

TEST_F(DiscArrival, OpensAgainOnceNothingPlaysAnyMore)
{
    ASSERT_NO_FATAL_FAILURE(insertDisc());
    ASSERT_EVENTUALLY(discPlays());
    ASSERT_NO_FATAL_FAILURE(removeDisc());
    ASSERT_EVENTUALLY(!m_rig.window().isPlayViewShown() && !m_rig.player().isPlaying());
    m_events.clear();
    ASSERT_NO_FATAL_FAILURE(insertDisc());
    ASSERT_EVENTUALLY(discPlays());
}

TEST_F(DiscArrival, OpensNothingWhereTheSettingSaysSo)
{
    setAutoPlay(false);
    ASSERT_NO_FATAL_FAILURE(insertDisc());
    EXPECT_FALSE(m_rig.window().playControl()->hasSource());
    EXPECT_FALSE(m_rig.window().isPlayViewShown());
    ASSERT_NO_FATAL_FAILURE(removeDisc());
    m_events.clear();
    setAutoPlay(true);
    EXPECT_FALSE(m_rig.window().playControl()->hasSource()) << "a setting opens nothing";
    ASSERT_NO_FATAL_FAILURE(insertDisc());
    EXPECT_TRUE(m_rig.window().playControl()->hasSource());
    ASSERT_EVENTUALLY(discPlays());
}

TEST_F(DiscArrival, InterruptsNothing)
{
    ASSERT_TRUE(m_rig.play(QStringLiteral("film.mkv")));
    const QString path = m_rig.window().playControl()->currentPath();
    ASSERT_NO_FATAL_FAILURE(insertDisc());
    EXPECT_EQ(m_rig.window().playControl()->currentPath(), path);
    ASSERT_NO_FATAL_FAILURE(removeDisc());
    EXPECT_EQ(m_rig.window().playControl()->currentPath(), path);
    EXPECT_TRUE(m_rig.player().isPlaying());
    m_rig.stop();
}

TEST_F(DiscArrival, InterruptsNothingThatIsOnItsWay)
{
    m_rig.window().slot_playSource(TestDiscs::bluRayImage());
    ASSERT_TRUE(m_rig.window().playControl()->hasSource());
    ASSERT_NO_FATAL_FAILURE(insertDisc());
    EXPECT_EQ(m_rig.window().playControl()->currentPath(), TestDiscs::bluRayImage());
    m_rig.stop();
}
