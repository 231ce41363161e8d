// Ties the player into the desktop: what offers to play an inserted disc with it, and which files open with
// it.
//
// Blocks while it writes; used by the maintenance runs, which have no window.
#pragma once

class FileAssociation final {
public:
    // Registers the player for inserted discs, or takes it out. False when something could not be written.
    static bool RegisterAutoplay(bool enable);

    // Takes out the player's entry for the files it opens. False when something could not be removed.
    static bool UnregisterApplication();
};
