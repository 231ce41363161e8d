// The folders of the media library as the settings see them.
//
// Every answer is given at once, from what is known; what a call changes is told through the handler, when it
// has happened. GUI thread.
#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class ILibraryPaths {
public:
    enum class Kind { Video, Music };

    virtual ~ILibraryPaths() = default;

    // False while the server of the library is not there.
    [[nodiscard]] virtual bool isReady() const = 0;
    [[nodiscard]] virtual QStringList folders(Kind kind) const = 0;
    // With askForType the user is asked what a folder of films holds.
    virtual void add(Kind kind, const QString &folder, bool askForType) = 0;
    virtual void remove(Kind kind, const QString &folder) = 0;
    virtual void update() = 0;
    virtual void rebuild() = 0;
    // Called after each change of folders or readiness; an empty handler ends that.
    virtual void setChangedHandler(std::function<void()> handler) = 0;
};
