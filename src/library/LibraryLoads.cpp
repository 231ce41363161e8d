#include "LibraryLoads.h"

#include "BucketStatistics.h"
#include "LibrarySignals.h"
#include "LibraryThreads.h"
#include "MusicCache.h"
#include "MusicLoader.h"
#include "VideoCache.h"
#include "VideoLoader.h"

#include <QDebug>

#include <exception>

LibraryLoads::LibraryLoads(const Parts &parts)
    : m_parts(parts)
{
    for (int role = LibraryRoles::First; role <= LibraryRoles::Last; ++role) {
        const auto loaded = LibraryRole(role);
        m_parts.threads.setWork(LibraryThreads::ofRole(loaded), [this, loaded] { load(loaded); });
    }
    m_parts.threads.setWork(LibraryThreads::WaitForLoads, [this] {
        for (int role = LibraryRoles::First; role <= LibraryRoles::Last; ++role)
            waitForLoad(role);
    });
}

LibraryLoads::State &LibraryLoads::state(LibraryRole role)
{
    return m_states[std::size_t(role) - LibraryRoles::First];
}

void LibraryLoads::reload(int number)
{
    if (!LibraryRoles::isRole(number) || m_isEnding)
        return;
    const auto role = LibraryRole(number);
    const LibraryThreads::Worker worker = LibraryThreads::ofRole(role);
    State &own = state(role);
    std::lock_guard lock(own.reloading);
    // Of this role only: what another one loads meanwhile is not to be lost.
    own.isAborted = true;
    m_parts.threads.wait(worker);
    own.isFinished = false;
    if (role == LibraryRole::Music)
        m_parts.musicCache.clear();
    emit m_parts.notices.sig_mediaScanStateChanged(number);
    emit m_parts.notices.sig_reLoadData(number);
    own.isAborted = false;
    ++m_running;
    if (!m_parts.threads.start(worker))
        --m_running;
}

void LibraryLoads::waitForLoad(int role)
{
    if (LibraryRoles::isRole(role))
        m_parts.threads.wait(LibraryThreads::ofRole(LibraryRole(role)));
}

bool LibraryLoads::isLoading(int role) const
{
    return LibraryRoles::isRole(role) && !m_states[std::size_t(role - LibraryRoles::First)].isFinished;
}

void LibraryLoads::startWaitingForAll()
{
    m_parts.threads.start(LibraryThreads::WaitForLoads);
}

void LibraryLoads::end()
{
    m_isEnding = true;
}

void LibraryLoads::load(LibraryRole role)
{
    State &own = state(role);
    const auto aborted = [this, &own] { return own.isAborted || m_isEnding; };
    try {
        if (role == LibraryRole::Music)
            m_parts.musicLoader.load(aborted);
        else
            m_parts.videoLoader.load(role, aborted);
    } catch (const std::exception &error) {
        // A list too large for this machine: what there is stays, and the views learn that the load is over.
        qInfo() << "[library] a load ended by an error:" << error.what();
    }
    const bool isWhole = !aborted();
    if (isWhole)
        m_parts.statistics.report(role, countOf(role));
    if (--m_running == 0 && isWhole)
        logCounts();
    own.isFinished = true;
    emit m_parts.notices.sig_mediaScanStateChanged(int(role));
}

int LibraryLoads::countOf(LibraryRole role) const
{
    switch (role) {
    case LibraryRole::Movies:
        return m_parts.videoCache.count(VideoCache::Movies);
    case LibraryRole::Collections:
        return m_parts.videoCache.count(VideoCache::Collections);
    case LibraryRole::TvShows:
        return m_parts.videoCache.count(VideoCache::Episodes);
    case LibraryRole::Videos:
        return m_parts.videoCache.count(VideoCache::Videos);
    case LibraryRole::AdultContent:
        return m_parts.videoCache.count(VideoCache::AdultItems);
    case LibraryRole::Music:
        return m_parts.musicCache.songs().size();
    }
    return 0;
}

void LibraryLoads::logCounts() const
{
    const VideoCache &video = m_parts.videoCache;
    const MusicCache &music = m_parts.musicCache;
    qInfo().noquote() << QStringLiteral(
                             "[library] %1 movies, %2 collections, %3 shows (%4 episodes), %5 videos, "
                             "%6 adult, ")
                                 .arg(video.count(VideoCache::Movies))
                                 .arg(video.count(VideoCache::Collections))
                                 .arg(video.count(VideoCache::Shows))
                                 .arg(video.count(VideoCache::Episodes))
                                 .arg(video.count(VideoCache::Videos))
                                 .arg(video.count(VideoCache::AdultItems))
                             + QStringLiteral("%1 songs, %2 albums, %3 artists, %4 genres, %5 playlists")
                                   .arg(music.songs().size())
                                   .arg(music.albums().size())
                                   .arg(music.artists().size())
                                   .arg(music.genres().size())
                                   .arg(music.playlists().size());
}
