// The folders of the media library for the settings dialog.
//
// GUI thread. Answers come from the manager's copy; what changes something is sent to the server by a worker.
#pragma once

#include "settings/ILibraryPaths.h"

#include <QObject>

#include <memory>

class MediaServerManager;
class ThreadWorker;

class PcLibraryPaths final : public QObject, public ILibraryPaths {
    Q_OBJECT

public:
    // Asks what a folder of films holds; true: adult content.
    using AskType = std::function<bool()>;

    PcLibraryPaths(MediaServerManager &manager, AskType askType, QObject *parent = nullptr);
    ~PcLibraryPaths() override;

    [[nodiscard]] bool isReady() const override;
    [[nodiscard]] QStringList folders(Kind kind) const override;
    void add(Kind kind, const QString &folder, bool askForType) override;
    void remove(Kind kind, const QString &folder) override;
    void update() override;
    void rebuild() override;
    void setChangedHandler(std::function<void()> handler) override;

private:
    void tellChange() const;

    MediaServerManager &m_manager;
    AskType m_askType;
    std::function<void()> m_changed;
    std::unique_ptr<ThreadWorker> m_worker;
};
