#include "core/MarkerFiles.h"

#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

TEST(MarkerFilesTest, EachMarkerIsLookedForOnceUnderItsOwnName)
{
    QTemporaryDir folder;
    QStringList asked;
    MarkerFiles *markers = MarkerFiles::instance();
    markers->setResolver([&](const QString &drivePath) {
        asked << drivePath;
        return folder.filePath(drivePath.section('/', -1));
    });
    QFile file(folder.filePath("PlayerIgnoreStatistics"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(markers->exists(MarkerFiles::IgnoreStatistics));
        EXPECT_FALSE(markers->exists(MarkerFiles::DebugLog));
    }
    EXPECT_EQ(asked, (QStringList{"C:/PlayerIgnoreStatistics", "C:/quorin5.debug"}));
    markers->setResolver({});
}

} // namespace
