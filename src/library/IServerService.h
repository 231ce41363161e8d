// The library that knows the pictures of discs, loaded into the program when it is there. Any thread; calls
// of one object follow each other.
#pragma once

#include <QLibrary>
#include <QString>

#include <mutex>
#include <string>

class IMediaLibraryApi;

class IServerService {
public:
    // The library beside the program.
    IServerService();
    // libraryPath: its file; the two folders are handed to it.
    IServerService(const QString &libraryPath, const QString &dataFolder, const QString &pictureFolder);
    virtual ~IServerService();
    IServerService(const IServerService &) = delete;
    IServerService &operator=(const IServerService &) = delete;

    // True when the library is loaded, also when it gives no instance.
    [[nodiscard]] bool init();
    // Null when no instance is held or the library throws. A null argument is passed on as an empty text. The
    // text stands until the next call.
    [[nodiscard]] const char *callService(const char *key, const char *argument1, const char *argument2);

    // Who asks, for a library that wants to know.
    [[nodiscard]] const std::string &product() const { return m_product; }
    [[nodiscard]] const std::string &version() const { return m_version; }
    [[nodiscard]] int port() const { return m_port; }

private:
    [[nodiscard]] IMediaLibraryApi *makeInstance();

    const std::string m_product{"Quorin"};
    const std::string m_version{"1.0.0.1"};
    const int m_port{33080};
    const QString m_dataFolder;
    const QString m_pictureFolder;
    std::mutex m_mutex;
    QLibrary m_library;
    IMediaLibraryApi *m_api{nullptr}; // the library's own
    std::string m_answer;
};
