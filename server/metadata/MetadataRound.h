// Goes through what the scans left without metadata and asks the provider for it, in steps.
//
// Runs in the thread that calls run(), one at a time; cancel() comes from any. A failure that would befall
// every further question (no connection, a key that is not taken) ends the round, and the next one takes up
// what is left. Adult content is never asked for. When the language has changed since the last whole round,
// all that carries an identity is asked for anew; the language of the last one is kept in a file.
#pragma once

#include "ProviderParts.h"

#include <QPair>
#include <QSet>

#include <functional>

class MetadataRound final {
public:
    // languageFile: where the language of the last whole round is noted.
    MetadataRound(const ProviderParts &parts, std::function<QString()> language, const QString &languageFile);

    // Whether something was described.
    bool run();

    // Ends the running round within a second, and each later one at once until resume().
    void cancel();
    void resume();

private:
    enum class Step { Described, Nothing, Ended };
    using Wanted = IVideoLibrary::Wanted;

    struct Count {
        int described{0};
        int withoutMatch{0};
    };

    [[nodiscard]] bool describeAnew(const MetadataCall &call, Count &count);
    [[nodiscard]] bool describeWanted(const MetadataCall &call, Count &count);
    // False ends the round.
    [[nodiscard]] bool take(const Wanted &wanted, const MetadataCall &call, Count &count);
    [[nodiscard]] Step describe(const Wanted &wanted, const MetadataCall &call);
    [[nodiscard]] Answer<QString> identify(const Wanted &wanted, const MetadataCall &call);
    [[nodiscard]] Step describeMovie(const Wanted &wanted, const QString &id, const MetadataCall &call);
    [[nodiscard]] Step describeShow(const Wanted &wanted, const QString &id, const MetadataCall &call);
    // Of the seasons that the library holds; empty where the provider ended it.
    [[nodiscard]] Answer<QMap<int, ProviderSeason>> seasonsOf(const Wanted &wanted, const QString &id,
                                                              const MetadataCall &call);
    void describeEpisodes(int idTvshow, const QMap<int, ProviderSeason> &seasons, const MetadataCall &call);
    [[nodiscard]] QString notedLanguage() const;
    void noteLanguage(const QString &language);

    const ProviderParts m_parts;
    const std::function<QString()> m_language;
    const QString m_languageFile;
    QSet<QString> m_collections; // told in this round
    StopFlag m_stop;
};
