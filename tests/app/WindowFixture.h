// A face of the program over the scripted engine. Each test gets a player of its own.
#pragma once

#include "core/SettingsManager.h"
#include "player/QPlayer.h"
#include "support/FakeEngineLoader.h"
#include "support/TestLog.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

class WindowFixture : public testing::Test {
protected:
    WindowFixture()
    {
        // Windows of tests are no player that others on the session's bus should find.
        qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + m_folder.filePath("no-bus").toLocal8Bit());
        // The window of the test before has ended the application; a loop that has run to its end takes that
        // back.
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        QCoreApplication::exec();
        fakeEngine().reset();
        fakeEngine().setAutomatic(true);
        QPlayer::setLoaderFactory(fakeEngineLoader);
        for (const char *key :
             {"PC_AlwaysOnTop", "PC_FullScreen", "PC_MaxSize", "PC_LastWindowSize", "PC_LastWindowPos",
              "PC_VolumeCount", "PC_VolumeMute", "PC_Played", "PC_LastPositionMap"})
            SettingsManager::instance()->remove(QLatin1String(key));
    }
    ~WindowFixture() override { QPlayer::releaseInstance(); }

    QString makeFile(const QString &name)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }
    static int openCount()
    {
        int count = 0;
        for (const std::string &call : fakeEngine().calls())
            count += call.rfind("IVDPlay::open(", 0) == 0 ? 1 : 0;
        return count;
    }

    QTemporaryDir m_folder;
};
