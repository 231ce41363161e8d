// A library of fifty thousand: what it costs in memory, and that a record costs the same wherever it stands.
#include "ServerFixture.h"
#include "StoredLibrary.h"

#include "library/HttpTransport.h"
#include "library/JsonRpc.h"
#include "library/VideoLists.h"
#include "library/VideoProtocol.h"
#include "support/Sanitizers.h"

#include <QElapsedTimer>

#include <algorithm>

namespace {

constexpr int Many = 50000;
constexpr int Samples = 101;
constexpr int MostKib = 200 * 1024;
// What stands between the two costs is noise; a list that were walked through would be far beyond it.
constexpr double Tolerance = 3;

} // namespace

class BigLibraryTest : public ServerFixture {
protected:
    // The median cost of the record and of its neighbours.
    [[nodiscard]] double recordMs(int index)
    {
        HttpTransport transport;
        const JsonRpc rpc(transport, m_server.port());
        const VideoProtocol requests(rpc);
        const int library = requests.libraryId().value_or(-1);
        const VideoListRow &row = VideoLists::row(LibraryRole::Movies);
        LibraryQuery query;
        query.sortMethod = "title";
        query.sortOrder = "ascending";
        std::vector<double> costs;
        for (int i = 0; i < Samples; ++i) {
            QElapsedTimer timer;
            timer.start();
            const QJsonArray entry = requests.entry(row, library, query, index);
            costs.push_back(double(timer.nsecsElapsed()) / 1e6);
            EXPECT_EQ(entry.first().toObject().value("title").toString(),
                      QStringLiteral("Film number %1").arg(index, 6, 10, QLatin1Char('0')));
        }
        std::nth_element(costs.begin(), costs.begin() + Samples / 2, costs.end());
        return costs[Samples / 2];
    }
};

TEST_F(BigLibraryTest, TheLastFilmCostsWhatTheFirstDoes)
{
    ASSERT_TRUE(StoredLibrary::addFilms(m_data.filePath("server"), m_tree.films(), Many));
    ASSERT_TRUE(m_server.start());
    (void)recordMs(0); // the order is made once
    const double first = recordMs(0);
    const double last = recordMs(Many - 1);
    std::printf("# record 0: %.2f ms, record %d: %.2f ms, memory: %.1f MB\n", first, Many - 1, last,
                m_server.residentKib() / 1024.0);
    EXPECT_LT(last, first * Tolerance);
    if (!Sanitizers::HoldsMemory) {
        EXPECT_LT(m_server.residentKib(), MostKib);
    }
    EXPECT_EQ(m_server.stop(), 0);
}

TEST_F(BigLibraryTest, ALoadOfAllSongsStaysWithinTheServersMemory)
{
    ASSERT_TRUE(StoredLibrary::addSongs(m_data.filePath("server"), m_tree.music(), Many));
    startServer();
    QElapsedTimer timer;
    timer.start();
    load(LibraryRole::Music);
    std::printf("# load of %d songs: %lld ms, memory: %.1f MB\n", Many, timer.elapsed(),
                m_server.residentKib() / 1024.0);
    EXPECT_EQ(m_manager->music().songs().size(), Many);
    EXPECT_EQ(m_manager->music().albums().size(), Many / 10);
    EXPECT_EQ(m_manager->music().artists().size(), Many / 100);
    if (!Sanitizers::HoldsMemory) {
        EXPECT_LT(m_server.residentKib(), MostKib);
    }
}
