#include "ProviderFixture.h"

namespace {

struct Row {
    const char *question;
    const char *json;
};

constexpr Row kCatalogue[] = {
    {"/3/configuration", R"j({"images":{"secure_base_url":"https://elsewhere.invalid/t/p/",
        "poster_sizes":["w92","w154","w342","w500","w780","original"],
        "backdrop_sizes":["w300","w780","w1280","original"],"still_sizes":["w92","w185","w300","original"]}})j"},
    {"/3/search/movie", R"j({"page":1,"results":[],"total_results":0})j"},
    {"/3/search/movie?query=Stalker", R"j({"results":[
        {"id":1001,"title":"Stalkers","original_title":"Stalkers","release_date":"1979-01-01"},
        {"id":1398,"title":"Stalker","original_title":"Сталкер","release_date":"1979-05-25",
         "poster_path":"/stalker.jpg","backdrop_path":"/zone.jpg","overview":"A guide."}]})j"},
    {"/3/search/movie?query=Two%20Alike", R"j({"results":[
        {"id":71,"title":"Two Alike","release_date":"2001-02-03"},
        {"id":72,"title":"Two alike!","release_date":"1950-02-03"}]})j"},
    {"/3/search/tv", R"j({"results":[]})j"},
    {"/3/search/tv?query=Northern%20Lights", R"j({"results":[
        {"id":501,"name":"Northern Lights","original_name":"Nordlicht","first_air_date":"2011-09-01",
         "poster_path":"/lights.jpg"}]})j"},
    {"/3/find/tt0079944", R"j({"movie_results":[{"id":1398}],"tv_results":[]})j"},
    {"/3/movie/1398", R"j({"id":1398,"imdb_id":"tt0079944","title":"Stalker","original_title":"Сталкер",
        "overview":"A guide leads two men.","release_date":"1979-05-25","runtime":162,"vote_average":8.06,
        "genres":[{"id":878,"name":"Science Fiction"},{"id":18,"name":"Drama"}],
        "production_countries":[{"iso_3166_1":"SU","name":"Soviet Union"}],
        "poster_path":"/stalker.jpg","backdrop_path":"/zone.jpg",
        "belongs_to_collection":{"id":77,"name":"Zone Collection","poster_path":"/zonebox.jpg"},
        "credits":{"cast":[{"name":"Alisa Freindlich"},{"name":"Aleksandr Kaidanovsky"}],
                   "crew":[{"name":"Andrei Tarkovsky","job":"Director"},{"name":"Eduard Artemyev","job":"Music"}]}})j"},
    {"/3/movie/1398?language=de-DE", R"j({"id":1398,"title":"Stalker (de)","overview":"",
        "release_date":"1979-05-25","translations":{"translations":[
            {"iso_639_1":"fr","data":{"overview":"Un guide."}},
            {"iso_639_1":"en","data":{"overview":"A guide leads two men."}}]}})j"},
    {"/3/collection/77", R"j({"id":77,"name":"Zone Collection","overview":"All of the zone.",
        "poster_path":"/zonebox.jpg","backdrop_path":null,"parts":[{"id":1398}]})j"},
    {"/3/tv/501",
     R"j({"id":501,"name":"Northern Lights","original_name":"Nordlicht","overview":"Polar nights.",
        "first_air_date":"2011-09-01","vote_average":7.5,"genres":[{"name":"Drama"}],
        "created_by":[{"name":"Ada Berg"}],"poster_path":"/lights.jpg","backdrop_path":null,
        "external_ids":{"imdb_id":"tt7654321","tvdb_id":99},
        "seasons":[{"id":1,"season_number":1,"name":"Season 1","air_date":"2011-09-01"}],
        "credits":{"cast":[{"name":"Kari Vik"}]}})j"},
    {"/3/tv/501/season/1", R"j({"id":1,"season_number":1,"name":"Season 1","overview":"The first.",
        "poster_path":"/season1.jpg","air_date":"2011-09-01","episodes":[
        {"id":11,"episode_number":1,"name":"Dusk","overview":"It gets dark.","air_date":"2011-09-01",
         "still_path":"/dusk.jpg","crew":[{"name":"Ola Ness","job":"Director"}],"guest_stars":[{"name":"Per Lie"}]},
        {"id":12,"episode_number":2,"name":"Night","overview":"Dark.","air_date":"2011-09-08","still_path":null}]})j"},
    {"/3/tv/501/season/1/episode/2", R"j({"id":12,"episode_number":2,"name":"Night","overview":"Dark.",
        "air_date":"2011-09-08","still_path":null})j"},
};

constexpr const char *kPictures[] = {"/t/p/w500/stalker.jpg", "/t/p/w342/stalker.jpg", "/t/p/w1280/zone.jpg",
                                     "/t/p/w500/zonebox.jpg", "/t/p/w500/lights.jpg",  "/t/p/w342/lights.jpg",
                                     "/t/p/w500/season1.jpg", "/t/p/w300/dusk.jpg"};

} // namespace

void ProviderFixture::fillCatalogue()
{
    for (const Row &row : kCatalogue)
        server.answer(row.question, QByteArray(row.json));
    for (const char *picture : kPictures)
        server.answer(picture,
                      {StandInServer::Reply{200, jpeg() + picture, {"Content-Type: image/jpeg"}, {}}});
}
