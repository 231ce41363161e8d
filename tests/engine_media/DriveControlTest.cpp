#include "engine/DriveControl.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using DriveControl::Medium;

class DriveControlTest : public testing::Test {
protected:
    std::string path(const char *name) const { return m_folder.filePath(QLatin1String(name)).toStdString(); }
    void write(const char *name, const QByteArray &content) const
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QTemporaryDir m_folder;
};

TEST_F(DriveControlTest, TellsWhetherADiscIsInAndCanBeRead)
{
    write("film.iso", "disc");
    write("empty.iso", "");
    ASSERT_TRUE(QDir(m_folder.path()).mkpath("folder/VIDEO_TS"));
    ASSERT_TRUE(QDir(m_folder.path()).mkpath("place of a disc"));
    const struct {
        const char *name;
        Medium medium;
        bool isReadable;
    } rows[] = {
        {"film.iso", Medium::Present, true},
        {"empty.iso", Medium::Present, false},
        {"folder", Medium::Present, true},
        {"place of a disc", Medium::None, false},
        {"nothing stands here", Medium::None, false},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(DriveControl::medium(path(row.name)), row.medium) << row.name;
        EXPECT_EQ(DriveControl::isReadable(path(row.name)), row.isReadable) << row.name;
    }
}

TEST_F(DriveControlTest, APathThatIsNoDriveHoldsNothing)
{
    for (const char *name : {"", "/dev/null", "/dev/zero"}) {
        EXPECT_EQ(DriveControl::medium(name), Medium::None) << name;
        EXPECT_FALSE(DriveControl::isReadable(name)) << name;
    }
}

} // namespace
