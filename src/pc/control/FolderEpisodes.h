// Finds the episode that follows a file among the files beside it, for shows that no library knows.
//
// The next one is the nearest later episode of the same show in the same folder or, where that is the folder
// of a season, the first of the nearest later season. Lives on the GUI thread; folders and pictures are read
// on a worker. A later question replaces an earlier one, which is then never answered.
#pragma once

#include "INextEpisodeSource.h"

#include <QObject>

#include <atomic>
#include <memory>

class ThreadWorker;

class FolderEpisodes final : public QObject, public INextEpisodeSource {
    Q_OBJECT

public:
    explicit FolderEpisodes(QObject *parent = nullptr);
    ~FolderEpisodes() override;

    void requestNext(const QString &path, Answer answer) override;

    // The search itself, on the caller's thread. isStale ends it early.
    [[nodiscard]] static NextEpisode find(const QString &path, const std::function<bool()> &isStale = {});

private:
    // The number of the question that counts; shared with the workers.
    std::shared_ptr<std::atomic<quint64>> m_latest;
    std::unique_ptr<ThreadWorker> m_worker;
    int m_atWork{0};
};
