#include "BucketStatistics.h"

#include "ProtocolNames.h"

#include <QJsonObject>

#include <algorithm>

namespace {

constexpr char kUserBehaviour[] = "UserBehaviour";

struct Steps {
    std::array<int, 4> edges; // a count that equals an edge lies above it
    std::array<const char *, 5> texts;
};

constexpr Steps kVideoSteps{{10, 50, 200, 500},
                            {"less than 10", "10 ~ 50", "50 ~ 200", "200 ~ 500", "more than 500"}};
constexpr Steps kMusicSteps{{50, 200, 500, 1000},
                            {"less than 50", "50 ~ 200", "200 ~ 500", "500 ~ 1000", "more than 1000"}};

struct Row {
    LibraryRole role;
    const char *key;
    const Steps &steps;
};

constexpr Row kRows[]{
    {LibraryRole::Movies, "LibraryMovieCount", kVideoSteps},
    {LibraryRole::TvShows, "LibraryTvshowEpisodeCount", kVideoSteps},
    {LibraryRole::Videos, "LibraryVideoCount", kVideoSteps},
    {LibraryRole::AdultContent, "LibraryAdultContentCount", kVideoSteps},
    {LibraryRole::Music, "LibraryMusicContentCount", kMusicSteps},
};

const Row *rowOf(LibraryRole role)
{
    const auto row =
        std::find_if(std::begin(kRows), std::end(kRows), [&](const Row &r) { return r.role == role; });
    return row == std::end(kRows) ? nullptr : row;
}

} // namespace

QString BucketStatistics::bucket(LibraryRole role, int count)
{
    const Row *row = rowOf(role);
    if (!row)
        return {};
    const auto &edges = row->steps.edges;
    const auto step = std::upper_bound(edges.begin(), edges.end(), count) - edges.begin();
    return QLatin1String(row->steps.texts[std::size_t(step)]);
}

void BucketStatistics::report(LibraryRole role, int count)
{
    const Row *row = rowOf(role);
    if (!row || !m_sink || m_isReported[std::size_t(role) - LibraryRoles::First].exchange(true))
        return;
    m_sink(QLatin1String(kUserBehaviour), QLatin1String(row->key), bucket(role, count));
}

void BucketStatistics::reportServer(const QJsonObject &counts)
{
    if (counts.isEmpty() || !m_sink || m_isServerReported.exchange(true))
        return;
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        const QString value = count->isString() ? count->toString() : QString::number(count->toInt());
        m_sink(QLatin1String(Rpc::Key::movieServer), count.key(), value);
    }
}
