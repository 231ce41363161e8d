// What becomes of files, folders and links that are dropped on the window.
//
// Holds no state but how it looks at the disk; any thread. accepts() is for the GUI thread while something is
// dragged: it looks at names and at a few entries of the disk at most. decide() looks at everything and is
// for a worker.
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

class DropRule final {
    Q_DECLARE_TR_FUNCTIONS(DropRule)

public:
    // What can be added to a running source.
    static constexpr char SubtitleNames[] = "*.srt *.ass *.ssa *.idx *.sub *.pgs";
    // More items are not taken at once.
    static constexpr int Most = 20000;
    // Entries of the disk that accepts() looks at.
    static constexpr int MostLooks = 16;

    enum class Kind { Missing, File, Folder };

    struct Found {
        Kind kind{Kind::Missing};
        bool isReadable{false};
    };

    // Names within a folder, in any order; hidden ones and links to folders are left out.
    struct Listing {
        QStringList files;
        QStringList folders;
    };

    // How the rule looks at the disk.
    struct Disk {
        std::function<Found(const QString &path)> look;
        std::function<bool(const QString &path)> isPlayableDisc;
        // isCancelled is asked now and then.
        std::function<Listing(const QString &folder, const std::function<bool()> &isCancelled)> list;

        [[nodiscard]] static Disk ofSystem();
    };

    struct Outcome {
        // What to play now; empty when nothing of it can be.
        QString first;
        // What follows it, in order.
        QStringList queue;
        // Subtitles to add: to the source in first once it plays, without one to what plays already.
        QStringList subtitles;
        // What was refused, in sentences for the user.
        QStringList messages;
    };

    DropRule();
    explicit DropRule(Disk disk, int most = Most);

    // Whether a drop of these would be taken, as far as that is seen at a glance: by the names alone, or
    // because a folder is among the first. Stops at the first that counts.
    [[nodiscard]] bool accepts(const QList<QUrl> &urls, bool isPlaying) const;

    // Sorts everything out. Ends early, with an outcome that is not to be used, once isCancelled says so.
    [[nodiscard]] Outcome decide(const QList<QUrl> &urls, bool isPlaying,
                                 const std::function<bool()> &isCancelled = {}) const;

    [[nodiscard]] static bool isMedia(const QString &path);
    [[nodiscard]] static bool isSubtitle(const QString &path);

private:
    Disk m_disk;
    int m_most;
};

Q_DECLARE_METATYPE(DropRule::Outcome)
