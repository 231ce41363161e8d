#include "platform/LibraryNeeds.h"
#include "platform/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <dlfcn.h>

namespace {

// The program itself stands on libraries that stand on others.
QString ownFile()
{
    return QStringLiteral("/proc/self/exe");
}

QByteArray ownBytes()
{
    QFile file(ownFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString fileOf(const QTemporaryDir &folder, const QByteArray &bytes)
{
    const QString path = folder.filePath(QStringLiteral("library.so"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return path;
}

bool isLoaded(const QString &name)
{
    return dlopen(QFile::encodeName(name).constData(), RTLD_LAZY | RTLD_NOLOAD) != nullptr;
}

} // namespace

TEST(LibraryNeedsTest, EachStandsBehindWhatItNeedsItself)
{
    const QStringList names = LibraryNeeds::inOrder(ownFile());
    const int core = names.indexOf(QStringLiteral("libQt5Core.so.5"));
    const int gui = names.indexOf(QStringLiteral("libQt5Gui.so.5"));
    const int c = names.indexOf(QStringLiteral("libc.so.6"));
    ASSERT_GE(c, 0);
    EXPECT_LT(c, core);
    EXPECT_LT(core, gui);
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), names.size());
}

TEST(LibraryNeedsTest, WhatALibraryNeedsIsThereOnceItHasBeenLoaded)
{
    const QString engine = QStringLiteral(QUORIN_ORBIX);
    const QStringList names = LibraryNeeds::inOrder(engine);
    ASSERT_TRUE(names.contains(QStringLiteral("libmpv.so.2")));
    ASSERT_FALSE(isLoaded(QStringLiteral("libmpv.so.2")));
    LibraryNeeds::load(engine);
    EXPECT_TRUE(isLoaded(QStringLiteral("libmpv.so.2")));
    EXPECT_FALSE(isLoaded(engine));
}

TEST(LibraryNeedsTest, AFileThatIsMissingOrNoLibraryNeedsNothing)
{
    const QTemporaryDir folder;
    EXPECT_EQ(LibraryNeeds::inOrder(folder.filePath(QStringLiteral("missing"))), QStringList());
    EXPECT_EQ(LibraryNeeds::inOrder(folder.path()), QStringList());
    EXPECT_EQ(LibraryNeeds::inOrder(fileOf(folder, {})), QStringList());
    EXPECT_EQ(LibraryNeeds::inOrder(fileOf(folder, "no library")), QStringList());
}

// Whatever the numbers in it say, nothing outside the file is read.
TEST(LibraryNeedsTest, ADamagedLibraryDoesNotLeadAstray)
{
    const QTemporaryDir folder;
    const QByteArray whole = ownBytes();
    ASSERT_GT(whole.size(), 4096);
    for (const int length : {1, 16, 63, 64, 120, 1000, 4096, int(whole.size() / 2), int(whole.size() - 1)})
        (void)LibraryNeeds::inOrder(fileOf(folder, whole.left(length)));
    // Each byte of its head, of the table behind it, and of the names.
    for (int at = 4; at < 800; at += 3) {
        QByteArray damaged = whole.left(1 << 20);
        damaged[at] = char(~damaged.at(at));
        (void)LibraryNeeds::inOrder(fileOf(folder, damaged));
    }
    EXPECT_FALSE(LibraryNeeds::inOrder(fileOf(folder, whole)).isEmpty());
}

TEST(ProgramFolderTest, IsWhereTheProgramLies)
{
    EXPECT_EQ(QDir(programFolder()).canonicalPath(),
              QDir(QCoreApplication::applicationDirPath()).canonicalPath());
}
