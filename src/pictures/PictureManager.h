// The pictures of the library's views, kept in memory: posters, pictures of local files, pictures of genres.
//
// A delegate asks while it paints and never waits: it gets the picture, or null and paints its default; the
// view is told of the row once the picture is there, a hint to repaint and no more. Three lanes with a thread
// each.
//
// Lives on the GUI thread, on which pixmaps are made, handed out and destroyed. A pointer that was handed out
// is good until the GUI thread returns to its event loop: clearAll() takes pictures away from all who ask
// later, but destroys none before that. Don't keep one.
#pragma once

#include "PictureLane.h"
#include "PictureSources.h"

#include <QObject>
#include <QPixmap>
#include <QString>

#include <chrono>
#include <memory>
#include <mutex>
#include <vector>

class PictureManager final : public QObject {
    Q_OBJECT

public:
    // Between two bursts of a lane.
    static constexpr std::chrono::milliseconds kInterval{1500};

    // Made by whichever thread comes first, given to the GUI thread, ended with the application.
    [[nodiscard]] static PictureManager *instance();

    explicit PictureManager(PictureSources sources = PictureSources::ofProgram(),
                            std::chrono::milliseconds interval = kInterval);
    ~PictureManager() override;

    // For the pictures that are made from now on. Any thread.
    void setSources(PictureSources sources);

    // The picture if it is there. Else null, and the lane's signal tells of the row later; the row of the
    // first request for a key counts. An empty key has no picture. GUI thread; on others the answer is always
    // null.
    [[nodiscard]] QPixmap *requestPoster(int nRow, const QString &key);
    [[nodiscard]] QPixmap *requestLocalPicture(int nRow, const QString &path);
    [[nodiscard]] QPixmap *requestGenrePicture(int nRow, const QString &genre);

    // The poster at once, null where it can't be had: waits for the server, two seconds at most. GUI thread.
    [[nodiscard]] QPixmap *loadPosterNow(const QString &key);

    // Forgets what waits and what is there, in all lanes. Any thread.
    void clearAll();

    // Ends the lanes; waits for the pictures that are being made. Nothing is made from then on.
    void stop();

    // Fills the target with the middle of the picture; what stands over is cut away. Null for a null picture
    // or an empty target. GUI thread.
    [[nodiscard]] static QPixmap scaleAndCrop(const QPixmap &pixmap, const QSize &target);

signals:
    // On the lanes' threads; queued for everybody else.
    void sig_pictureLoaded(int nRow);
    void sig_pictureLoaded();
    void sig_LocalPictureLoaded(int nRow);
    void sig_musicGenrePictureLoaded(int nRow);

private:
    [[nodiscard]] QPixmap *request(PictureLane &lane, int row, const QString &key);
    [[nodiscard]] bool isOnOwnThread() const;
    [[nodiscard]] std::shared_ptr<const PictureSources> sources() const;
    void retire(PictureLane::Retired pictures);

    mutable std::mutex m_sourcesMutex;
    std::shared_ptr<const PictureSources> m_sources;
    std::mutex m_retiredMutex;
    std::vector<PictureLane::Retired> m_retired; // until the GUI thread is back in its event loop
    PictureLane m_posters;
    PictureLane m_locals;
    PictureLane m_genres;
};
