// A video library in memory: what a test puts in, and what was stored into it. Lists answer a pattern.
#pragma once

#include "store/IVideoLibrary.h"

#include <QHash>
#include <QSet>

class FakeVideoLibrary final : public IVideoLibrary {
public:
    struct Stored {
        Description description;
        QString collection;
    };
    struct StoredEpisode {
        Description show;
        Description episode;
        int season{0};
        int number{0};
    };
    struct StoredShow {
        Description description;
        QMap<int, Description> seasons;
    };

    QMap<Role, QVector<MovieRecord>> lists;
    QVector<ShowRecord> showList;
    QHash<int, QVector<SeasonRecord>> seasonLists;
    QMap<QPair<int, int>, QVector<EpisodeRecord>> episodeLists;
    QHash<int, ScannedVideo> items;
    QVector<Wanted> wanted;     // as long as not described or tried
    QVector<Wanted> identified; // all that have been described
    bool takesDescriptions{true};

    QMap<int, Stored> matchedMovies;
    QMap<int, StoredEpisode> matchedEpisodes;
    QMap<int, Stored> describedMovies;
    QMap<int, StoredShow> describedShows;
    QMap<int, Description> describedEpisodes;
    QMap<QString, Description> describedCollections;
    QSet<QPair<bool, int>> tried;
    mutable int wantingCalls{0};

    Page<MovieRecord> movies(Role role, const ListRequest &request) const override
    {
        return pageOf(lists.value(role), request);
    }
    MovieRecord movie(int idFile) const override;
    Page<GroupRecord> groups(const ListRequest &) const override { return {}; }
    QVector<MovieRecord> groupMovies(int, SortMethod, bool) const override { return {}; }
    Page<ShowRecord> shows(const ListRequest &request) const override { return pageOf(showList, request); }
    QVector<SeasonRecord> seasons(int idTvshow) const override { return seasonLists.value(idTvshow); }
    SeasonRecord season(int, int) const override { return {}; }
    QVector<EpisodeRecord> episodes(int idTvshow, int number) const override
    {
        return episodeLists.value({idTvshow, number});
    }
    EpisodeRecord episode(int, int, int) const override { return {}; }
    QStringList genres(Role) const override { return {}; }
    QStringList countries(Role) const override { return {}; }
    QVector<int> years(Role) const override { return {}; }
    QStringList filesOf(int) const override { return {}; }
    bool remove(int, Removal) override { return false; }
    ScannedVideo scanned(int idFile) const override { return items.value(idFile); }
    bool matchMovie(int idFile, const Description &description, const QString &collection) override;
    bool matchEpisode(int idFile, const Description &show, const Description &told, int number,
                      int episodeNumber) override;
    bool describeMovie(int idFile, const Description &description, const QString &collection) override;
    bool describeShow(int idTvshow, const Description &description,
                      const QMap<int, Description> &told) override;
    bool describeEpisode(int idFile, const Description &description) override;
    bool describeCollection(const QString &collection, const Description &description) override;
    QVector<Wanted> wantingMetadata(bool all, int limit) const override;
    void metadataTried(int id, bool isShow) override;

    void addItem(int idFile, const QString &title, int year,
                 ScannedVideo::Kind kind = ScannedVideo::Kind::Movie);
    void addWanted(int id, bool isShow, const QString &title, int year,
                   const QMap<QString, QString> &identities = {});

private:
    template<typename Record>
    static Page<Record> pageOf(const QVector<Record> &all, const ListRequest &request)
    {
        Page<Record> page;
        QVector<Record> matching;
        for (const Record &record : all) {
            if (record.title.contains(request.pattern, Qt::CaseInsensitive))
                matching << record;
        }
        page.total = matching.size();
        page.rows = matching.mid(request.start, request.end - request.start);
        return page;
    }
    void noLongerWanted(int id, bool isShow);
};
