// A file opened for reading, together with what is known of exactly this opened file: nothing that happens to
// its path afterwards changes what is looked at and what is sent.
//
// Owns the descriptor. Opening never waits for a device or a pipe, and never takes one for a file.
#pragma once

#include <QByteArray>
#include <QString>

class OpenedFile final {
public:
    OpenedFile() = default;
    ~OpenedFile();
    OpenedFile(OpenedFile &&other) noexcept;
    OpenedFile &operator=(OpenedFile &&other) noexcept;
    OpenedFile(const OpenedFile &) = delete;
    OpenedFile &operator=(const OpenedFile &) = delete;

    // A file that is not a regular one, or cannot be opened, gives an object that is not open.
    [[nodiscard]] static OpenedFile open(const QString &path);

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    [[nodiscard]] qint64 size() const { return m_size; }
    // Where the opened file stands, all links resolved; empty where that cannot be told.
    [[nodiscard]] QString realPath() const;
    // The first bytes; the position of reading stays at the start.
    [[nodiscard]] QByteArray head(int bytes) const;
    // Gives the descriptor away.
    [[nodiscard]] int release();

private:
    void close();

    int m_descriptor{-1};
    qint64 m_size{0};
};
