// Pictures that came out of media files, each stored once under the hash of its content.
//
// Refers to the folder of the picture cache; what lies in it is served by name. Any thread; pictures are
// written one at a time.
#pragma once

#include <QByteArray>
#include <QString>

#include <mutex>

class PictureCache final {
public:
    static constexpr int LargestPicture = 16 * 1024 * 1024; // bytes

    explicit PictureCache(const QString &folder)
        : m_folder(folder)
    {
    }

    // The bare name that the picture is served by; empty for what is no picture, is too large or cannot be
    // written.
    [[nodiscard]] QString store(const QByteArray &picture);

private:
    bool write(const QString &path, const QByteArray &picture);

    QString m_folder;
    std::mutex m_mutex;
    bool m_failed{false}; // said once; a full disk would fill the log
};
