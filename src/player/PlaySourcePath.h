// What a request to play means: the form of the path that the engine opens, the title in it, and whether it
// is a file, a folder or a disc. Both faces ask here.
//
// Pure but for a look at the file system; any thread.
#pragma once

#include <QString>

#include <functional>

struct PlaySource {
    enum Kind { File = 0, Folder = 1, Disc = 2 };

    QString path;        // what the engine opens
    QString displayName; // what the user reads
    Kind kind{File};
    // The title that a cue sheet's path carries; -1 for every other path.
    int cueTitle{-1};
};

class PlaySourcePath final {
public:
    // The form of a path that can be played, as the media library knows it.
    using PathForm = std::function<QString(const QString &path)>;
    // The name of the disc in a drive, empty when unknown.
    using DiscName = std::function<QString(const QString &drive)>;

    PlaySourcePath(PathForm pathForm, DiscName discName);

    [[nodiscard]] PlaySource resolve(const QString &asked) const;

    // A drive root reduced to its letter; every other path as it is.
    [[nodiscard]] static QString reducedDriveRoot(const QString &path);
    // Without a leading "smb:" or "nfs:", in exactly this case.
    [[nodiscard]] static QString withoutNetworkScheme(const QString &path);
    // Takes the title off a cue sheet's path ("3_/music/album.cue"); -1 and the path unchanged for other
    // files.
    [[nodiscard]] static int takeCueTitle(QString *path);

private:
    PathForm m_pathForm;
    DiscName m_discName;
};
