// Ties the player into the desktop: its entry among the programs, the verb in the menus of files and folders,
// the files that open with it, and what offers to play an inserted disc.
//
// On Windows by the registry, through one helper with raised rights a call, so that the user is asked once;
// on Linux by a desktop entry and the user's mimeapps.list. What a file opened with before is kept there and
// given back.
//
// Safe on every thread; two calls at once go one after the other. All of them read or write files, and those
// that change something may wait for the user's answer and for another program: never call them on the GUI
// thread. A false says that something could not be written; the log tells what, and nothing that stood there
// before is lost.
#pragma once

#include <QStringList>

class FileAssociation final {
public:
    static bool RegisterApplication();
    static bool UnregisterApplication();

    // Extensions come in any case, with or without "." or "*.". Those that the player does not know are
    // logged and left out; a list of such alone is a failure.
    static bool AssociateExtensions(const QStringList &extensions);
    // Gives back what each opened with before. What was never associated is left alone.
    static bool RestoreExtensions(const QStringList &extensions);
    // Both, with one question to the user.
    static bool ChangeExtensions(const QStringList &associate, const QStringList &restore);
    [[nodiscard]] static bool IsAssociated(const QString &extension);

    // Registers the player for inserted discs, or takes it out.
    static bool RegisterAutoplay(bool enable);

    // The system's current list, "mkv", in the order of the table of file types.
    [[nodiscard]] static QStringList associatedExtensions();

    // These two touch no file.
    // Whether the player opens files of this extension.
    [[nodiscard]] static bool isKnown(const QString &extension);
    // "*.MKV" gives "mkv"; empty for what is no extension.
    [[nodiscard]] static QString extensionOf(const QString &text);

private:
    static bool changeKnown(const QStringList &associate, const QStringList &restore);
    [[nodiscard]] static bool isMarked(const QString &extension);
};
