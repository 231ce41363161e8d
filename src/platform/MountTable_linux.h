// What is mounted where, as the kernel tells it. Plain data; any thread.
#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <optional>

class MountTable final {
public:
    struct Entry {
        QString mountPoint;
        QString device; // "8:1", the numbers of the block device
        QString fileSystem;
        QString source; // "/dev/sda1", "server:/films", or a word for what has no device
    };

    // The table of this process at this moment.
    [[nodiscard]] static MountTable current();
    // A text laid out as /proc/self/mountinfo. Lines that are something else are left out.
    explicit MountTable(const QByteArray &text);

    // What a clean absolute path lies on; of two mounts on one folder the later one, which hides the other.
    [[nodiscard]] std::optional<Entry> entryOf(const QString &path) const;
    // The first folder that a device is mounted on.
    [[nodiscard]] std::optional<Entry> entryOfSource(const QString &source) const;

private:
    QVector<Entry> m_entries;
};
