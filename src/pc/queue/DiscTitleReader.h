// Asks what titles a source has, without waiting for its drive.
//
// Lives on the GUI thread; the engine is asked on workers, a few at a time so that a disc that does not
// answer leaves room for others. A source that is being asked about is not asked again.
#pragma once

#include "player/QPlayerTypes.h"

#include <QObject>
#include <QSet>

#include <functional>
#include <memory>

class ThreadWorker;

class DiscTitleReader final : public QObject {
    Q_OBJECT

public:
    // Runs on a worker; what is no disc answers one that is not valid.
    using Titles = std::function<PlayerDisc(const QString &path, int itemType)>;

    explicit DiscTitleReader(Titles titles, QObject *parent = nullptr);
    ~DiscTitleReader() override;

    // Answered by one told(), unless there is nobody to ask.
    void ask(const QString &path);

signals:
    void told(const QString &path, const PlayerDisc &disc);

private:
    Titles m_titles;
    QSet<QString> m_asked;
    std::unique_ptr<ThreadWorker> m_worker;
};
