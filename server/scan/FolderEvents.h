// Tells when something in a watched folder changed: a name, a time, or the end of writing to a file.
//
// One handle of the system for all folders. watch() and forget() are safe on any thread; the signals come on
// the thread of the object.
#pragma once

#include <QObject>
#include <QString>

#include <memory>

class FolderEvents final : public QObject {
    Q_OBJECT

public:
    explicit FolderEvents(QObject *parent = nullptr);
    ~FolderEvents() override;

    enum class Outcome { Watched, LimitReached, Failed };
    // Nothing below the folder is watched by it. Again for a watched folder does nothing.
    Outcome watch(const QString &folder);
    // The folder and all below it.
    void forget(const QString &folder);
    // Watched folders.
    [[nodiscard]] int count() const;

signals:
    void changed(const QString &folder);
    // Events were lost: anything may have changed.
    void overflowed();

private:
    struct State;
    void readEvents();

    std::unique_ptr<State> m_state;
};
