// Writes a video's row: weighs its sources, finds its show and collection, and notes which of them change
// with it. Runs within a transaction of the writer.
#pragma once

#include "Containers.h"
#include "VideoRows.h"

class Connection;
struct GivenDescription;

class VideoWriter final {
public:
    explicit VideoWriter(Connection &connection);

    // The row as it was read, with changed sources; what follows from them is set here.
    [[nodiscard]] bool write(VideoRow *row);
    // To be called once at the end: counts and versions.
    [[nodiscard]] bool finish();
    [[nodiscard]] Containers *containers() { return &m_containers; }

private:
    [[nodiscard]] bool place(VideoRow *row, const ScannedVideo &scanned, const GivenDescription &matched);
    [[nodiscard]] int collectionId(const QString &title, const QString &overview);

    Connection &m_connection;
    Containers m_containers;
};
