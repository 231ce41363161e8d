// What stands behind each drive letter: the machine's drives, and images or folders that were bound to a
// letter and then count as a drive with that disc in it. A bound letter hides the machine's own. On a system
// without letters the optical drives take them from D on, in the order of their devices. Safe on every
// thread. Asking a drive for its label may wait for the drive.
#pragma once

#include <QChar>
#include <QMap>
#include <QString>
#include <QVector>

#include <mutex>
#include <optional>

struct Drive {
    // Numbered as Windows does.
    enum Kind { Unknown = 0, NoRoot = 1, Removable = 2, Fixed = 3, Remote = 4, Optical = 5, RamDisk = 6 };

    // Upper case.
    QChar letter;
    Kind kind{Unknown};
    // What to open: a root folder, a device, an image file or a folder.
    QString target;
    // Bound to the letter by this program.
    bool isVirtual{false};
};

class DriveLetters final {
public:
    // Binds what the variable QUORIN_DRIVES names: "E=/discs/film.iso;F=/discs/folder".
    [[nodiscard]] static DriveLetters *instance();

    DriveLetters() = default;
    DriveLetters(const DriveLetters &) = delete;
    DriveLetters &operator=(const DriveLetters &) = delete;

    // By letter. The machine is asked anew each time.
    [[nodiscard]] QVector<Drive> drives() const;
    [[nodiscard]] std::optional<Drive> drive(QChar letter) const;

    // Puts an image or a folder behind a letter; false for what is no letter or does not exist.
    bool bind(QChar letter, const QString &path);
    void unbind(QChar letter);
    void bindAll(const QString &list);

    // The letter of a drive root: "D", "D:", "D:/" and "D:\"; a null character for every other text.
    [[nodiscard]] static QChar letterOf(const QString &text);

    // Turns a path that begins with a drive ("E:/BDMV") into one that can be opened. A letter without a drive
    // and a path that begins with none come back as they are.
    [[nodiscard]] QString resolve(const QString &path) const;

    // The name of the medium, empty when there is none or it has no name.
    [[nodiscard]] QString volumeLabel(QChar letter) const;

private:
    mutable std::mutex m_mutex;
    QMap<QChar, QString> m_bound;
};
