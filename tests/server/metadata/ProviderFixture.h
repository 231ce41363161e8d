// A provider of the tests' own: the stand-in server with a few films and shows, and a clock that is stepped.
#pragma once

#include "StandInServer.h"
#include "SteppedClock.h"

#include "metadata/MetadataHttp.h"

#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

class ProviderFixture : public testing::Test {
protected:
    static constexpr char Key[] = "secret-key";

    ProviderFixture()
    {
        configuration.metadataEndpoint = server.url(QStringLiteral("/3"));
        configuration.metadataImages = server.url(QStringLiteral("/t/p/"));
        configuration.metadataKey = QString::fromLatin1(Key);
    }

    [[nodiscard]] std::unique_ptr<MetadataHttp> makeHttp()
    {
        return std::make_unique<MetadataHttp>(configuration, cacheFolder(), clock, limits);
    }
    [[nodiscard]] QString cacheFolder() const { return folder.path(); }
    [[nodiscard]] MetadataCall call(const QString &language = QStringLiteral("en"))
    {
        return {language, stop};
    }

    // Films, shows, a collection and pictures.
    void fillCatalogue();

    [[nodiscard]] static QByteArray jpeg() { return QByteArrayLiteral("\xFF\xD8\xFF\xE0 a picture"); }

    QTemporaryDir folder;
    StandInServer server;
    SteppedClock clock;
    StopFlag stop;
    ServerConfiguration configuration;
    MetadataHttp::Limits limits;
};
