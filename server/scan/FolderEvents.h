// Tells when something in a watched folder changed: a name, a time, or the end of writing to a file.
//
// One handle of the system for all folders. A test may put its own watch() in the place of the system's.
// watch() and forget() are safe on any thread; the signals come on
// the thread of the object.
#pragma once

#include <QObject>
#include <QString>

#include <memory>

class FolderEvents : public QObject {
    Q_OBJECT

public:
    explicit FolderEvents(QObject *parent = nullptr);
    ~FolderEvents() override;

    enum class Outcome {
        Watched,
        LimitReached, // the system watches no more folders
        Failed,       // not this one
        Gone          // there is no such folder any more, which its parent's watch tells
    };
    // Nothing below the folder is watched by it. Again for a watched folder does nothing.
    virtual Outcome watch(const QString &folder);
    // What an error of the system means for the watch that it was asked for.
    [[nodiscard]] static Outcome outcomeOf(int systemError);
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
