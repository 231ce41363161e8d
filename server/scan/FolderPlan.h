// Decides what a scan of a library folder has to read, and what is gone at its end.
//
// Owns the fingerprints of the last scan. One thread.
#pragma once

#include "WalkedFolder.h"

#include <QHash>
#include <QSet>
#include <QStringList>

class FolderPlan final {
public:
    // kind: of what reads the folders. It is part of the fingerprints, so that a scan that still ran while
    // the kind of a folder changed leaves none that the next one takes for its own.
    explicit FolderPlan(const QHash<QString, QByteArray> &known, const QByteArray &kind = {})
        : m_known(known)
        , m_kind(kind)
    {
    }

    // Names, sizes and times of all that is listed, the sidecars above, and for a later part of a film the
    // folder of its first.
    [[nodiscard]] static QByteArray fingerprint(const WalkedFolder &folder, const QByteArray &kind = {});
    // Of the sidecars in the folder that tell about what lies below it, and of those above.
    [[nodiscard]] static QByteArray sidecarDigest(const WalkedFolder &folder);

    // Takes the folder as found. True when it has to be read, with the fingerprint to store.
    [[nodiscard]] bool take(const WalkedFolder &folder, QByteArray &fingerprint);
    [[nodiscard]] bool isKnown(const QString &path) const { return m_known.contains(path); }
    // A library folder that held something and now holds nothing is one that is not mounted.
    [[nodiscard]] bool looksUnmounted(const WalkedFolder &root) const;
    // Known folders that the walk did not come by, but for those below unreadable ones.
    [[nodiscard]] QStringList gone() const;

private:
    QHash<QString, QByteArray> m_known;
    QByteArray m_kind;
    QSet<QString> m_seen;
    QStringList m_unreadable;
};
