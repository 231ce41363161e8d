// Sources whose row says more than their path, a scheme or the title of a cue sheet, through the window.
#include "WindowFixture.h"

#include "core/SettingsKeys.h"
#include "overlays/PlayOverlays.h"
#include "pc/NormalMainWindow.h"
#include "pc/NormalPlayControl.h"
#include "queue/NormalPlaylistView.h"
#include "queue/QueueOrder.h"

namespace {

constexpr int Patience = 10000;

class QueueSourcesTest : public WindowFixture {
protected:
    QueueSourcesTest()
    {
        forget();
        m_window = std::make_unique<NormalMainWindow>(nullptr, true);
        m_playlist = m_window->overlays()->playlist();
    }
    ~QueueSourcesTest() override
    {
        m_window.reset();
        forget();
    }

    // A film of the network and two titles of one cue sheet.
    void addRows()
    {
        const QString sheet = makeFile("album.cue");
        m_playlist->addSources({"nfs:" + makeFile("film.mkv"), "1_" + sheet, "2_" + sheet});
        ASSERT_TRUE(QTest::qWaitFor([this] { return rows() == 3; }, Patience));
    }
    [[nodiscard]] int rows() const { return m_playlist->queue()->model()->sourceCount(); }
    [[nodiscard]] int playingRow() const
    {
        const QModelIndex node = m_playlist->queue()->playNode();
        return node.isValid() ? node.row() : -1;
    }
    // Waits until the nth source that the engine was asked for plays.
    bool plays(int number)
    {
        return QTest::qWaitFor(
            [this, number] {
                return openCount() == number && !m_window->playControl()->isOpening()
                       && m_playlist->queue()->mark() == PlayQueue::Mark::Playing;
            },
            Patience);
    }
    // Plays a row and lets sources end as often as told. The rows that have played; without the queue's end
    // where it goes on after them.
    QVector<int> rowsPlayed(int first, int loopType, int ends)
    {
        m_playlist->queue()->setLoopType(loopType);
        const int before = openCount();
        m_playlist->queue()->playRow(m_playlist->queue()->model()->index(first));
        QVector<int> played;
        for (int number = 1; number <= ends + 1; ++number) {
            if (!plays(before + number)) {
                ADD_FAILURE() << "source " << number << " does not play";
                break;
            }
            played << playingRow();
            if (number <= ends)
                end();
        }
        return played;
    }
    static void end()
    {
        fakeEngine().raise([](libvp::IVDPlayCallback &callback) { callback.OnPlayBackEnded(); });
    }

    std::unique_ptr<NormalMainWindow> m_window;
    NormalPlaylistView *m_playlist{nullptr};

private:
    static void forget()
    {
        for (const char *key : {SettingsKeys::PC_Playlist, SettingsKeys::PC_PlaylistLoopType,
                                SettingsKeys::PC_PlaylistSortType})
            SettingsManager::instance()->remove(QLatin1String(key));
    }
};

TEST_F(QueueSourcesTest, SequenceGoesFromRowToRowAndEndsAtTheLast)
{
    addRows();
    EXPECT_EQ(rowsPlayed(0, QueueOrder::Sequence, 2), QVector<int>({0, 1, 2}));
    end();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window->isPlayViewShown(); }, Patience));
    EXPECT_EQ(rows(), 3);
}

TEST_F(QueueSourcesTest, RepeatOneStaysWithTheRow)
{
    addRows();
    for (const int row : {0, 2})
        EXPECT_EQ(rowsPlayed(row, QueueOrder::RepeatOne, 2), QVector<int>({row, row, row}));
}

TEST_F(QueueSourcesTest, RepeatAllGoesFromTheLastRowToTheFirst)
{
    addRows();
    EXPECT_EQ(rowsPlayed(1, QueueOrder::RepeatAll, 2), QVector<int>({1, 2, 0}));
}

TEST_F(QueueSourcesTest, ADiscImageBehindASchemeStaysOneRow)
{
    const QString image = "nfs:" + makeFile("disc.iso");
    m_playlist->addSources({image});
    ASSERT_TRUE(QTest::qWaitFor([this] { return rows() == 1; }, Patience));
    fakeEngine().setStatistic(libvp::VD_Stat_SourceForm, libvp::VD_Source_ImageDvd);
    m_window->slot_playSource(image);
    ASSERT_TRUE(plays(1));
    fakeEngine().raise([](libvp::IVDPlayCallback &callback) {
        const libvp::VDVideoInfo info{};
        callback.OnVideoInfo(&info);
    });
    ASSERT_TRUE(QTest::qWaitFor([this] { return m_window->playControl()->isDisc(); }, Patience));
    EXPECT_EQ(m_playlist->queue()->count(), 1);
    EXPECT_EQ(playingRow(), 0);
}

} // namespace
