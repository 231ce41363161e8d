#include "FakeMusicLibrary.h"
#include "FakeVideoLibrary.h"
#include "ProviderFixture.h"

#include "base/DataFolder.h"
#include "metadata/MetadataLayer.h"

namespace {

class MetadataLayerTest : public ProviderFixture {
protected:
    MetadataLayerTest() { fillCatalogue(); }

    DataFolder data{folder.path()};
    FakeVideoLibrary videos;
    FakeMusicLibrary music;
};

TEST_F(MetadataLayerTest, ARoundAndASearchUseTheSameAnswersAndTheLanguageOfTheUser)
{
    videos.addItem(1, QStringLiteral("Stalker"), 1979);
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1979);
    MetadataLayer layer(data, configuration, videos, music, {});
    layer.service().setLanguage(QStringLiteral("de"));
    EXPECT_TRUE(layer.round().run());
    EXPECT_EQ(videos.describedMovies.value(1).description.title, "Stalker (de)");
    const int before = server.countOf("/3/");
    EXPECT_TRUE(layer.service().toMovie(1, QStringLiteral("1398")));
    EXPECT_EQ(server.countOf("/3/"), before) << "from the cache";
}

TEST_F(MetadataLayerTest, WithAnOrdinaryConfigurationItWorksOfflineAndKeepsQuiet)
{
    MetadataLayer layer(data, ServerConfiguration{}, videos, music, {});
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1979);
    EXPECT_FALSE(layer.round().run());
    EXPECT_EQ(layer.service().searchMovie(QStringLiteral("Stalker"), QStringLiteral("1979")).size(), 1);
    EXPECT_EQ(server.connections(), 0);
}

TEST_F(MetadataLayerTest, AfterShutDownNobodyIsAsked)
{
    videos.addWanted(1, false, QStringLiteral("Stalker"), 1979);
    MetadataLayer layer(data, configuration, videos, music, {});
    layer.shutDown();
    EXPECT_FALSE(layer.round().run());
    EXPECT_EQ(layer.service().searchMovie(QStringLiteral("Stalker"), {}).size(), 1);
    EXPECT_EQ(server.connections(), 0);
}

} // namespace
