#include "library/BucketStatistics.h"

#include <gtest/gtest.h>

#include <QJsonObject>
#include <QStringList>

namespace {

TEST(BucketStatistics, CountOnAnEdgeFallsIntoTheStepAbove)
{
    struct Row {
        LibraryRole role;
        int count;
        const char *text;
    };
    for (const Row &row :
         {Row{LibraryRole::Movies, 0, "less than 10"}, Row{LibraryRole::Movies, 9, "less than 10"},
          Row{LibraryRole::Movies, 10, "10 ~ 50"}, Row{LibraryRole::TvShows, 50, "50 ~ 200"},
          Row{LibraryRole::Videos, 200, "200 ~ 500"}, Row{LibraryRole::Movies, 499, "200 ~ 500"},
          Row{LibraryRole::Movies, 500, "more than 500"},
          Row{LibraryRole::AdultContent, 501, "more than 500"}, Row{LibraryRole::Music, 49, "less than 50"},
          Row{LibraryRole::Music, 50, "50 ~ 200"}, Row{LibraryRole::Music, 999, "500 ~ 1000"},
          Row{LibraryRole::Music, 1000, "more than 1000"}, Row{LibraryRole::Collections, 5, ""}})
        EXPECT_EQ(BucketStatistics::bucket(row.role, row.count), row.text) << row.count;
}

TEST(BucketStatistics, EachRoleReportsOnceAndCollectionsNever)
{
    QStringList told;
    BucketStatistics statistics([&](const QString &category, const QString &key, const QString &value) {
        told.append(category + '|' + key + '|' + value);
    });
    statistics.report(LibraryRole::Movies, 5);
    statistics.report(LibraryRole::Movies, 500);
    statistics.report(LibraryRole::Collections, 5);
    statistics.report(LibraryRole::Music, 60);
    EXPECT_EQ(told, (QStringList{"UserBehaviour|LibraryMovieCount|less than 10",
                                 "UserBehaviour|LibraryMusicContentCount|50 ~ 200"}));
}

} // namespace
