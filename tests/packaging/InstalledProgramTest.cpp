#include "installed/InstalledTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

TEST(InstalledProgramTest, TheProgramLiesBesideAllThatItLooksFor)
{
    const InstalledTree tree(InstalledTree::Component::Program);
    ASSERT_TRUE(tree.isValid()) << qPrintable(tree.message());

    const QFileInfo program(QFileInfo(tree.command()).canonicalFilePath());
    EXPECT_EQ(program.fileName(), "Quorin Player 6");
    EXPECT_TRUE(program.isExecutable());
    const QDir folder = program.dir();
    for (const char *name : {"libOrbix.so", "quorin6.rcc", "Quorin Player Server"}) {
        EXPECT_TRUE(folder.exists(name)) << name;
        EXPECT_GT(QFileInfo(folder.filePath(name)).size(), 0) << name;
    }
    EXPECT_GE(QDir(folder.filePath("system/shaders/fx")).entryList({"*.fx"}, QDir::Files).size(), 3)
        << "the effects of the menu";
    EXPECT_FALSE(folder.exists("system/CMakeLists.txt"));

    int languages = 0;
    const QStringList sources = QDir(QUORIN_TRANSLATIONS).entryList({"Quorin6_*.ts"});
    for (const QString &source : sources) {
        EXPECT_TRUE(folder.exists("QLanguage/" + QFileInfo(source).baseName() + ".qm")) << qPrintable(source);
        ++languages;
    }
    EXPECT_GT(languages, 0);
}

TEST(InstalledProgramTest, TheCommandStillFindsTheProgramWhenTheTreeIsMoved)
{
    const InstalledTree tree(InstalledTree::Component::Program);
    ASSERT_TRUE(tree.isValid()) << qPrintable(tree.message());
    const QString moved = tree.path() + " moved";
    ASSERT_TRUE(QDir().rename(tree.path(), moved));
    const QFileInfo program(QFileInfo(moved + "/bin/quorin-player").canonicalFilePath());
    EXPECT_TRUE(program.isFile());
    EXPECT_TRUE(program.filePath().startsWith(QFileInfo(moved).canonicalFilePath()));
}

} // namespace
