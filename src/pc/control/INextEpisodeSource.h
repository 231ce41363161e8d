// Where the note of the next episode learns what comes after a source. The library answers; tests give their
// own.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

struct NextEpisode {
    QString path; // empty: there is none
    QString title;
    QByteArray poster; // encoded picture, may be empty
};

class INextEpisodeSource {
public:
    using Answer = std::function<void(const NextEpisode &)>;

    virtual ~INextEpisodeSource() = default;

    // Asks for the episode after the one at path. Returns at once; answers on the GUI thread, now or later,
    // with an empty episode where path is no episode or is the last one.
    virtual void requestNext(const QString &path, Answer answer) = 0;
};
