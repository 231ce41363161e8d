// Recognition of disc structures by the files and folders that a path holds.
//
// Nothing is opened or parsed; an Ultra HD disc counts as a Blu-ray here and the engine tells the rest. The
// functions keep no state and may be called from any thread. They touch the file system and can wait for a
// drive that spins up.
#pragma once

#include <QString>

#include <cstdint>

enum DiscFolderKind : std::int32_t {
    DiscFolderDvd = 0,    // DVD-Video
    DiscFolderNone = 1,   // nothing recognised, plain data folders included
    DiscFolderBluray = 2, // Blu-ray, recorded BDAV structures included
    DiscFolderVr = 3      // DVD-VR recording
};

struct DiscFolderProbe {
    QString discRoot; // the folder to hand on, with a trailing slash; empty for DiscFolderNone
    DiscFolderKind kind{DiscFolderNone};
    QString path; // the path as given, with a trailing slash
};

// The first structure that holds, in a fixed order: VR before DVD before Blu-ray where one folder has
// several.
[[nodiscard]] DiscFolderProbe ClassifyDiscFolder(const QString &path);

// Whether the engine can be handed the folder as a disc: a DVD, or a Blu-ray with its three essential
// folders.
[[nodiscard]] bool IsPlayableDiscFolder(const QString &path);

// The folder of a library item that stands for a whole disc folder: the path without its pseudo file name
// ("folder.bdmv", "folder.ifo", ...) and the separator before it. Case is ignored.
[[nodiscard]] QString StripLibraryFolderSuffix(const QString &path);

// Splits a path at its disc folder (VIDEO_TS or BDMV, any case).
//
// path: changed in place. With stripChild the disc folder is cut off; without it a disc folder below the path
// is appended. rootOut: when not null, receives the part in front of the last component. Returns
// DiscFolderDvd or DiscFolderBluray; a path without any structure counts as a DVD.
int SplitDiscPath(QString &path, bool stripChild, QString *rootOut = nullptr);
