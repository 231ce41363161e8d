#include "online/MemZip.h"

#include "ZipMaker.h"

#include "support/TestLog.h"

#include <QDir>
#include <QDirIterator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace {

constexpr quint32 kLinkMode = 0120777;

class MemZipTest : public testing::Test {
protected:
    [[nodiscard]] QString folder() const { return m_base.filePath("ad"); }

    [[nodiscard]] bool unzip(const QByteArray &archive, const MemZipLimits &limits = {}) const
    {
        return MemZip::Unzip(archive.constData(), std::size_t(archive.size()), folder(), limits);
    }

    static QByteArray read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    // Everything below the base, sorted.
    [[nodiscard]] QStringList tree() const
    {
        QStringList paths;
        QDirIterator it(m_base.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
        while (it.hasNext())
            paths << QDir(m_base.path()).relativeFilePath(it.next());
        paths.sort();
        return paths;
    }

    QTemporaryDir m_base;
};

TEST_F(MemZipTest, FoldersAndFilesAreMade)
{
    const QByteArray large(300000, 'x');
    const QByteArray archive =
        makeZip({{"pic/", {}}, {"pic/a.png", large}, {"ad.xml", "<root/>"}, {"deep/er/b", {}}});
    EXPECT_TRUE(unzip(archive));
    EXPECT_EQ(tree(), (QStringList{"ad", "ad/ad.xml", "ad/deep", "ad/deep/er", "ad/deep/er/b", "ad/pic",
                                   "ad/pic/a.png"}));
    EXPECT_EQ(read(folder() + "/pic/a.png"), large);
    EXPECT_EQ(read(folder() + "/ad.xml"), "<root/>");
    EXPECT_EQ(TestLog::infoLines(),
              (QStringList{QStringLiteral("Memzip unzip: vector size = %1 ").arg(archive.size()),
                           "Memzip unzip: EntryData vector size = 4 "}));
}

TEST_F(MemZipTest, ANewArchiveReplacesAndKeepsTheRest)
{
    ASSERT_TRUE(QDir().mkpath(folder()));
    write(folder() + "/ad.xml", "old");
    write(folder() + "/mine", "kept");
    EXPECT_TRUE(unzip(makeZip({{"ad.xml", "new"}})));
    EXPECT_EQ(read(folder() + "/ad.xml"), "new");
    EXPECT_EQ(tree(), (QStringList{"ad", "ad/ad.xml", "ad/mine"}));
}

TEST_F(MemZipTest, WhatIsNoArchiveIsToldAndMakesNothing)
{
    const QByteArray whole = makeZip({{"a", "1"}});
    for (const QByteArray &bytes : {QByteArray(), makeZip({}), QByteArray("PK\3\4"), QByteArray(5000, 'x'),
                                    whole.left(whole.size() - 20)}) {
        EXPECT_FALSE(unzip(bytes));
        EXPECT_EQ(TestLog::infoLines().constLast(), "Memzip unzip: open failed. ");
    }
    EXPECT_FALSE(MemZip::Unzip(nullptr, 0, folder()));
    EXPECT_TRUE(tree().isEmpty());
}

struct NameRow {
    const char *title;
    QByteArray name;
};

class HostileNameTest : public MemZipTest, public testing::WithParamInterface<NameRow> {};

TEST_P(HostileNameTest, IsRefusedBeforeAnythingIsWritten)
{
    EXPECT_FALSE(unzip(makeZip({{"good", "1"}, {GetParam().name, "2"}})));
    EXPECT_TRUE(tree().isEmpty());
    EXPECT_TRUE(TestLog::infoLines().at(2).startsWith("Memzip unzip error: open file error, name = "));
}

INSTANTIATE_TEST_SUITE_P(
    Names, HostileNameTest,
    testing::Values(NameRow{"Parent", "../x"}, NameRow{"ParentWithin", "a/../../x"},
                    NameRow{"ParentAtEnd", "a/.."}, NameRow{"ParentFolder", "../"}, NameRow{"Here", "a/./x"},
                    NameRow{"Absolute", "/etc/x"}, NameRow{"DoubleSlash", "a//x"},
                    NameRow{"Backslash", "..\\x"}, NameRow{"BackslashWithin", "a\\x"},
                    NameRow{"Drive", "C:/x"}, NameRow{"DriveAlone", "C:x"}, NameRow{"Stream", "a.txt:b"},
                    NameRow{"Share", "//host/share/x"}, NameRow{"Null", QByteArray("a\0.png", 6)},
                    NameRow{"Newline", "a\nb"}, NameRow{"Device", "pic/CON.png"},
                    NameRow{"NumberedDevice", "lpt1"}, NameRow{"DotAtEnd", "a."},
                    NameRow{"BlankAtEnd", "a /x"}, NameRow{"Empty", ""}, NameRow{"Slash", "/"},
                    NameRow{"TooLong", QByteArray(1025, 'a')}, NameRow{"Twice", "good"},
                    NameRow{"TwiceInCapitals", "GOOD"}, NameRow{"BelowAFile", "good/x"}),
    [](const auto &row) { return row.param.title; });

TEST_F(MemZipTest, AFileUnderTheNameOfAFolderIsRefused)
{
    EXPECT_FALSE(unzip(makeZip({{"a/b", "1"}, {"A", "2"}})));
    EXPECT_TRUE(tree().isEmpty());
}

TEST_F(MemZipTest, LinksAndOtherKindsOfFilesAreRefused)
{
    for (const quint32 mode : {kLinkMode, 0010666u, 0020666u, 0140777u}) {
        EXPECT_FALSE(unzip(makeZip({{"link", "/etc/passwd", mode}}))) << mode;
        EXPECT_TRUE(tree().isEmpty()) << mode;
    }
}

TEST_F(MemZipTest, ALinkThatLiesInTheFolderLeadsNowhere)
{
    ASSERT_TRUE(QDir().mkpath(folder()));
    ASSERT_TRUE(QDir().mkpath(m_base.filePath("outside")));
    ASSERT_TRUE(QFile::link(m_base.filePath("outside"), folder() + "/pic"));
    EXPECT_FALSE(unzip(makeZip({{"first", "1"}, {"pic/x", "2"}})));
    EXPECT_EQ(tree(), (QStringList{"ad", "ad/pic", "outside"}));
    EXPECT_EQ(TestLog::infoLines().constLast(), "Memzip unzip error: creator dir error, name = pic/x ");
}

TEST_F(MemZipTest, AnEntryWithAWrongSumFailsAndLeavesNothing)
{
    QByteArray archive = makeZip({{"a", "1"}, {"b", QByteArray(1000, 'y')}}, ZipPacking::Stored);
    const int at = archive.indexOf("yyyy");
    archive[at] = 'z';
    EXPECT_FALSE(unzip(archive));
    EXPECT_TRUE(tree().isEmpty());
    EXPECT_TRUE(TestLog::infoLines().contains("Memzip unzip error: open file error, name = b "));
}

TEST_F(MemZipTest, EveryByteOfAnArchiveMayBeDamaged)
{
    const QByteArray archive = makeZip({{"a/b", QByteArray(200, 'q')}, {"c", "text"}});
    for (int i = 0; i < archive.size(); ++i) {
        QByteArray damaged = archive;
        damaged[i] = char(~damaged[i]);
        const bool isDone = unzip(damaged);
        const QStringList paths = tree();
        EXPECT_EQ(paths.isEmpty(), !isDone) << i << qPrintable(paths.join(' '));
        EXPECT_TRUE(paths.filter(".unzip").isEmpty()) << i;
        QDir(folder()).removeRecursively();
        // The log of the runs is of no interest and would only grow.
        TestLog::reset();
    }
}

TEST_F(MemZipTest, AnArchiveMayBeCutAnywhere)
{
    const QByteArray archive = makeZip({{"a/b", QByteArray(200, 'q')}, {"c", "text"}});
    for (int size = 0; size < archive.size(); ++size)
        EXPECT_FALSE(unzip(archive.left(size))) << size;
    EXPECT_TRUE(tree().isEmpty());
}

TEST_F(MemZipTest, MoreThanTheLimitsAllowIsRefused)
{
    const QByteArray archive = makeZip({{"a", QByteArray(5000, '0')}, {"b", QByteArray(5000, '0')}});
    struct Row {
        const char *name;
        MemZipLimits limits;
        bool isAllowed;
    };
    const Row rows[] = {
        {"entries", {1, 1 << 20, 1000, 0}, false},
        {"total", {10, 9999, 1000, 0}, false},
        {"ratio", {10, 1 << 20, 2, 0}, false},
        {"exactly", {2, 10000, 1000, 0}, true},
        {"ratio of little", {10, 1 << 20, 2, 10000}, true},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(unzip(archive, row.limits), row.isAllowed) << row.name;
        EXPECT_EQ(tree().isEmpty(), !row.isAllowed) << row.name;
        QDir(folder()).removeRecursively();
    }
}

TEST_F(MemZipTest, ABombIsRefusedByTheLimitsThatAlwaysHold)
{
    EXPECT_FALSE(unzip(makeZip({{"bomb", QByteArray(50 * 1024 * 1024, '\0')}})));
    EXPECT_TRUE(tree().isEmpty());
}

TEST_F(MemZipTest, AnEntryThatUnpacksToMoreThanItClaimsIsRefused)
{
    QByteArray archive = makeZip({{"a", QByteArray(100000, '0')}});
    // The claimed size stands in the list at the archive's end, 24 bytes behind its mark.
    const int list = archive.lastIndexOf("PK\1\2");
    ASSERT_GT(list, 0);
    archive[list + 24] = 10;
    archive[list + 25] = 0;
    archive[list + 26] = 0;
    EXPECT_FALSE(unzip(archive));
    EXPECT_TRUE(tree().isEmpty());
}

TEST_F(MemZipTest, AFullDiscLeavesNothing)
{
    ASSERT_TRUE(QDir().mkpath(folder()));
    write(folder() + "/a", "old");
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit small = before;
    small.rlim_cur = 1000;
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool isDone = unzip(makeZip({{"a", "new"}, {"b", QByteArray(5000, '0')}}));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(isDone);
    EXPECT_EQ(tree(), (QStringList{"ad", "ad/a"}));
    EXPECT_EQ(read(folder() + "/a"), "old");
}

} // namespace
