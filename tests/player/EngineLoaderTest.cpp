#include "player/EngineLoader.h"

#include "support/FakeEngineLoader.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(EngineLoader, AMissingLibraryTellsItsName)
{
    LibraryEngineLoader loader(QStringLiteral("/nowhere/Orbix"));
    EXPECT_FALSE(loader.load());
    EXPECT_TRUE(loader.errorText().contains(QStringLiteral("Orbix"))) << qPrintable(loader.errorText());
    EXPECT_EQ(loader.createFunction(), nullptr);
    EXPECT_EQ(loader.releaseFunction(), nullptr);
    loader.unload();
}

TEST(EngineLoader, ABrokenLibraryFileIsRefused)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("libOrbix.so")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library at all");
    file.close();
    LibraryEngineLoader loader(file.fileName());
    EXPECT_FALSE(loader.load());
    EXPECT_FALSE(loader.errorText().isEmpty());
}

TEST(EngineLoader, ALibraryWithoutBothFunctionsIsRefused)
{
    LibraryEngineLoader loader(QStringLiteral(QUORIN_NO_ENGINE));
    EXPECT_FALSE(loader.load());
    EXPECT_TRUE(loader.errorText().contains(QStringLiteral("ReleaseVDPlayer")));
    EXPECT_EQ(loader.createFunction(), nullptr);
}

TEST(EngineLoader, FindsTheTwoFunctions)
{
    LibraryEngineLoader loader(fakeEngineFile());
    ASSERT_TRUE(loader.load());
    EXPECT_NE(loader.createFunction(), nullptr);
    EXPECT_NE(loader.releaseFunction(), nullptr);
    loader.unload();
    EXPECT_EQ(loader.createFunction(), nullptr);
}

TEST(EngineLoader, TheVariableNamesAnotherFile)
{
    qputenv("QUORIN_ENGINE", fakeEngineFile().toUtf8());
    LibraryEngineLoader loader;
    qunsetenv("QUORIN_ENGINE");
    EXPECT_TRUE(loader.load());
    loader.unload();
}

TEST(EngineLoader, TheDefaultIsOrbixInTheApplicationFolder)
{
    LibraryEngineLoader loader;
    // A build may have put the real engine there.
    if (!loader.load()) {
        EXPECT_TRUE(loader.errorText().contains(QCoreApplication::applicationDirPath() + QStringLiteral("/")))
            << qPrintable(loader.errorText());
    }
    loader.unload();
}
